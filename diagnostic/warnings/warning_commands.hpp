// The state commands of the warning built-in: one handler per keyword.
#pragma once

#include <orrery/value/value_array.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <cstdint>
#include <optional>
#include <string>

namespace orrery::diagnostic {

/// A state command: requested outputs, output slots, the manager context and
/// the setting (the second input as ASCII text; none when absent or empty).
/// Outputs describe the states before the command changes them.
using WarningCommand = void (*)(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                                const std::optional<std::string>& setting);

/// on [all | identifier | last | backtrace | verbose]; "debug" is refused as obsolete.
void setStateOn(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                const std::optional<std::string>& setting);
/// off [all | identifier | last | backtrace | verbose]; "debug" is refused as obsolete.
void setStateOff(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                 const std::optional<std::string>& setting);
/// error identifier | last | all (all only while "AllWarningsCanBeErrors" is on);
/// no setting is the invalid-input error.
void setStateError(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                   const std::optional<std::string>& setting);
/// query [all | identifier | last | backtrace | verbose]: displays without
/// outputs, returns the state structure with them.
void queryState(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                const std::optional<std::string>& setting);
/// backtrace [on | off]: switches the backtrace mode (on when no setting).
void setBacktraceMode(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                      const std::optional<std::string>& setting);
/// verbose [on | off]: switches the verbose mode (on when no setting).
void setVerboseMode(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                    const std::optional<std::string>& setting);
/// debug [on | off]: always refused, as obsolete or as an illegal setting.
void refuseDebugMode(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                     const std::optional<std::string>& setting);
/// once, always: always refused as obsolete.
void refuseFrequency(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                     const std::optional<std::string>& setting);

/// The command runner: at most two inputs (else the too-many-inputs error); a
/// second input must be a char row or a non-missing one-element string (else
/// the invalid-input error), taken as ASCII text, and counts as absent when
/// empty. Then runs the command.
void runWarningCommand(WarningCommand command, std::int32_t nlhs, value::ValueArrayPtr* plhs,
                       warning::WarningManagerContext* context, std::int32_t nrhs,
                       const value::ValueArray* const* prhs);

}  // namespace orrery::diagnostic
