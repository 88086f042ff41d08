// The issuing path of the warning built-in, up to the log.
#include "diagnostic/warnings/issue_from_call.hpp"

#include "diagnostic/log/issue_warning.hpp"
#include "diagnostic/warnings/last_warning_outputs.hpp"

#include <orrery/except/argument_errors.hpp>

#include <boost/numeric/conversion/cast.hpp>

#include <variant>
#include <vector>

namespace orrery::diagnostic {
namespace {

using value::ValueArray;

// A message object's argument as the value a format argument would be.
ValueArray argumentValue(const catalogue::MessageArgument& argument) {
    if (const auto* number = std::get_if<double>(&argument)) return ValueArray::scalar(*number);
    const auto* text = std::get_if<std::u16string>(&argument);
    return ValueArray::chars(text != nullptr ? std::u16string_view(*text) : std::u16string_view());
}

}  // namespace

void issueTextWarning(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                      MessageInputAnalyzer& analysis) {
    const auto& inputs = analysis.rawInputs();
    const bool hasIdentifier = analysis.identifierIndex() == 1;
    if (nlhs > 2) except::throwTooManyOutputs();
    if (nlhs > 0) produceLastWarningOutputs(nlhs, plhs, context);
    if (!hasIdentifier && inputs[0]->textView().empty()) return warning::utSetLastWarningMsg(context, "", u"");
    const std::u16string message = analysis.formatMessage();
    const auto formatIndex = static_cast<std::size_t>(analysis.identifierIndex());
    const std::int32_t argumentCount = analysis.inputCount() - (hasIdentifier ? 2 : 1);
    lang::diagnostic::issueAndLogWarning(context, analysis.identifier(), inputs[formatIndex]->textView(), argumentCount,
                                         inputs.data() + formatIndex + 1, message);
}

void issueMessageObjectWarning(std::int32_t nlhs, warning::WarningManagerContext* context,
                               const MessageInputAnalyzer& analysis) {
    if (nlhs > 0) except::throwTooManyOutputs();
    const catalogue::MessageContent& content = *analysis.ingredients();
    const std::u16string message = content.text();
    const auto count = boost::numeric_cast<std::int32_t>(analysis.messageArguments().size());
    std::vector<ValueArray> values;
    values.reserve(analysis.messageArguments().size());
    for (const auto& argument : analysis.messageArguments()) values.push_back(argumentValue(argument));
    std::vector<const ValueArray*> pointers;
    pointers.reserve(values.size());
    for (const auto& v : values) pointers.push_back(&v);
    // A message object's warning is logged without a format, as catalogue warnings are.
    lang::diagnostic::issueAndLogWarning(context, content.identifier, u"", count, pointers.data(), message);
}

}  // namespace orrery::diagnostic
