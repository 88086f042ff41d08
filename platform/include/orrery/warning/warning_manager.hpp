// The warning manager: per-identifier states, modes, the last warning and the log slot.
#pragma once

#include <orrery/export.hpp>
#include <orrery/warning/warning_log.hpp>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace orrery::warning {

/// States of a warning; their values index the state names "off", "on", "error".
enum class WarningState { Off = 0, On = 1, Error = 2 };
/// Display and debugging switches of the manager.
enum class WarningMode { Debug = 0, Backtrace = 1, Verbose = 2 };

using utWarningLogFactoryFcn = utWarningLog* (*)();
using utWarningLogDestroyFcn = void (*)(utWarningLog*);

/// The current virtual machine's context, or null when there is no machine.
ORRERY_API WarningManagerContext* utGetWarningManagerContext();

/// The identifier's own state, else the "all" default: one hashed lookup, however many
/// identifiers have a state.
ORRERY_API WarningState utGetWarningStatus(WarningManagerContext* context, std::string_view identifier);
/// Sets an identifier's own state. "all" (any case) sets the default and removes
/// every identifier's own state, so that each then has the new default. A value
/// that is not a WarningState is an internal error.
ORRERY_API void utSetWarningStatus(WarningManagerContext* context, std::string_view identifier, WarningState state);
/// Calls visit(identifier, state) for every identifier with a state of its own, in
/// the order they were first given one since "all" was last set.
ORRERY_API void utIterateOverWarningStatuses(WarningManagerContext* context,
                                             const std::function<void(const std::string&, WarningState)>& visit);
/// The number of identifiers with a state of their own, kept as they are set.
ORRERY_API std::size_t utCountWarningsInWarningManager(WarningManagerContext* context);

/// Switches a mode on or off. A value that is not a WarningMode is an internal error.
ORRERY_API void utSetWarningMode(WarningManagerContext* context, WarningMode mode, bool on);
/// Whether a mode is on. A value that is not a WarningMode is an internal error.
ORRERY_API bool utIsWarningModeOn(WarningManagerContext* context, WarningMode mode);

/// The last warning's message and identifier.
ORRERY_API void utGetLastWarningMsg(WarningManagerContext* context, std::u16string& message, std::string& identifier);
ORRERY_API void utSetLastWarningMsg(WarningManagerContext* context, std::string_view identifier,
                                    std::u16string_view message);
ORRERY_API std::string utGetLastPrintedWarningId(WarningManagerContext* context);
ORRERY_API void utSetLastPrintedWarningId(WarningManagerContext* context, std::string_view identifier);

/// The context's log (owned by the context), or null.
ORRERY_API utWarningLog* utGetWarningLog(WarningManagerContext* context);
/// Installs a log (null: none). The context owns it: it destroys the log through
/// the destroy function installed at this moment when the log is replaced, set
/// to null, or the context goes; a log set while no destroy function is installed
/// is never destroyed by the context. Setting the log that is already set keeps it.
ORRERY_API void utSetWarningLog(WarningManagerContext* context, utWarningLog* log);
/// The process-wide function that makes a log (null: none).
ORRERY_API void utSetWarningLogFactoryFcn(utWarningLogFactoryFcn factory);
/// The process-wide function that destroys a log (null: none); logs already set
/// keep the one installed when they were set.
ORRERY_API void utSetWarningLogDestroyFcn(utWarningLogDestroyFcn destroy);
ORRERY_API utWarningLogFactoryFcn utGetWarningLogFactoryFcn();
ORRERY_API utWarningLogDestroyFcn utGetWarningLogDestroyFcn();

/// Registers the host's warning callback (empty function to remove it).
ORRERY_API void utRegisterWarningCallback(WarningManagerContext* context, std::function<void()> callback);
/// Calls the registered warning callback, if any.
ORRERY_API void utCallRegisteredWarningCallback(WarningManagerContext* context);

/// The identifier rule: ASCII; two or more components separated by single colons;
/// each starts with a letter and continues with letters, digits, "_" or "-".
ORRERY_API bool utIsValidMessageIdentifier(std::string_view identifier);

/// Writes printf-style formatted text to the console's output stream.
ORRERY_API void utPrintf(const char* format, ...) __attribute__((format(printf, 1, 2)));

}  // namespace orrery::warning
