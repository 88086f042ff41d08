// The storage behind a ValueArray: one alternative per class, in ClassId order.
#pragma once

#include <orrery/ocos/class_info.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace orrery::value {

struct LogicalStore {
    std::vector<std::uint8_t> values;
};
struct StringStore {
    std::vector<std::optional<std::u16string>> values;
};
struct CellStore {
    std::vector<ValueArray> values;
};
/// Field-major: values[field][element]; an empty optional is an unset field.
struct StructStore {
    std::vector<std::string> fieldNames;
    std::vector<std::vector<std::optional<ValueArray>>> values;
    std::size_t elements = 0;
};
struct ObjectStore {
    std::shared_ptr<const ocos::COSClassInfo> classInfo;
    std::vector<std::shared_ptr<ocos::COSObject>> instances;
};

/// The alternative's index equals the ClassId of the value.
using Store = std::variant<std::vector<double>, std::vector<float>, std::vector<std::int8_t>, std::vector<std::uint8_t>,
                           std::vector<std::int16_t>, std::vector<std::uint16_t>, std::vector<std::int32_t>,
                           std::vector<std::uint32_t>, std::vector<std::int64_t>, std::vector<std::uint64_t>,
                           LogicalStore, std::u16string, StringStore, CellStore, StructStore, ObjectStore>;

/// Dropping the last reference to a block frees the blocks nested in it one
/// after another from a work list, not recursively, so values nested to any
/// depth are freed without exhausting the machine stack.
struct ValueArray::Data {
    explicit Data(Store contents) : store(std::move(contents)) {}
    Data(const Data&) = default;
    Data(Data&&) = default;
    Data& operator=(const Data&) = delete;
    Data& operator=(Data&&) = delete;
    ~Data();

    Store store;
};

}  // namespace orrery::value
