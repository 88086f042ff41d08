// Dispatch of class methods and calls of namespace functions.
#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/ocos_messages.hpp>
#include <orrery/ocos/registry.hpp>
#include <orrery/text/text.hpp>

namespace orrery::ocos {

std::shared_ptr<const COSClassInfo> dispatchClass(std::int32_t nrhs, const value::ValueArray* const* prhs) {
    for (std::int32_t i = 0; i < nrhs; ++i) {
        const value::ValueArray* input = prhs[i];
        if (input != nullptr && input->is(value::ClassId::Object) && input->classInfo()) return input->classInfo();
    }
    return nullptr;
}

std::shared_ptr<const COSMethodInfo> findMethodFor(std::string_view name, std::int32_t nrhs,
                                                   const value::ValueArray* const* prhs) {
    const auto classInfo = dispatchClass(nrhs, prhs);
    return classInfo ? classInfo->findMethod(name) : nullptr;
}

void callMethod(std::string_view name, std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                const value::ValueArray* const* prhs) {
    const auto classInfo = dispatchClass(nrhs, prhs);
    if (!classInfo) except::throwMessage(except::host::UndefinedFunction(text::utf8ToUtf16(name)));
    const auto method = classInfo->findMethod(name);
    if (!method) {
        except::throwMessage(messages::NoSuchMethod(text::utf8ToUtf16(name), text::utf8ToUtf16(classInfo->getName())));
    }
    method->call(nlhs, plhs, nrhs, prhs);
}

void callNamespaceFunction(std::string_view path, std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                           const value::ValueArray* const* prhs) {
    getFunction(path)->call(nlhs, plhs, nrhs, prhs);
}

}  // namespace orrery::ocos
