// The language's isequal over every class of value.
#include "shell/builtins/value_equality.hpp"

#include <orrery/interp/function_table.hpp>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace orrery::shell::builtins {
namespace {

using value::ClassId;
using value::ValueArray;

bool equalAt(const ValueArray& a, const ValueArray& b, bool nested);

bool isNumberLike(const ValueArray& v) {
    return v.isNumeric() || v.is(ClassId::Logical) || v.is(ClassId::Char);
}

bool numbersEqual(const ValueArray& a, const ValueArray& b) {
    for (std::size_t i = 0; i < a.numel(); ++i)
        if (!(a.realAt(i) == b.realAt(i))) return false;
    return true;
}

bool stringsEqual(const ValueArray& a, const ValueArray& b) {
    for (std::size_t i = 0; i < a.numel(); ++i) {
        const auto& x = a.stringAt(i);
        const auto& y = b.stringAt(i);
        if (!x || !y || *x != *y) return false;
    }
    return true;
}

// A char row against a string scalar: the texts must agree.
bool charEqualsString(const ValueArray& chars, const ValueArray& string) {
    if (!string.isScalar() || !chars.isTextScalarTolerant()) return false;
    const auto& text = string.stringAt(0);
    return text && *text == chars.chars();
}

bool cellsEqual(const ValueArray& a, const ValueArray& b) {
    for (std::size_t i = 0; i < a.numel(); ++i)
        if (!equalAt(a.cellAt(i), b.cellAt(i), true)) return false;
    return true;
}

bool structsEqual(const ValueArray& a, const ValueArray& b) {
    std::vector<std::string> namesA = a.fieldNames();
    std::vector<std::string> namesB = b.fieldNames();
    std::sort(namesA.begin(), namesA.end());
    std::sort(namesB.begin(), namesB.end());
    if (namesA != namesB) return false;
    const ValueArray empty;
    for (std::size_t i = 0; i < a.numel(); ++i) {
        for (const auto& name : namesA) {
            const ValueArray* x = a.field(i, name);
            const ValueArray* y = b.field(i, name);
            if (!equalAt(x ? *x : empty, y ? *y : empty, true)) return false;
        }
    }
    return true;
}

bool objectsEqual(const ValueArray& a, const ValueArray& b) {
    if (!a.is(ClassId::Object) || !b.is(ClassId::Object)) return false;
    if (a.className() != b.className() || a.dims() != b.dims()) return false;
    for (std::size_t i = 0; i < a.numel(); ++i)
        if (a.objectAt(i) != b.objectAt(i)) return false;
    return true;
}

// Offers nested objects to the language function, so a class's isequal decides.
bool objectsEqualThroughFunction(const ValueArray& a, const ValueArray& b) {
    const std::array<const ValueArray*, 2> inputs{&a, &b};
    value::ValueArrayPtr answer;
    interp::callFunction("isequal", 1, &answer, 2, inputs.data());
    return answer && answer->isScalar() && answer->toLogicalScalar().logicalAt(0);
}

bool equalAt(const ValueArray& a, const ValueArray& b, bool nested) {
    if (a.is(ClassId::Object) || b.is(ClassId::Object)) {
        const bool sameClass = a.classId() == b.classId() && a.className() == b.className();
        return nested && sameClass ? objectsEqualThroughFunction(a, b) : objectsEqual(a, b);
    }
    if (a.is(ClassId::Char) && b.is(ClassId::String)) return charEqualsString(a, b);
    if (a.is(ClassId::String) && b.is(ClassId::Char)) return charEqualsString(b, a);
    if (a.dims() != b.dims()) return false;
    if (isNumberLike(a) && isNumberLike(b)) return numbersEqual(a, b);
    if (a.classId() != b.classId()) return false;
    switch (a.classId()) {
    case ClassId::String: return stringsEqual(a, b);
    case ClassId::Cell: return cellsEqual(a, b);
    case ClassId::Struct: return structsEqual(a, b);
    default: return false;
    }
}

}  // namespace

bool valuesEqual(const ValueArray& a, const ValueArray& b) { return equalAt(a, b, false); }

}  // namespace orrery::shell::builtins
