// Method dispatch: the class of the first object argument decides which class
// method a call runs; namespace functions are called by dotted path.
#pragma once

#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdint>
#include <memory>
#include <string_view>

namespace orrery::ocos {

class COSClassInfo;
class COSMethodInfo;

/// The class of the first input that is an object array with a class, or null.
ORRERY_API std::shared_ptr<const COSClassInfo> dispatchClass(std::int32_t nrhs, const value::ValueArray* const* prhs);

/// The method of that name of the dispatch class, or null when no input is an
/// object or its class has no such method (the caller then runs its own function).
ORRERY_API std::shared_ptr<const COSMethodInfo> findMethodFor(std::string_view name, std::int32_t nrhs,
                                                              const value::ValueArray* const* prhs);

/// Runs the dispatch class's method through COSMethodInfo::call. Raises
/// "ORRERY:ocos:noSuchMethod" when the class has no such method and
/// "ORRERY:undefinedFunction" when no input is an object.
ORRERY_API void callMethod(std::string_view name, std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                           const value::ValueArray* const* prhs);

/// Runs the namespace function at a dotted path through COSMethodInfo::call;
/// an unknown path raises "ORRERY:ocos:noSuchFunction".
ORRERY_API void callNamespaceFunction(std::string_view path, std::int32_t nlhs, value::ValueArrayPtr* plhs,
                                      std::int32_t nrhs, const value::ValueArray* const* prhs);

}  // namespace orrery::ocos
