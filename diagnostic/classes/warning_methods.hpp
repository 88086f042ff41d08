// Method descriptions of the Warning class: comparison (isequal, eq, ne), sort
// and its display (disp).
#pragma once

#include <orrery/ocos/method_info.hpp>

#include <cstdint>
#include <string>

namespace orrery::lang::diagnostic {

/// Common base of the Warning class's method and function descriptions: a name
/// and a signature declared by the derived description.
class WarningBaseMI : public ocos::COSMethodInfo {
public:
    explicit WarningBaseMI(std::string name);
};

/// A method of Warning instances: its first input is a Warning array.
class WarningInstanceMI : public WarningBaseMI {
public:
    explicit WarningInstanceMI(std::string name);
};

/// Element-wise comparison of two Warning arrays to a logical array: equal
/// sizes compare element by element; otherwise one of them must be a scalar,
/// compared with every element of the other ("ORRERY:warning:compare:dimagree"
/// when neither is). The answer has the size of the array operand.
class WarningCompareMI : public WarningInstanceMI {
public:
    explicit WarningCompareMI(std::string name);

protected:
    /// The element-wise answer of the records' operator==.
    static value::ValueArray equalElements(const value::ValueArray& a, const value::ValueArray& b);
};

/// eq(A, B): element-wise equality of records.
class EqMI final : public WarningCompareMI {
public:
    EqMI();
    void invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                const value::ValueArray* const* prhs) const override;
};

/// ne(A, B): the element-wise negation of eq(A, B), with its errors and sizes.
class NeMI final : public WarningCompareMI {
public:
    NeMI();
    void invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                const value::ValueArray* const* prhs) const override;
};

/// isequal(A, B): true when the sizes agree and every pair of records is equal;
/// false for different sizes (no error).
class IsEqualMI final : public WarningInstanceMI {
public:
    IsEqualMI();
    void invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                const value::ValueArray* const* prhs) const override;
};

/// [B, I] = sort(A): each column (the row, for a row vector) sorted by the
/// records' operator<, stably; I holds, for each place, the 1-based position
/// within its column (or the row) that the record came from. Arrays of more than
/// two dimensions raise "ORRERY:warning:sort:NDSort".
class SortMI final : public WarningInstanceMI {
public:
    SortMI();
    void invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                const value::ValueArray* const* prhs) const override;
};

/// disp(A): prints the table of warningTable on the console.
class DispMI final : public WarningInstanceMI {
public:
    DispMI();
    void invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                const value::ValueArray* const* prhs) const override;
};

}  // namespace orrery::lang::diagnostic
