// Method dispatch, the one path by which a call by name reaches a class method:
// the class of the first object argument decides, and the method runs with its
// signature checked. Namespace functions are called by dotted path.
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
/// object or the dispatch class has no such method (the caller then runs its own function).
ORRERY_API std::shared_ptr<const COSMethodInfo> findMethodFor(std::string_view name, std::int32_t nrhs,
                                                              const value::ValueArray* const* prhs);

/// When the dispatch class has a method of that name, runs it through
/// COSMethodInfo::call (counts and types checked against its signature) and
/// answers true; otherwise does nothing and answers false.
ORRERY_API bool callMethodIfDefined(std::string_view name, std::int32_t nlhs, value::ValueArrayPtr* plhs,
                                    std::int32_t nrhs, const value::ValueArray* const* prhs);

/// Runs the namespace function at a dotted path through COSMethodInfo::call;
/// an unknown path raises "ORRERY:ocos:noSuchFunction".
ORRERY_API void callNamespaceFunction(std::string_view path, std::int32_t nlhs, value::ValueArrayPtr* plhs,
                                      std::int32_t nrhs, const value::ValueArray* const* prhs);

}  // namespace orrery::ocos
