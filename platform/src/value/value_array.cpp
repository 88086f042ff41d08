// ValueArray: construction, inspection and copy-on-write access.
#include "value/value_data.hpp"

#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

namespace orrery::value {
namespace {

// Rounds to nearest and saturates, as the language converts to integer classes.
template <class T>
T convertNumber(double value) {
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(value);
    } else {
        if (std::isnan(value)) return 0;
        const double rounded = std::round(value);
        if (rounded <= static_cast<double>(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
        if (rounded >= static_cast<double>(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
        return static_cast<T>(rounded);
    }
}

Store makeStore(ClassId id, std::size_t n) {
    switch (id) {
        case ClassId::Double: return std::vector<double>(n);
        case ClassId::Single: return std::vector<float>(n);
        case ClassId::Int8: return std::vector<std::int8_t>(n);
        case ClassId::UInt8: return std::vector<std::uint8_t>(n);
        case ClassId::Int16: return std::vector<std::int16_t>(n);
        case ClassId::UInt16: return std::vector<std::uint16_t>(n);
        case ClassId::Int32: return std::vector<std::int32_t>(n);
        case ClassId::UInt32: return std::vector<std::uint32_t>(n);
        case ClassId::Int64: return std::vector<std::int64_t>(n);
        case ClassId::UInt64: return std::vector<std::uint64_t>(n);
        case ClassId::Logical: return LogicalStore{std::vector<std::uint8_t>(n)};
        case ClassId::Char: return std::u16string(n, u'\0');
        case ClassId::String: return StringStore{std::vector<std::optional<std::u16string>>(n, std::u16string())};
        case ClassId::Cell: return CellStore{std::vector<ValueArray>(n)};
        case ClassId::Struct: return StructStore{{}, {}, n};
        case ClassId::Object: return ObjectStore{nullptr, std::vector<std::shared_ptr<ocos::COSObject>>(n)};
    }
    return std::vector<double>(n);
}

// Grows with capacity to spare, so that repeated growth by one is amortised.
template <class Container, class Fill>
void resizeStore(Container& container, std::size_t n, const Fill& fill) {
    if (n > container.capacity()) container.reserve(std::max(n, 2 * container.capacity()));
    container.resize(n, fill);
}

template <class S>
constexpr bool isNumericStore = false;
template <class T>
constexpr bool isNumericStore<std::vector<T>> = std::is_arithmetic_v<T>;

[[noreturn]] void wrongClass(ClassId expected, ClassId actual) {
    except::throwMessage(
        except::host::WrongClass(text::asciiToUtf16(className(expected)), text::asciiToUtf16(className(actual))));
}

}  // namespace

std::string_view className(ClassId id) {
    static constexpr std::string_view names[] = {"double", "single", "int8",   "uint8",  "int16",   "uint16",
                                                 "int32",  "uint32", "int64",  "uint64", "logical", "char",
                                                 "string", "cell",   "struct", "object"};
    return names[static_cast<std::size_t>(id)];
}

// ---- special members -----------------------------------------------------------

ValueArray::ValueArray(ClassId id, Dims dims, std::shared_ptr<Data> data)
    : classId_(id), dims_(std::move(dims)), data_(std::move(data)) {}

// ---- the element held inside ---------------------------------------------------

template <class T>
T* ValueArray::scalarOf() noexcept {
    if constexpr (std::is_same_v<T, double>) return &scalar_.f64;
    if constexpr (std::is_same_v<T, float>) return &scalar_.f32;
    if constexpr (std::is_same_v<T, std::int8_t>) return &scalar_.i8;
    if constexpr (std::is_same_v<T, std::uint8_t>) return &scalar_.u8;
    if constexpr (std::is_same_v<T, std::int16_t>) return &scalar_.i16;
    if constexpr (std::is_same_v<T, std::uint16_t>) return &scalar_.u16;
    if constexpr (std::is_same_v<T, std::int32_t>) return &scalar_.i32;
    if constexpr (std::is_same_v<T, std::uint32_t>) return &scalar_.u32;
    if constexpr (std::is_same_v<T, std::int64_t>) return &scalar_.i64;
    if constexpr (std::is_same_v<T, std::uint64_t>) return &scalar_.u64;
}

double ValueArray::scalarReal() const noexcept {
    switch (classId_) {
        case ClassId::Double: return scalar_.f64;
        case ClassId::Single: return scalar_.f32;
        case ClassId::Int8: return scalar_.i8;
        case ClassId::UInt8:
        case ClassId::Logical: return scalar_.u8;
        case ClassId::Int16: return scalar_.i16;
        case ClassId::UInt16: return scalar_.u16;
        case ClassId::Int32: return scalar_.i32;
        case ClassId::UInt32: return scalar_.u32;
        case ClassId::Int64: return static_cast<double>(scalar_.i64);
        case ClassId::UInt64: return static_cast<double>(scalar_.u64);
        default: return 0.0;
    }
}

void ValueArray::setScalarReal(double value) noexcept {
    switch (classId_) {
        case ClassId::Double: scalar_.f64 = value; return;
        case ClassId::Single: scalar_.f32 = convertNumber<float>(value); return;
        case ClassId::Int8: scalar_.i8 = convertNumber<std::int8_t>(value); return;
        case ClassId::UInt8: scalar_.u8 = convertNumber<std::uint8_t>(value); return;
        case ClassId::Logical: scalar_.u8 = value != 0 ? 1 : 0; return;
        case ClassId::Int16: scalar_.i16 = convertNumber<std::int16_t>(value); return;
        case ClassId::UInt16: scalar_.u16 = convertNumber<std::uint16_t>(value); return;
        case ClassId::Int32: scalar_.i32 = convertNumber<std::int32_t>(value); return;
        case ClassId::UInt32: scalar_.u32 = convertNumber<std::uint32_t>(value); return;
        case ClassId::Int64: scalar_.i64 = convertNumber<std::int64_t>(value); return;
        case ClassId::UInt64: scalar_.u64 = convertNumber<std::uint64_t>(value); return;
        default: return;
    }
}

ValueArray::Data& ValueArray::mutate() {
    if (!data_) {
        data_ = std::make_shared<Data>(Data{makeStore(classId_, numel())});
        if (numel() == 1)
            std::visit(
                [this](auto& store) {
                    using S = std::decay_t<decltype(store)>;
                    if constexpr (isNumericStore<S>) {
                        store[0] = *scalarOf<typename S::value_type>();
                    } else if constexpr (std::is_same_v<S, LogicalStore>) {
                        store.values[0] = scalar_.u8;
                    }
                },
                data_->store);
    } else if (data_.use_count() > 1) {
        data_ = std::make_shared<Data>(*data_);
    }
    return *data_;
}

void ValueArray::checkIndex(std::size_t i) const {
    if (i >= numel()) except::throwMessage(except::host::IndexOutOfRange(i + 1, numel()));
}

void ValueArray::requireClass(ClassId id) const {
    if (classId_ != id) wrongClass(id, classId_);
}

// ---- construction --------------------------------------------------------------

ValueArray ValueArray::zeros(ClassId id, Dims dims) {
    const std::size_t n = dims.numel();
    if (fitsInside(id, n)) return ValueArray(id, std::move(dims));
    return ValueArray(id, std::move(dims), std::make_shared<Data>(Data{makeStore(id, n)}));
}

ValueArray ValueArray::doubles(Dims dims, std::vector<double> values) {
    if (values.size() != dims.numel()) except::throwMessage(except::host::BadDimensions());
    if (values.size() == 1) return scalar(values[0]);
    if (values.empty()) return ValueArray(ClassId::Double, std::move(dims));
    return ValueArray(ClassId::Double, std::move(dims), std::make_shared<Data>(Data{std::move(values)}));
}

ValueArray ValueArray::logicals(Dims dims, std::vector<bool> values) {
    if (values.size() != dims.numel()) except::throwMessage(except::host::BadDimensions());
    if (values.size() == 1) return logicalScalar(values[0]);
    if (values.empty()) return ValueArray(ClassId::Logical, std::move(dims));
    LogicalStore store{std::vector<std::uint8_t>(values.begin(), values.end())};
    return ValueArray(ClassId::Logical, std::move(dims), std::make_shared<Data>(Data{std::move(store)}));
}

ValueArray ValueArray::numericScalar(ClassId id, double value) {
    if (!isNumericClass(id) && id != ClassId::Logical && id != ClassId::Char) wrongClass(ClassId::Double, id);
    ValueArray result = zeros(id, Dims{1, 1});
    result.setRealAt(0, value);
    return result;
}

ValueArray ValueArray::chars(std::u16string_view text) {
    if (text.empty()) return charArray(Dims{0, 0}, {});
    return charArray(Dims{1, text.size()}, std::u16string(text));
}

ValueArray ValueArray::charsFromUtf8(std::string_view utf8) { return chars(text::utf8ToUtf16(utf8)); }

ValueArray ValueArray::charArray(Dims dims, std::u16string units) {
    if (units.size() != dims.numel()) except::throwMessage(except::host::BadDimensions());
    if (units.empty()) return ValueArray(ClassId::Char, std::move(dims));
    return ValueArray(ClassId::Char, std::move(dims), std::make_shared<Data>(Data{std::move(units)}));
}

ValueArray ValueArray::string(std::u16string_view text) { return strings(Dims{1, 1}, {std::u16string(text)}); }

ValueArray ValueArray::missingString() { return strings(Dims{1, 1}, {std::nullopt}); }

ValueArray ValueArray::strings(Dims dims, std::vector<std::optional<std::u16string>> elements) {
    if (elements.size() != dims.numel()) except::throwMessage(except::host::BadDimensions());
    return ValueArray(ClassId::String, std::move(dims), std::make_shared<Data>(Data{StringStore{std::move(elements)}}));
}

ValueArray ValueArray::cell(Dims dims) { return zeros(ClassId::Cell, std::move(dims)); }

ValueArray ValueArray::structArray(Dims dims, const std::vector<std::string>& fieldNames) {
    ValueArray result = zeros(ClassId::Struct, std::move(dims));
    for (const auto& name : fieldNames) result.addField(name);
    return result;
}

ValueArray ValueArray::stackStructure(std::size_t frames) {
    return structArray(Dims{frames, 1}, {"file", "name", "line"});
}

ValueArray ValueArray::objectArray(std::shared_ptr<const ocos::COSClassInfo> classInfo, Dims dims) {
    ValueArray result = zeros(ClassId::Object, std::move(dims));
    std::get<ObjectStore>(result.data_->store).classInfo = std::move(classInfo);
    return result;
}

// ---- inspection ----------------------------------------------------------------

std::string ValueArray::className() const {
    if (classId_ == ClassId::Object) {
        const auto& info = std::get<ObjectStore>(data_->store).classInfo;
        return info ? info->getName() : std::string("object");
    }
    return std::string(value::className(classId_));
}

void ValueArray::reshape(Dims dims) {
    if (dims.numel() != numel()) except::throwMessage(except::host::BadDimensions());
    dims_ = std::move(dims);
}

void ValueArray::resize(Dims dims) {
    const std::size_t n = dims.numel();
    std::visit(
        [n](auto& store) {
            using S = std::decay_t<decltype(store)>;
            if constexpr (std::is_same_v<S, LogicalStore>) {
                resizeStore(store.values, n, std::uint8_t{0});
            } else if constexpr (std::is_same_v<S, std::u16string>) {
                resizeStore(store, n, u'\0');
            } else if constexpr (std::is_same_v<S, StringStore>) {
                resizeStore(store.values, n, std::optional<std::u16string>());
            } else if constexpr (std::is_same_v<S, CellStore>) {
                resizeStore(store.values, n, ValueArray());
            } else if constexpr (std::is_same_v<S, StructStore>) {
                for (auto& values : store.values) resizeStore(values, n, std::optional<ValueArray>());
                store.elements = n;
            } else if constexpr (std::is_same_v<S, ObjectStore>) {
                resizeStore(store.instances, n, std::shared_ptr<ocos::COSObject>());
            } else {
                resizeStore(store, n, typename S::value_type{});
            }
        },
        mutate().store);
    dims_ = std::move(dims);
}

// ---- numbers -------------------------------------------------------------------

double ValueArray::storedRealAt(std::size_t i) const {
    checkIndex(i);
    if (!data_) return scalarReal();
    if (classId_ == ClassId::Logical) return std::get<LogicalStore>(data_->store).values[i];
    if (classId_ == ClassId::Char) return std::get<std::u16string>(data_->store)[i];
    if (!isNumeric()) wrongClass(ClassId::Double, classId_);
    return std::visit(
        [i](const auto& store) -> double {
            using S = std::decay_t<decltype(store)>;
            if constexpr (isNumericStore<S>)
                return static_cast<double>(store[i]);
            else
                return 0.0;
        },
        data_->store);
}

void ValueArray::setRealAt(std::size_t i, double value) {
    checkIndex(i);
    if (!data_) return setScalarReal(value);
    if (classId_ == ClassId::Logical) return setLogicalAt(i, value != 0);
    if (classId_ == ClassId::Char) {
        std::get<std::u16string>(mutate().store)[i] = convertNumber<std::uint16_t>(value);
        return;
    }
    if (!isNumeric()) wrongClass(ClassId::Double, classId_);
    std::visit(
        [i, value](auto& store) {
            using S = std::decay_t<decltype(store)>;
            if constexpr (isNumericStore<S>) store[i] = convertNumber<typename S::value_type>(value);
        },
        mutate().store);
}

template <class T>
std::span<const T> ValueArray::data() const {
    requireClass(classIdOf<T>());
    if (!data_) return {const_cast<ValueArray*>(this)->scalarOf<T>(), numel()};
    return std::get<std::vector<T>>(data_->store);
}

template <class T>
std::span<T> ValueArray::mutableData() {
    requireClass(classIdOf<T>());
    if (!data_) return {scalarOf<T>(), numel()};
    return std::get<std::vector<T>>(mutate().store);
}

#define ORRERY_INSTANTIATE_DATA(T)                                      \
    template ORRERY_API std::span<const T> ValueArray::data<T>() const; \
    template ORRERY_API std::span<T> ValueArray::mutableData<T>();
ORRERY_INSTANTIATE_DATA(double)
ORRERY_INSTANTIATE_DATA(float)
ORRERY_INSTANTIATE_DATA(std::int8_t)
ORRERY_INSTANTIATE_DATA(std::uint8_t)
ORRERY_INSTANTIATE_DATA(std::int16_t)
ORRERY_INSTANTIATE_DATA(std::uint16_t)
ORRERY_INSTANTIATE_DATA(std::int32_t)
ORRERY_INSTANTIATE_DATA(std::uint32_t)
ORRERY_INSTANTIATE_DATA(std::int64_t)
ORRERY_INSTANTIATE_DATA(std::uint64_t)
#undef ORRERY_INSTANTIATE_DATA

bool ValueArray::logicalAt(std::size_t i) const {
    requireClass(ClassId::Logical);
    checkIndex(i);
    if (!data_) return scalar_.u8 != 0;
    return std::get<LogicalStore>(data_->store).values[i] != 0;
}

void ValueArray::setLogicalAt(std::size_t i, bool value) {
    requireClass(ClassId::Logical);
    checkIndex(i);
    if (!data_) {
        scalar_.u8 = value ? 1 : 0;
        return;
    }
    std::get<LogicalStore>(mutate().store).values[i] = value ? 1 : 0;
}

ValueArray ValueArray::toLogicalScalar() const {
    if (!isScalar()) except::throwMessage(except::host::NotScalar());
    if (classId_ == ClassId::Logical) return *this;
    if (!isNumeric() && classId_ != ClassId::Char) except::throwMessage(except::host::NotLogicalConvertible());
    const double value = realAt(0);
    if (std::isnan(value)) except::throwMessage(except::host::NotLogicalConvertible());
    return logicalScalar(value != 0);
}

// ---- text ----------------------------------------------------------------------

std::u16string_view ValueArray::chars() const {
    requireClass(ClassId::Char);
    if (!data_) return {};
    return std::get<std::u16string>(data_->store);
}

const std::optional<std::u16string>& ValueArray::stringAt(std::size_t i) const {
    requireClass(ClassId::String);
    checkIndex(i);
    return std::get<StringStore>(data_->store).values[i];
}

void ValueArray::setStringAt(std::size_t i, std::optional<std::u16string> text) {
    requireClass(ClassId::String);
    checkIndex(i);
    std::get<StringStore>(mutate().store).values[i] = std::move(text);
}

bool ValueArray::isTextScalar() const noexcept {
    if (classId_ == ClassId::Char) return dims_.count() == 2 && dims_.rows() == 1;
    if (classId_ == ClassId::String) return isScalar() && std::get<StringStore>(data_->store).values[0].has_value();
    return false;
}

bool ValueArray::isTextScalarTolerant() const noexcept {
    return isTextScalar() || (classId_ == ClassId::Char && dims_ == Dims{0, 0});
}

std::u16string ValueArray::text() const { return std::u16string(textView()); }

std::u16string_view ValueArray::textView() const {
    if (!isTextScalarTolerant()) wrongClass(ClassId::Char, classId_);
    if (classId_ == ClassId::Char) return data_ ? std::u16string_view(std::get<std::u16string>(data_->store)) : u"";
    return *std::get<StringStore>(data_->store).values[0];
}

std::string ValueArray::textUtf8() const { return text::utf16ToUtf8(text()); }

// ---- cells ---------------------------------------------------------------------

const ValueArray& ValueArray::cellAt(std::size_t i) const {
    requireClass(ClassId::Cell);
    checkIndex(i);
    return std::get<CellStore>(data_->store).values[i];
}

void ValueArray::setCellAt(std::size_t i, ValueArray value) {
    requireClass(ClassId::Cell);
    checkIndex(i);
    std::get<CellStore>(mutate().store).values[i] = std::move(value);
}

ValueArray& ValueArray::mutableCellAt(std::size_t i) {
    requireClass(ClassId::Cell);
    checkIndex(i);
    return std::get<CellStore>(mutate().store).values[i];
}

// ---- structs -------------------------------------------------------------------

const std::vector<std::string>& ValueArray::fieldNames() const {
    requireClass(ClassId::Struct);
    return std::get<StructStore>(data_->store).fieldNames;
}

bool ValueArray::hasField(std::string_view name) const {
    const auto& names = fieldNames();
    return std::find(names.begin(), names.end(), name) != names.end();
}

void ValueArray::addField(std::string_view name) {
    if (hasField(name)) return;
    auto& store = std::get<StructStore>(mutate().store);
    store.fieldNames.emplace_back(name);
    store.values.emplace_back(store.elements);
}

const ValueArray* ValueArray::field(std::size_t i, std::string_view name) const {
    const auto& names = fieldNames();
    checkIndex(i);
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) return nullptr;
    const auto& slot = std::get<StructStore>(data_->store).values[static_cast<std::size_t>(found - names.begin())][i];
    return slot ? &*slot : nullptr;
}

void ValueArray::setField(std::size_t i, std::string_view name, ValueArray value) {
    checkIndex(i);
    addField(name);
    auto& store = std::get<StructStore>(mutate().store);
    const auto found = std::find(store.fieldNames.begin(), store.fieldNames.end(), name);
    store.values[static_cast<std::size_t>(found - store.fieldNames.begin())][i] = std::move(value);
}

ValueArray* ValueArray::mutableField(std::size_t i, std::string_view name) {
    if (field(i, name) == nullptr) return nullptr;
    auto& store = std::get<StructStore>(mutate().store);
    const auto found = std::find(store.fieldNames.begin(), store.fieldNames.end(), name);
    return &*store.values[static_cast<std::size_t>(found - store.fieldNames.begin())][i];
}

// ---- objects -------------------------------------------------------------------

const std::shared_ptr<const ocos::COSClassInfo>& ValueArray::classInfo() const {
    requireClass(ClassId::Object);
    return std::get<ObjectStore>(data_->store).classInfo;
}

bool ValueArray::isValidElement(std::size_t i) const {
    requireClass(ClassId::Object);
    return i < numel() && std::get<ObjectStore>(data_->store).instances[i] != nullptr;
}

std::shared_ptr<ocos::COSObject> ValueArray::objectAt(std::size_t i) const {
    requireClass(ClassId::Object);
    checkIndex(i);
    return std::get<ObjectStore>(data_->store).instances[i];
}

void ValueArray::setObjectAt(std::size_t i, std::shared_ptr<ocos::COSObject> instance) {
    requireClass(ClassId::Object);
    checkIndex(i);
    std::get<ObjectStore>(mutate().store).instances[i] = std::move(instance);
}

}  // namespace orrery::value
