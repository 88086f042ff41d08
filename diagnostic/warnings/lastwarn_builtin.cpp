// The lastwarn built-in: reads, then optionally replaces, the last warning.
#include "diagnostic/warnings/warning_builtins.hpp"

#include "diagnostic/warnings/last_warning_outputs.hpp"
#include "diagnostic/warnings/warning_ids.hpp"
#include "diagnostic/warnings/warning_state.hpp"

#include <orrery/catalogue/catalogue.hpp>
#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

namespace {

using orrery::value::ValueArray;
namespace except = orrery::except;
namespace ids = orrery::diagnostic::ids;
namespace text = orrery::text;

// Tolerant: the language's '' is the 0-by-0 char array, and lastwarn('') clears.
std::u16string singleText(const ValueArray& input, std::string_view argumentName) {
    if (!input.isTextScalarTolerant())
        except::throwMessage(ids::MustBeSingleString(orrery::catalogue::formatMessage(argumentName)));
    return input.text();
}

std::string newIdentifier(const ValueArray& input) {
    const std::u16string identifier = singleText(input, "ORRERY:QException:MessageIdentifier");
    if (!text::isAscii(identifier)) except::throwMessage(ids::LastwarnBadMessageIdentifier(identifier));
    std::string ascii = text::utf16ToAscii(identifier);
    if (!ascii.empty() && !orrery::warning::utIsValidMessageIdentifier(ascii))
        except::throwMessage(ids::LastwarnBadMessageIdentifier(identifier));
    return ascii;
}

}  // namespace

void bnLastWarningMsg(std::int32_t nlhs, orrery::value::ValueArrayPtr* plhs, std::int32_t nrhs,
                      const ValueArray* const* prhs) {
    except::checkArgumentCounts(nlhs, 2, nrhs, 0, 2);
    auto* context = orrery::diagnostic::warningContext();
    // The outputs describe the last warning as it was before any change below.
    if (nlhs > 0 || nrhs == 0) orrery::diagnostic::produceLastWarningOutputs(nlhs, plhs, context);
    if (nrhs == 0) return;
    const std::u16string message = singleText(*prhs[0], "ORRERY:QException:MessageText");
    const std::string identifier = nrhs > 1 ? newIdentifier(*prhs[1]) : std::string();
    orrery::warning::utSetLastWarningMsg(context, identifier, message);
}
