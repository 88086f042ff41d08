// Interpreter values decoded from a fuzz input: texts (UTF-8 and raw UTF-16
// units), numbers of every class, logicals, empties, strings, cells, structures
// with chosen or made-up field names, stack structures and message objects.
#pragma once

#include "fuzz/fuzz_input.hpp"

#include <orrery/catalogue/message_content.hpp>
#include <orrery/except/msg_id_exception.hpp>
#include <orrery/ocos/message_object.hpp>
#include <orrery/text/text.hpp>
#include <orrery/value/value_array.hpp>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::fuzz {

/// Field names the built-ins look for, so structures often have them.
inline constexpr std::array<std::string_view, 8> kFieldNames = {"identifier", "message", "stack", "file",
                                                                "name",       "line",    "state", "x"};

/// Catalogue identifiers for message objects.
inline constexpr std::array<std::string_view, 3> kMessageIds = {
    "ORRERY:msgInputAnalyzer:nonScalarInput", "ORRERY:warning:LogFile:FileOpen", "ORRERY:assertion:failed"};

/// A field name: one the built-ins read, or a made-up identifier.
inline std::string fieldName(FuzzInput& in) {
    if (in.flag()) return std::string(kFieldNames[in.below(kFieldNames.size())]);
    std::string name = "f";
    for (const char c : in.text(12))
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_') name += c;
    return name;
}

/// A text: UTF-8 bytes (invalid sequences replaced) or raw UTF-16 code units,
/// lone surrogates included.
inline std::u16string textUnits(FuzzInput& in) {
    if (in.flag()) return text::utf8ToUtf16Lossy(in.text());
    const std::string bytes = in.text();
    std::u16string units;
    for (std::size_t k = 0; k + 1 < bytes.size(); k += 2)
        units += static_cast<char16_t>((static_cast<unsigned char>(bytes[k]) << 8) |
                                       static_cast<unsigned char>(bytes[k + 1]));
    return units;
}

inline value::ValueArray decodeValue(FuzzInput& in, int depth = 0);

inline value::ValueArray messageObject(FuzzInput& in) {
    if (in.flag()) return value::ValueArray::objectArray(ocos::messageClass(), value::Dims{1, in.below(3)});
    catalogue::MessageContent content{std::string(kMessageIds[in.below(kMessageIds.size())]), {}};
    for (std::size_t k = in.below(3); k > 0; --k) {
        if (in.flag())
            content.arguments.emplace_back(textUnits(in));
        else
            content.arguments.emplace_back(in.number());
    }
    return ocos::makeMessageObject(std::move(content));
}

inline value::ValueArray structure(FuzzInput& in, int depth, value::Dims dims) {
    auto result = value::ValueArray::structArray(dims);
    for (std::size_t fields = in.below(4); fields > 0; --fields) {
        const std::string name = fieldName(in);
        for (std::size_t i = 0; i < result.numel(); ++i) result.setField(i, name, decodeValue(in, depth + 1));
        if (result.numel() == 0) result = value::ValueArray::structArray(dims, {name});
    }
    return result;
}

inline value::ValueArray stackStructure(FuzzInput& in, int depth) {
    const std::size_t frames = in.below(4);
    auto stack = value::ValueArray::stackStructure(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        stack.setField(i, "file", in.flag() ? value::ValueArray::chars(textUnits(in)) : decodeValue(in, depth + 1));
        stack.setField(i, "name", in.flag() ? value::ValueArray::chars(textUnits(in)) : decodeValue(in, depth + 1));
        stack.setField(i, "line", in.flag() ? value::ValueArray::scalar(in.number()) : decodeValue(in, depth + 1));
    }
    return stack;
}

/// One value; containers hold further values, three levels deep at most.
inline value::ValueArray decodeValue(FuzzInput& in, int depth) {
    using value::ClassId;
    using value::Dims;
    using value::ValueArray;
    const std::size_t kinds = depth < 3 ? 14 : 9;
    switch (in.below(kinds)) {
        case 0: return ValueArray::chars(textUnits(in));
        case 1: return ValueArray::chars(text::utf8ToUtf16Lossy(in.text()));
        case 2: return ValueArray::scalar(in.number());
        case 3: {
            std::vector<double> values(in.below(5));
            for (double& v : values) v = in.number();
            const std::size_t n = values.size();
            return in.flag() ? ValueArray::doubles(Dims{1, n}, std::move(values))
                             : ValueArray::doubles(Dims{n, 1}, std::move(values));
        }
        case 4: {
            if (in.flag()) return ValueArray::logicalScalar(in.flag());
            std::vector<bool> values(in.below(4));
            for (std::size_t k = 0; k < values.size(); ++k) values[k] = in.flag();
            const std::size_t n = values.size();
            return ValueArray::logicals(Dims{1, n}, std::move(values));
        }
        case 5: {
            // empties of several shapes and classes
            const Dims dims = in.flag() ? Dims{0, 0} : Dims{in.below(2), 0};
            return ValueArray::zeros(in.flag() ? ClassId::Double : ClassId::Char, dims);
        }
        case 6:
            switch (in.below(3)) {
                case 0: return ValueArray::missingString();
                case 1: return ValueArray::string(textUnits(in));
                default: {
                    std::vector<std::optional<std::u16string>> elements{textUnits(in), std::nullopt, textUnits(in)};
                    return ValueArray::strings(Dims{1, 3}, std::move(elements));
                }
            }
        case 7: {
            constexpr std::array classes = {ClassId::Single, ClassId::Int8,   ClassId::UInt8,
                                            ClassId::Int16,  ClassId::UInt16, ClassId::Int32,
                                            ClassId::UInt32, ClassId::Int64,  ClassId::UInt64};
            return ValueArray::numericScalar(classes[in.below(classes.size())], in.number());
        }
        case 8: {
            try {
                return messageObject(in);
            } catch (const except::IMsgIDException&) {
                return ValueArray();
            }
        }
        case 9: {
            auto cell = ValueArray::cell(Dims{1, in.below(4)});
            for (std::size_t i = 0; i < cell.numel(); ++i) cell.setCellAt(i, decodeValue(in, depth + 1));
            return cell;
        }
        case 10: return structure(in, depth, Dims{1, 1});
        case 11: return structure(in, depth, in.flag() ? Dims{2, 1} : Dims{1, 0});
        case 12: return stackStructure(in, depth);
        default: {
            // an error structure, the shape rethrow and lasterror read
            auto error = ValueArray::structArray(Dims{1, 1});
            error.setField(0, "message", in.flag() ? ValueArray::chars(textUnits(in)) : decodeValue(in, depth + 1));
            error.setField(
                0, "identifier",
                in.flag() ? ValueArray::chars(text::utf8ToUtf16Lossy(in.text())) : decodeValue(in, depth + 1));
            if (in.flag()) error.setField(0, "stack", stackStructure(in, depth));
            return error;
        }
    }
}

}  // namespace orrery::fuzz
