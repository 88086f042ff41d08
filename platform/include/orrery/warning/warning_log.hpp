// utWarningLog: the warning manager's abstract warning log.
#pragma once

#include <orrery/catalogue/message_content.hpp>
#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdarg>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orrery::warning {

struct WarningManagerContext;

/// Receives every issued warning of a warning-manager context and keeps the
/// set of open log files.
class ORRERY_API utWarningLog {
public:
    utWarningLog();
    utWarningLog(const utWarningLog&);
    virtual ~utWarningLog();
    utWarningLog& operator=(const utWarningLog&);

    /// A warning made from a catalogue message; identifier overrides the message's own.
    virtual void warn(WarningManagerContext* context, const std::optional<std::string>& identifier,
                      const catalogue::MessageContent& message, bool wasDisabled) = 0;
    /// A warning with a printf-style format and its variable arguments (8-byte slots).
    virtual void warn(WarningManagerContext* context, const std::string& identifier, const std::u16string& format,
                      std::va_list* arguments, const std::u16string& message, bool wasDisabled) = 0;
    /// A warning with a format and count interpreter values as its arguments.
    virtual void warn(WarningManagerContext* context, const std::string& identifier, std::u16string_view format,
                      std::int32_t count, const value::ValueArray* const* values, const std::u16string& message,
                      bool wasDisabled) = 0;
    /// Starts logging to a file.
    virtual void openLog(const std::u16string& fileName) = 0;
    /// Stops logging to a file.
    virtual void closeLog(const std::u16string& fileName) = 0;
};

}  // namespace orrery::warning
