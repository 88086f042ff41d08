// Readable test failures for typed format arguments: "int32 7", "string abc".
#pragma once

#include <orrery/lang/printf_argument.hpp>
#include <orrery/text/text.hpp>

#include <ostream>
#include <string>

namespace orrery::lang {

/// Found by GoogleTest through argument-dependent lookup.
inline void PrintTo(const PrintfArgument& argument, std::ostream* os) {
    std::u16string value;
    const std::u16string type = argument.getTypeAndValue(value);
    *os << text::utf16ToUtf8Lossy(type) << ' ' << text::utf16ToUtf8Lossy(value);
}

}  // namespace orrery::lang
