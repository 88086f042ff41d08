// The warning manager: per-identifier states, modes, the last warning and the log slot.
#pragma once

#include <orrery/export.hpp>
#include <orrery/warning/warning_log.hpp>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace orrery::warning {

/// States of a warning, used as indices into the state names "off", "on", "error".
enum WarningState : int { kWarningOff = 0, kWarningOn = 1, kWarningError = 2 };
/// Display and debugging switches of the manager.
enum WarningMode : int { kModeDebug = 0, kModeBacktrace = 1, kModeVerbose = 2 };

using utWarningLogFactoryFcn = utWarningLog* (*)();
using utWarningLogDestroyFcn = void (*)(utWarningLog*);

/// The current context, or null when the host has none (see utSetWarningManagerContext).
ORRERY_API WarningManagerContext* utGetWarningManagerContext();
/// Host control: creates the process's context (true) or destroys it (false).
ORRERY_API void utSetWarningManagerContextPresent(bool present);

/// The identifier's own state, else the "all" default.
ORRERY_API int utGetWarningStatus(WarningManagerContext* context, std::string_view identifier);
/// Sets an identifier's state; "all" (any case) sets the default.
ORRERY_API void utSetWarningStatus(WarningManagerContext* context, std::string_view identifier, int state);
/// Calls visit(identifier, state) for every identifier with a state, in insertion order.
ORRERY_API void utIterateOverWarningStatuses(WarningManagerContext* context,
                                             const std::function<void(const std::string&, int)>& visit);
/// The number of identifiers with a state of their own.
ORRERY_API std::size_t utCountWarningsInWarningManager(WarningManagerContext* context);

ORRERY_API void utSetWarningMode(WarningManagerContext* context, int mode, bool on);
ORRERY_API bool utIsWarningModeOn(WarningManagerContext* context, int mode);

/// The last warning's message and identifier.
ORRERY_API void utGetLastWarningMsg(WarningManagerContext* context, std::u16string& message, std::string& identifier);
ORRERY_API void utSetLastWarningMsg(WarningManagerContext* context, std::string_view identifier,
                                    std::u16string_view message);
ORRERY_API std::string utGetLastPrintedWarningId(WarningManagerContext* context);
ORRERY_API void utSetLastPrintedWarningId(WarningManagerContext* context, std::string_view identifier);

/// The context's log (not owned by the caller), or null.
ORRERY_API utWarningLog* utGetWarningLog(WarningManagerContext* context);
/// Installs a log; the context destroys it through the destroy function when it goes.
ORRERY_API void utSetWarningLog(WarningManagerContext* context, utWarningLog* log);
ORRERY_API void utSetWarningLogFactoryFcn(utWarningLogFactoryFcn factory);
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

/// Console output (standard output), printf-style.
ORRERY_API void utPrintf(const char* format, ...) __attribute__((format(printf, 1, 2)));

}  // namespace orrery::warning
