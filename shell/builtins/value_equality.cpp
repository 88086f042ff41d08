// The language's isequal over every class of value.
#include "shell/builtins/value_equality.hpp"

#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/ocos/object_access.hpp>

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace orrery::shell::builtins {
namespace {

using value::ClassId;
using value::ValueArray;

// One comparison. Containers shared inside a value (as after c = {c c}) are
// met again and again; the pairs of containers already found equal at a depth
// are remembered, so a value made of shared parts is walked once per part, not
// once per path to it.
class Comparison {
public:
    bool equalAt(const ValueArray& a, const ValueArray& b, std::size_t depth);

private:
    bool cellsEqual(const ValueArray& a, const ValueArray& b, std::size_t depth);
    bool structsEqual(const ValueArray& a, const ValueArray& b, std::size_t depth);
    bool elementsEqual(const ValueArray& a, const ValueArray& b, std::size_t i, std::size_t depth);
    bool objectsEqual(const ValueArray& a, const ValueArray& b, std::size_t depth);
    bool containersEqual(const ValueArray& a, const ValueArray& b, std::size_t depth);

    using Pair = std::tuple<const void*, const void*, std::size_t>;
    std::set<Pair> equalPairs_;
    // Holds the remembered containers' data, so that no address is reused.
    std::vector<ValueArray> remembered_;
};

bool isNumberLike(const ValueArray& v) { return v.isNumeric() || v.is(ClassId::Logical) || v.is(ClassId::Char); }

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

bool Comparison::cellsEqual(const ValueArray& a, const ValueArray& b, std::size_t depth) {
    for (std::size_t i = 0; i < a.numel(); ++i)
        if (!equalAt(a.cellAt(i), b.cellAt(i), depth)) return false;
    return true;
}

bool Comparison::structsEqual(const ValueArray& a, const ValueArray& b, std::size_t depth) {
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
            if (!equalAt(x ? *x : empty, y ? *y : empty, depth)) return false;
        }
    }
    return true;
}

// A class's own isequal decides for its objects, through the one dispatch path.
std::optional<bool> equalByClassMethod(const ValueArray& a, const ValueArray& b) {
    const std::array<const ValueArray*, 2> inputs{&a, &b};
    value::ValueArrayPtr answer;
    if (!ocos::callMethodIfDefined("isequal", 1, &answer, 2, inputs.data())) return std::nullopt;
    return answer && answer->isScalar() && answer->toLogicalScalar().logicalAt(0);
}

// Elements of one class are equal when both hold no instance, share one, or
// hold instances whose properties have equal values.
bool Comparison::elementsEqual(const ValueArray& a, const ValueArray& b, std::size_t i, std::size_t depth) {
    const auto x = a.objectAt(i);
    const auto y = b.objectAt(i);
    if (x == y) return true;
    if (!x || !y) return false;
    for (const auto& property : a.classInfo()->getProperties()) {
        const std::string_view name = property.getName().view();
        if (!equalAt(ocos::getProperty(a, i, name), ocos::getProperty(b, i, name), depth)) return false;
    }
    return true;
}

// Objects are compared by value: same class, same size, and equal elements.
bool Comparison::objectsEqual(const ValueArray& a, const ValueArray& b, std::size_t depth) {
    if (!a.is(ClassId::Object) || !b.is(ClassId::Object)) return false;
    if (a.className() != b.className() || a.dims() != b.dims()) return false;
    if (const auto decided = equalByClassMethod(a, b)) return *decided;
    for (std::size_t i = 0; i < a.numel(); ++i)
        if (!elementsEqual(a, b, i, depth)) return false;
    return true;
}

// depth: how many containers enclose a and b; bounded so that the walk ends
// with a language error, not an exhausted stack.
bool Comparison::equalAt(const ValueArray& a, const ValueArray& b, std::size_t depth) {
    if (++depth > value::kMaxValueDepth) except::throwMessage(except::host::NestedTooDeep(value::kMaxValueDepth));
    if (a.is(ClassId::Object) || b.is(ClassId::Object)) return objectsEqual(a, b, depth);
    if (a.is(ClassId::Char) && b.is(ClassId::String)) return charEqualsString(a, b);
    if (a.is(ClassId::String) && b.is(ClassId::Char)) return charEqualsString(b, a);
    if (a.dims() != b.dims()) return false;
    if (isNumberLike(a) && isNumberLike(b)) return numbersEqual(a, b);
    if (a.classId() != b.classId()) return false;
    switch (a.classId()) {
        case ClassId::String: return stringsEqual(a, b);
        case ClassId::Cell:
        case ClassId::Struct: return containersEqual(a, b, depth);
        default: return false;
    }
}

bool Comparison::containersEqual(const ValueArray& a, const ValueArray& b, std::size_t depth) {
    const Pair pair{a.dataIdentity(), b.dataIdentity(), depth};
    if (equalPairs_.contains(pair)) return true;
    if (!(a.is(ClassId::Cell) ? cellsEqual(a, b, depth) : structsEqual(a, b, depth))) return false;
    equalPairs_.insert(pair);
    remembered_.push_back(a);
    remembered_.push_back(b);
    return true;
}

}  // namespace

bool valuesEqual(const ValueArray& a, const ValueArray& b) { return Comparison().equalAt(a, b, 0); }

}  // namespace orrery::shell::builtins
