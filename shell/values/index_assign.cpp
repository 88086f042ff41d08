// Assignment and deletion by index, with growth and the class rules.
#include "shell/values/elements.hpp"
#include "shell/values/index_positions.hpp"
#include "shell/values/indexing.hpp"
#include "shell/values/value_messages.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <optional>

namespace orrery::shell::values {
namespace {

using value::ClassId;
using value::Dims;
using value::ValueArray;

[[noreturn]] void classClash(const ValueArray& a, const ValueArray& b) {
    except::throwMessage(AssignmentClass(text::asciiToUtf16(a.className()), text::asciiToUtf16(b.className())));
}

// b brought to the class the assignment stores, and the array converted to
// that class when its own differs (nothing when it keeps its class). Nothing
// of the array changes here, so a clash leaves it as it was.
std::optional<ValueArray> unifyClasses(const ValueArray& a, ValueArray& b) {
    if (a.isEmpty() && a.is(ClassId::Double)) return blankLike(b, a.dims());
    if (a.classId() == b.classId()) {
        if (a.is(ClassId::Object) && a.classInfo() != b.classInfo()) classClash(a, b);
        return std::nullopt;
    }
    if (isNumberLike(a) && isNumberLike(b)) {
        ClassId target = a.classId();
        if (a.is(ClassId::Logical) || (value::isIntegerClass(b.classId()) && !value::isIntegerClass(target)))
            target = b.classId();
        b = convertTo(b, target);
        if (target == a.classId()) return std::nullopt;
        return convertTo(a, target);
    }
    if (a.is(ClassId::String) && isNumberLike(b)) {
        b = convertTo(b, ClassId::String);
        if (b.numel() == 1) return std::nullopt;
    }
    classClash(a, b);
}

// True when every element of an array of size `from` has the same linear
// index in an array of size `to`: the sizes agree below the last dimension
// longer than one.
bool keepsPositions(const Dims& from, const Dims& to) {
    std::size_t last = 0;
    for (std::size_t k = 0; k < from.count(); ++k)
        if (from[k] > 1) last = k;
    for (std::size_t k = 0; k < last; ++k)
        if (from[k] != to[k]) return false;
    return true;
}

// The array given a new size, its elements kept at their subscripts: in its
// own storage when their linear indices stay, else in a new array.
void resize(ValueArray& a, const Dims& dims) {
    if (a.dims() == dims) return;
    if (a.isEmpty() || keepsPositions(a.dims(), dims)) {
        a.resize(dims);
        return;
    }
    ValueArray result = blankLike(a, dims);
    for (std::size_t i = 0; i < a.numel(); ++i) {
        auto subscripts = subscriptsOf(i, a.dims());
        subscripts.resize(std::max(subscripts.size(), dims.count()), 0);
        copyElement(result, linearIndexOf(subscripts, dims), a, i);
    }
    a = std::move(result);
}

// The size after a linear index reaches `needed` places.
Dims grownLinear(const Dims& dims, std::size_t needed) {
    if (needed <= dims.numel()) return dims;
    if (dims.numel() == 0)
        return dims.count() == 2 && dims.cols() == 1 && dims.rows() == 0 ? Dims{needed, 1} : Dims{1, needed};
    if (dims.count() == 2 && dims.rows() == 1) return Dims{1, needed};
    if (dims.count() == 2 && dims.cols() == 1) return Dims{needed, 1};
    except::throwMessage(AmbiguousGrowth());
}

struct Target {
    std::vector<std::size_t> positions;
    Dims dims;  // the array's size after the assignment
};

Target linearTarget(const ValueArray& a, const IndexArg& arg) {
    auto positions = indexPositions(arg, a.numel());
    const Dims dims = grownLinear(a.dims(), neededExtent(positions));
    return {std::move(positions), dims};
}

Target subscriptTarget(const ValueArray& a, const IndexArgs& args, const ValueArray& b) {
    const std::size_t n = args.size();
    std::vector<std::vector<std::size_t>> lists;
    std::vector<std::size_t> extents;
    bool grows = false;
    for (std::size_t k = 0; k < n; ++k) {
        std::size_t extent = endValue(a.dims(), k, n);
        // ':' over an empty array takes its length from the value assigned
        if (args[k].colon && a.isEmpty() && !b.isScalar()) extent = std::max(extent, b.dims()[k]);
        lists.push_back(indexPositions(args[k], extent));
        const std::size_t needed = std::max(extent, neededExtent(lists.back()));
        grows = grows || needed != endValue(a.dims(), k, n);
        extents.push_back(needed);
    }
    if (grows && n < a.dims().count() && extents.back() != endValue(a.dims(), n - 1, n))
        except::throwMessage(AmbiguousGrowth());
    const Dims dims = grows ? Dims(extents) : a.dims();
    return {cartesianPositions(lists, extents), dims};
}

ValueArray deleteLinear(const ValueArray& a, const IndexArg& arg) {
    auto positions = indexPositions(arg, a.numel());
    requireWithin(positions, a.numel(), 0, true);
    std::vector<bool> removed(a.numel(), false);
    for (std::size_t p : positions) removed[p] = true;
    const auto kept = static_cast<std::size_t>(std::count(removed.begin(), removed.end(), false));
    if (arg.colon) return blankLike(a, Dims{0, 0});
    const bool column = a.ndims() == 2 && a.dims().cols() == 1 && a.dims().rows() != 1;
    ValueArray result = blankLike(a, column ? Dims{kept, 1} : Dims{1, kept});
    for (std::size_t i = 0, j = 0; i < a.numel(); ++i)
        if (!removed[i]) copyElement(result, j++, a, i);
    return result;
}

ValueArray deleteSlices(const ValueArray& a, const IndexArgs& args) {
    const std::size_t n = args.size();
    std::size_t slicing = n;
    for (std::size_t k = 0; k < n; ++k) {
        const bool whole =
            args[k].colon || indexPositions(args[k], endValue(a.dims(), k, n)).size() == endValue(a.dims(), k, n);
        if (whole) continue;
        if (slicing != n) except::throwMessage(DeletionShape());
        slicing = k;
    }
    if (slicing == n) return blankLike(a, Dims{0, 0});
    const std::size_t extent = endValue(a.dims(), slicing, n);
    auto positions = indexPositions(args[slicing], extent);
    requireWithin(positions, extent, slicing, false);
    std::vector<bool> removed(extent, false);
    for (std::size_t p : positions) removed[p] = true;
    std::vector<std::size_t> sizes;
    for (std::size_t k = 0; k < n; ++k) sizes.push_back(endValue(a.dims(), k, n));
    const Dims before(sizes);
    sizes[slicing] = static_cast<std::size_t>(std::count(removed.begin(), removed.end(), false));
    ValueArray result = blankLike(a, Dims(sizes));
    for (std::size_t i = 0, j = 0; i < a.numel(); ++i)
        if (!removed[subscriptsOf(i, before)[slicing]]) copyElement(result, j++, a, i);
    return result;
}

// a(k) = b for one numeric position k and a scalar b of a's numeric class, at
// an existing element or just past the end of a vector: written where it lies
// (the data copied only when shared), with no position list or temporary.
// False, with nothing changed, for every other assignment.
bool assignOneElement(ValueArray& a, const IndexArgs& args, const ValueArray& b) {
    if (args.size() != 1 || args[0].colon || !b.isScalar() || b.classId() != a.classId() || !a.isNumeric())
        return false;
    const ValueArray& index = args[0].value;
    if (!index.isScalar() || !index.isNumeric()) return false;
    const auto position = wholeCount(index.realAt(0));
    if (!position || *position < 1 || *position > a.numel() + 1) return false;
    if (*position > a.numel()) {
        const Dims grown = grownLinear(a.dims(), *position);
        checkElementCount(static_cast<double>(grown.numel()));
        a.resize(grown);
    }
    copyElement(a, *position - 1, b, 0);
    return true;
}

}  // namespace

void assignIndexed(ValueArray& a, const IndexArgs& args, const ValueArray& b) {
    if (assignOneElement(a, args, b)) return;
    const bool deletion = b.is(ClassId::Double) && b.dims() == Dims{0, 0};
    if (deletion) {
        a = args.size() == 1 ? deleteLinear(a, args[0]) : deleteSlices(a, args);
        return;
    }
    ValueArray source = b;
    std::optional<ValueArray> converted = unifyClasses(a, source);
    // Every check comes before the first change (a conversion keeps the size).
    const Target target = args.size() == 1 ? linearTarget(a, args[0]) : subscriptTarget(a, args, source);
    if (source.numel() != 1 && source.numel() != target.positions.size())
        except::throwMessage(AssignmentCount(source.numel(), target.positions.size()));
    checkElementCount(static_cast<double>(target.dims.numel()));
    if (converted) a = std::move(*converted);
    resize(a, target.dims);
    for (std::size_t i = 0; i < target.positions.size(); ++i)
        copyElement(a, target.positions[i], source, source.numel() == 1 ? 0 : i);
}

}  // namespace orrery::shell::values
