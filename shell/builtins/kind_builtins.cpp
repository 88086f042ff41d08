// What a value is: its length, and the predicates of its kind (isa, ischar,
// isnumeric, iscell, isstruct).
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_support.hpp"

#include <algorithm>

namespace orrery::shell::builtins {
namespace {

// The largest dimension, or 0 for an empty array.
void bnLength(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    const value::Dims& dims = prhs[0]->dims();
    const std::size_t length = prhs[0]->isEmpty() ? 0 : *std::max_element(dims.sizes().begin(), dims.sizes().end());
    plhs[0] = makeValue(ValueArray::scalar(static_cast<double>(length)));
}

template <bool (*Test)(const ValueArray&)>
void bnKind(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    plhs[0] = makeValue(ValueArray::logicalScalar(Test(*prhs[0])));
}

bool isChar(const ValueArray& x) { return x.is(ClassId::Char); }
bool isNumeric(const ValueArray& x) { return x.isNumeric(); }
bool isCell(const ValueArray& x) { return x.is(ClassId::Cell); }
bool isStruct(const ValueArray& x) { return x.is(ClassId::Struct); }

// isa(x, name): the class's own name, or one of the groups "numeric", "float"
// and "integer".
void bnIsa(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 2, 2);
    const ValueArray& x = *prhs[0];
    const std::string name = textArgumentUtf8(*prhs[1], "isa", 2);
    const ClassId id = x.classId();
    const bool answer = name == x.className() || (name == "numeric" && x.isNumeric()) ||
                        (name == "float" && (id == ClassId::Double || id == ClassId::Single)) ||
                        (name == "integer" && value::isIntegerClass(id));
    plhs[0] = makeValue(ValueArray::logicalScalar(answer));
}

constexpr BuiltinEntry table[] = {
    {"length", bnLength},       {"isa", bnIsa},
    {"ischar", bnKind<isChar>}, {"isnumeric", bnKind<isNumeric>},
    {"iscell", bnKind<isCell>}, {"isstruct", bnKind<isStruct>},
};

}  // namespace

std::span<const BuiltinEntry> kindBuiltins() { return table; }

}  // namespace orrery::shell::builtins
