// Dispatch of class methods and calls of namespace functions.
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/registry.hpp>

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

bool callMethodIfDefined(std::string_view name, std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                         const value::ValueArray* const* prhs) {
    const auto method = findMethodFor(name, nrhs, prhs);
    if (!method) return false;
    method->call(nlhs, plhs, nrhs, prhs);
    return true;
}

void callNamespaceFunction(std::string_view path, std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                           const value::ValueArray* const* prhs) {
    getFunction(path)->call(nlhs, plhs, nrhs, prhs);
}

}  // namespace orrery::ocos
