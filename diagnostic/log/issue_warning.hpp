// Issuing a warning and handing it to the warning manager's log: the path of
// every warning the warning built-in issues.
#pragma once

#include <orrery/value/value_array.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <cstdint>
#include <string>
#include <string_view>

namespace orrery::lang::diagnostic {

/// Issues the warning through the interpreter's warning operation without
/// logging (its state decides: "off" shows nothing, "on" prints, "error" raises
/// the user error here), then hands it to the context's log, made and installed
/// first when the context has none: identifier, format, the count format
/// arguments, the formatted message and whether the warning was disabled.
void issueAndLogWarning(warning::WarningManagerContext* context, const std::string& identifier,
                        std::u16string_view format, std::int32_t count, const value::ValueArray* const* values,
                        const std::u16string& message);

/// The context's log. When it has none, one is made (by the installed factory
/// function, else as a WarningLogXML that the context destroys through this
/// module's destroy function) and installed first; null when it cannot be made.
warning::utWarningLog* getOrCreateWarningLog(warning::WarningManagerContext* context);

}  // namespace orrery::lang::diagnostic
