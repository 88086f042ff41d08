// Concatenation of values into one array.
#include "shell/values/concat.hpp"

#include "shell/values/elements.hpp"
#include "shell/values/value_messages.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

namespace orrery::shell::values {
namespace {

using value::ClassId;
using value::Dims;
using value::ValueArray;

[[noreturn]] void classClash(const ValueArray& a, const ValueArray& b) {
    except::throwMessage(ConcatenationClass(text::asciiToUtf16(a.className()), text::asciiToUtf16(b.className())));
}

[[noreturn]] void sizeClash(const Dims& a, const Dims& b) {
    except::throwMessage(ConcatenationSize(text::asciiToUtf16(a.text()), text::asciiToUtf16(b.text())));
}

bool isPlaceholder(const ValueArray& v) { return v.is(ClassId::Double) && v.dims() == Dims{0, 0}; }

// The class all values are brought to; the first value decides between
// structs and objects, which mix with nothing else.
ClassId commonClass(const ValueRows& rows) {
    const ValueArray* first = nullptr;
    ClassId joined = ClassId::Double;
    bool anyString = false;
    bool anyCell = false;
    for (const auto& row : rows) {
        for (const auto& v : row) {
            if (isPlaceholder(v)) continue;
            anyString = anyString || v.is(ClassId::String);
            anyCell = anyCell || v.is(ClassId::Cell);
            if (first == nullptr) {
                first = &v;
                joined = v.classId();
            } else if (isNumberLike(*first) && isNumberLike(v)) {
                joined = joinedNumberClass(joined, v.classId());
            } else if (!anyString && !anyCell &&
                       (v.classId() != first->classId() ||
                        (v.is(ClassId::Object) && v.classInfo() != first->classInfo()))) {
                classClash(*first, v);
            }
        }
    }
    if (anyString) return ClassId::String;
    if (anyCell) return ClassId::Cell;
    return joined;
}

ValueArray joinSideBySide(const std::vector<ValueArray>& parts) {
    std::size_t rows = parts[0].dims().rows();
    std::size_t columns = 0;
    for (const auto& part : parts) {
        if (part.ndims() > 2 || part.dims().rows() != rows) sizeClash(parts[0].dims(), part.dims());
        columns += part.dims().cols();
    }
    checkElementCount(static_cast<double>(rows) * static_cast<double>(columns));
    ValueArray result = blankLike(parts[0], Dims{rows, columns});
    std::size_t offset = 0;
    for (const auto& part : parts)
        for (std::size_t i = 0; i < part.numel(); ++i) copyElement(result, offset++, part, i);
    return result;
}

ValueArray joinOnTop(const std::vector<ValueArray>& parts) {
    const std::size_t columns = parts[0].dims().cols();
    std::size_t rows = 0;
    for (const auto& part : parts) {
        if (part.ndims() > 2 || part.dims().cols() != columns) sizeClash(parts[0].dims(), part.dims());
        rows += part.dims().rows();
    }
    checkElementCount(static_cast<double>(rows) * static_cast<double>(columns));
    ValueArray result = blankLike(parts[0], Dims{rows, columns});
    std::size_t rowOffset = 0;
    for (const auto& part : parts) {
        const std::size_t partRows = part.dims().rows();
        for (std::size_t i = 0; i < part.numel(); ++i)
            copyElement(result, (i / partRows) * rows + rowOffset + i % partRows, part, i);
        rowOffset += partRows;
    }
    return result;
}

// The parts that are not 0-by-0, or the first part when all are (so that the
// result keeps its class). Other empty parts take part like any array: two
// 0-by-3 side by side are 0-by-6.
std::vector<ValueArray> withoutEmpties(std::vector<ValueArray> parts) {
    std::vector<ValueArray> kept;
    for (auto& part : parts)
        if (part.dims() != Dims{0, 0}) kept.push_back(std::move(part));
    if (kept.empty() && !parts.empty()) kept.push_back(std::move(parts.front()));
    return kept;
}

}  // namespace

ValueArray concatenate(const ValueRows& rows) {
    const ClassId target = commonClass(rows);
    std::vector<ValueArray> joinedRows;
    for (const auto& row : rows) {
        std::vector<ValueArray> parts;
        for (const auto& v : row)
            if (!isPlaceholder(v) || row.size() == 1) parts.push_back(convertTo(v, target));
        parts = withoutEmpties(std::move(parts));
        if (!parts.empty()) joinedRows.push_back(parts.size() == 1 ? parts[0] : joinSideBySide(parts));
    }
    joinedRows = withoutEmpties(std::move(joinedRows));
    if (joinedRows.empty()) return ValueArray();
    return joinedRows.size() == 1 ? joinedRows[0] : joinOnTop(joinedRows);
}

ValueArray cellLiteral(const ValueRows& rows) {
    ValueRows wrapped;
    for (const auto& row : rows) {
        ValueRow cells;
        for (const auto& v : row) {
            ValueArray cell = ValueArray::cell(Dims{1, 1});
            cell.setCellAt(0, v);  // a cell value nests rather than joins
            cells.push_back(std::move(cell));
        }
        wrapped.push_back(std::move(cells));
    }
    if (wrapped.empty()) return ValueArray::cell(Dims{0, 0});
    return concatenate(wrapped);
}

}  // namespace orrery::shell::values
