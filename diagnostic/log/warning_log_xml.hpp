// WarningLogXML: the module's warning log. It records every issued warning,
// remembers it as the last warning, writes it to the open log files, publishes
// it and emits it to the issued-warning signal.
#pragma once

#include "diagnostic/log/bn_warning_log.hpp"
#include "diagnostic/log/log_output_stream.hpp"

#include <orrery/events/event_publisher.hpp>
#include <orrery/lang/warning.hpp>
#include <orrery/text/text.hpp>
#include <orrery/warning/warning_operation.hpp>

#include <cstdarg>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace orrery::lang::diagnostic {

/// The warning manager's log as this module implements it. While it lives it
/// registers an output filter that suppresses the printing of warnings when the
/// feature switch "SuppressCommandLineOutput" is registered and enabled (queried
/// for each warning); logging is not affected.
///
/// Every warning passes through the same steps: it becomes the context's last
/// warning; a record is built (identifier, message, format, typed arguments,
/// disabled flag, current call stack, time stamp), written to every open log,
/// published (eventPublisher, publishIssuedWarning) and emitted to the
/// issued-warning signal; last, only for a warning that was not disabled, the
/// context's registered warning callback is called. When nothing can observe the
/// record (no open log, no signal slot, no event listener) it is not built.
class WarningLogXML : public bnWarningLog {
public:
    WarningLogXML();
    ~WarningLogXML() override;
    WarningLogXML(const WarningLogXML&) = delete;
    WarningLogXML& operator=(const WarningLogXML&) = delete;

    /// A catalogue message: its text in the current locale, its arguments, an
    /// empty format, and the given identifier or else the message's own (a
    /// component "ORRERY:legacy_two_part" is logged as "ORRERY").
    void warn(warning::WarningManagerContext* context, const std::optional<std::string>& identifier,
              const catalogue::MessageContent& message, bool wasDisabled) override;
    /// A printf-style format with its arguments, typed by analyseFormat; the
    /// rewritten format is logged.
    void warn(warning::WarningManagerContext* context, const std::string& identifier, const std::u16string& format,
              std::va_list* arguments, const std::u16string& message, bool wasDisabled) override;
    /// A format with count interpreter values (none when count <= 0), each typed by
    /// argumentOfValue; the format is logged as given.
    void warn(warning::WarningManagerContext* context, const std::string& identifier, std::u16string_view format,
              std::int32_t count, const value::ValueArray* const* values, const std::u16string& message,
              bool wasDisabled) override;
    /// Adds the log file to the set of open logs under its normalised name
    /// (normaliseLogFileName) and opens it for writing (openLogForWriting). Raises
    /// "ORRERY:warning:LogFile:FileOpen" with the name when it is open already, and
    /// "FileOpenCase" with the open log's name when that differs only in letter
    /// case; a failed open leaves the set unchanged.
    void openLog(const std::u16string& fileName) override;
    /// Removes the log file from the set, which closes it; its footer is already
    /// in place. Raises "ORRERY:warning:LogFile:FileNotOpen" with the normalised
    /// name when no open log has it.
    void closeLog(const std::u16string& fileName) override;

    /// The current virtual machine's event publisher; empty without a machine or
    /// when asking fails (never raises).
    virtual std::shared_ptr<events::EventPublisher> eventPublisher() const;
    /// Publishes exactly one event for the record through eventPublisher:
    /// IssuedWarningEvent when it was disabled, IssuedEnabledWarningEvent
    /// otherwise; nothing without a publisher.
    virtual void publishIssuedWarning(const Warning& warning) const;

private:
    /// Open log files by normalised name, names compared without case.
    using OpenLogs = std::map<std::u16string, std::shared_ptr<LogOutputStream>, text::CaseInsensitiveLess>;

    template <class AddFormatAndArguments>
    void logWarning(warning::WarningManagerContext* context, const std::string& identifier,
                    const std::u16string& message, bool wasDisabled, AddFormatAndArguments&& addFormatAndArguments);
    bool recordIsObserved() const;
    void writeToOpenLogs(const Warning& warning);

    OpenLogs openLogs_;
    std::string element_;  // the element being written, its room kept for the next
    warning::WarningFilter outputFilter_;
};

}  // namespace orrery::lang::diagnostic
