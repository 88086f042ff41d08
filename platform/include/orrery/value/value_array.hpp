// ValueArray: the interpreter's dynamically typed array value.
#pragma once

#include <orrery/export.hpp>
#include <orrery/value/class_id.hpp>
#include <orrery/value/dims.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::ocos {
class COSClassInfo;
class COSObject;
}  // namespace orrery::ocos

namespace orrery::value {

/// A dynamically typed N-dimensional array. Copies share their data; the first
/// change through a non-const accessor makes the copy's data its own
/// (copy-on-write). Elements are indexed linearly, column-major, from 0.
/// Wrong-class access and out-of-range indexing raise catalogued errors.
/// Numeric and logical scalars and empty numeric, logical and char arrays hold
/// their element inside the value, with no data block: making, copying and
/// dropping them never allocates.
class ORRERY_API ValueArray {
public:
    /// A 0-by-0 double array.
    ValueArray() noexcept : ValueArray(ClassId::Double, Dims()) {}
    // Inline, so that copying and dropping a value held inside costs no call.
    ~ValueArray() = default;
    ValueArray(const ValueArray&) = default;
    ValueArray(ValueArray&&) noexcept = default;
    ValueArray& operator=(const ValueArray&) = default;
    ValueArray& operator=(ValueArray&&) noexcept = default;

    // ---- construction -------------------------------------------------------
    /// An array of a numeric class, logical or char, filled with zeros.
    static ValueArray zeros(ClassId id, Dims dims);
    static ValueArray scalar(double value) {
        ValueArray result(ClassId::Double, Dims{1, 1});
        result.scalar_.f64 = value;
        return result;
    }
    static ValueArray doubles(Dims dims, std::vector<double> values);
    static ValueArray logicalScalar(bool value) {
        ValueArray result(ClassId::Logical, Dims{1, 1});
        result.scalar_.u8 = value ? 1 : 0;
        return result;
    }
    static ValueArray logicals(Dims dims, std::vector<bool> values);
    /// A numeric scalar of the given class (value converted with saturation).
    static ValueArray numericScalar(ClassId id, double value);
    /// A 1-by-N char row; the empty text gives a 0-by-0 char array.
    static ValueArray chars(std::u16string_view text);
    static ValueArray charsFromUtf8(std::string_view utf8);
    static ValueArray charArray(Dims dims, std::u16string units);
    /// A 1-by-1 string.
    static ValueArray string(std::u16string_view text);
    static ValueArray missingString();
    static ValueArray strings(Dims dims, std::vector<std::optional<std::u16string>> elements);
    /// A cell array of 0-by-0 doubles.
    static ValueArray cell(Dims dims);
    /// A struct array whose elements have the given fields, all unset.
    static ValueArray structArray(Dims dims, const std::vector<std::string>& fieldNames = {});
    /// The stack structure: N-by-1 struct with fields file, name, line (unset).
    static ValueArray stackStructure(std::size_t frames);
    /// An object array of the class; every element starts invalid.
    static ValueArray objectArray(std::shared_ptr<const ocos::COSClassInfo> classInfo, Dims dims);

    // ---- inspection ---------------------------------------------------------
    ClassId classId() const noexcept { return classId_; }
    /// The class name; for objects the class's full dotted name.
    std::string className() const;
    const Dims& dims() const noexcept { return dims_; }
    std::size_t numel() const noexcept { return dims_.numel(); }
    bool isEmpty() const noexcept { return numel() == 0; }
    bool isScalar() const noexcept { return numel() == 1; }
    std::size_t ndims() const noexcept { return dims_.count(); }
    bool is(ClassId id) const noexcept { return classId_ == id; }
    bool isNumeric() const noexcept { return isNumericClass(classId_); }
    /// Changes the size without changing the elements; the element count must agree.
    void reshape(Dims dims);
    /// Changes the size keeping every element at its linear index (the caller
    /// makes sure that is where it belongs); added elements are blank: zeros,
    /// missing strings, empty cells, unset fields, invalid objects. Storage
    /// grows geometrically, so growing by one element at a time is amortised.
    void resize(Dims dims);

    // ---- numbers, logicals and chars ------------------------------------------
    /// Element i of a numeric, logical or char array as a double.
    double realAt(std::size_t i) const {
        if (classId_ == ClassId::Double && !data_ && i == 0 && dims_.numel() == 1) return scalar_.f64;
        return storedRealAt(i);
    }
    void setRealAt(std::size_t i, double value);
    /// Direct typed access; T must match the class (double, float, intN_t, uintN_t).
    template <class T>
    std::span<const T> data() const;
    template <class T>
    std::span<T> mutableData();
    bool logicalAt(std::size_t i) const;
    void setLogicalAt(std::size_t i, bool value);
    /// Converts a scalar of any numeric, logical or char class to logical; NaN and
    /// other classes raise "ORRERY:value:notLogicalConvertible".
    ValueArray toLogicalScalar() const;

    // ---- text -----------------------------------------------------------------
    /// All units of a char array, column-major.
    std::u16string_view chars() const;
    /// Element i of a string array; empty optional for a missing string.
    const std::optional<std::u16string>& stringAt(std::size_t i) const;
    void setStringAt(std::size_t i, std::optional<std::u16string> text);
    /// Strict text scalar: a 1-by-N char row (N >= 0) or a non-missing 1-by-1 string.
    bool isTextScalar() const noexcept;
    /// Tolerant text scalar: strict, plus the 0-by-0 char array.
    bool isTextScalarTolerant() const noexcept;
    /// The text of a (tolerant) text scalar; raises "ORRERY:value:wrongClass" otherwise.
    std::u16string text() const;
    /// The same text without a copy, valid while this array and its data live unchanged.
    std::u16string_view textView() const;
    std::string textUtf8() const;

    // ---- cells ----------------------------------------------------------------
    const ValueArray& cellAt(std::size_t i) const;
    void setCellAt(std::size_t i, ValueArray value);
    /// Element i for changing in place (the cell's data made its own first);
    /// valid until this array is resized, copied from or destroyed.
    ValueArray& mutableCellAt(std::size_t i);

    // ---- structs --------------------------------------------------------------
    const std::vector<std::string>& fieldNames() const;
    bool hasField(std::string_view name) const;
    /// Adds a field (unset in every element) if absent.
    void addField(std::string_view name);
    /// The field of element i, or null when the field is absent or unset.
    const ValueArray* field(std::size_t i, std::string_view name) const;
    /// Sets the field of element i, adding the field when absent.
    void setField(std::size_t i, std::string_view name, ValueArray value);
    /// The field of element i for changing in place, or null when absent or
    /// unset; valid as mutableCellAt's result.
    ValueArray* mutableField(std::size_t i, std::string_view name);

    // ---- objects --------------------------------------------------------------
    const std::shared_ptr<const ocos::COSClassInfo>& classInfo() const;
    bool isValidElement(std::size_t i) const;
    /// The instance of element i (null when invalid).
    std::shared_ptr<ocos::COSObject> objectAt(std::size_t i) const;
    void setObjectAt(std::size_t i, std::shared_ptr<ocos::COSObject> instance);

    // ---- sharing --------------------------------------------------------------
    /// A copy sharing the data (the language's assignment).
    ValueArray sharedCopy() const { return *this; }
    /// The data block's address: equal for two arrays while they share one block;
    /// null for a value held inside the array (a scalar or an empty array).
    const void* dataIdentity() const noexcept { return data_.get(); }

    struct Data;

private:
    /// The element of a scalar held inside the value, one member per class.
    union Scalar {
        double f64;
        float f32;
        std::int8_t i8;
        std::uint8_t u8;  // also logical
        std::int16_t i16;
        std::uint16_t u16;
        std::int32_t i32;
        std::uint32_t u32;
        std::int64_t i64;
        std::uint64_t u64;
    };

    ValueArray(ClassId id, Dims dims, std::shared_ptr<Data> data);
    /// A value without a data block: numeric or logical with at most one
    /// element (zero), or an empty char array.
    ValueArray(ClassId id, Dims dims) noexcept : classId_(id), dims_(std::move(dims)) {}
    /// True for the classes and sizes that are held inside the value.
    static bool fitsInside(ClassId id, std::size_t numel) noexcept {
        return numel == 0 ? isNumericClass(id) || id == ClassId::Logical || id == ClassId::Char
                          : numel == 1 && (isNumericClass(id) || id == ClassId::Logical);
    }
    template <class T>
    T* scalarOf() noexcept;
    double scalarReal() const noexcept;
    /// realAt for every case but a double scalar held inside.
    double storedRealAt(std::size_t i) const;
    void setScalarReal(double value) noexcept;
    void checkIndex(std::size_t i) const;
    void requireClass(ClassId id) const;
    /// The data block, made from the element held inside when there is none,
    /// and copied first when shared.
    Data& mutate();

    ClassId classId_;
    Dims dims_;
    Scalar scalar_{.u64 = 0};
    std::shared_ptr<Data> data_;  // null while the element is held inside
};

/// How deep operations that walk into cells, structs and objects (equality, for
/// one) may descend; deeper values raise "ORRERY:value:nestedTooDeep".
inline constexpr std::size_t kMaxValueDepth = 1000;

/// Owning handle of a value: what built-ins put in their output slots.
using ValueArrayPtr = std::unique_ptr<ValueArray>;

/// Makes an owning handle holding the value.
inline ValueArrayPtr makeValue(ValueArray value) { return std::make_unique<ValueArray>(std::move(value)); }

/// The built-in signature: requested outputs, output slots, inputs (borrowed).
using BuiltinFunction = void (*)(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs,
                                 const ValueArray* const* prhs);

}  // namespace orrery::value
