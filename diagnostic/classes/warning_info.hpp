// WarningInfo: the class system's description of orrery.internal.diagnostic.Warning.
#pragma once

#include <orrery/ocos/class_info.hpp>

#include <string_view>

namespace orrery::lang::diagnostic {

/// The full path of the Warning class.
inline constexpr std::string_view kWarningClassPath = "orrery.internal.diagnostic.Warning";

/// The Warning class: seven read-write properties over the record's fields, in
/// this order and with these declared types: identifier ("asciiString"), message
/// and format ("unicodeString"), arguments ("cell"), stack ("struct"), time
/// ("double scalar") and wasDisabled ("logical scalar"); then the methods
/// isequal, eq, ne and sort, and disp, which shows the array as a table. A property read followed by a write of the
/// value read leaves the record unchanged.
class WarningInfo final : public ocos::COSClassInfo {
public:
    WarningInfo();
};

}  // namespace orrery::lang::diagnostic
