// Method descriptions: signatures and the checked call.
#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/ocos_messages.hpp>
#include <orrery/text/text.hpp>

namespace orrery::ocos {

COSMethodSignature::COSMethodSignature(std::initializer_list<std::string_view> inputs,
                                       std::initializer_list<std::string_view> outputs) {
    for (const std::string_view type : inputs) inputs_.emplace_back(type);
    for (const std::string_view type : outputs) outputs_.emplace_back(type);
}

COSMethodInfo::COSMethodInfo(std::string name) : name_(std::move(name)) {}
COSMethodInfo::COSMethodInfo(std::string name, COSMethodSignature signature)
    : name_(std::move(name)), signature_(std::move(signature)) {}
COSMethodInfo::~COSMethodInfo() = default;

void COSMethodInfo::call(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                         const value::ValueArray* const* prhs) const {
    const auto& inputs = signature_.inputs();
    const auto declaredInputs = static_cast<std::int32_t>(inputs.size());
    except::checkArgumentCounts(nlhs, static_cast<std::int32_t>(signature_.outputs().size()), nrhs, declaredInputs,
                                declaredInputs);
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        if (prhs[i] == nullptr || !inputs[i].accepts(*prhs[i])) {
            except::throwMessage(
                messages::ArgumentType(i + 1, text::utf8ToUtf16(name_), text::utf8ToUtf16(inputs[i].text().view())));
        }
    }
    invoke(nlhs, plhs, nrhs, prhs);
}

}  // namespace orrery::ocos
