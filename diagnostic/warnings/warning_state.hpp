// Warning states as the built-ins name them, and the manager context they act on.
#pragma once

#include <orrery/value/value_array.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <string_view>

namespace orrery::diagnostic {

/// The current virtual machine's warning manager context; an internal error
/// when there is none, since every warning built-in needs one.
warning::WarningManagerContext* warningContext();

/// "off", "on" or "error".
std::string_view stateName(warning::WarningState state);

/// The state name as a char row, made once per process and shared.
const value::ValueArray& stateNameValue(warning::WarningState state);

/// "on" or "off" for a mode's switch.
warning::WarningState modeState(warning::WarningManagerContext* context, warning::WarningMode mode);

/// The state in force for a target: the mode's switch for exactly "debug" and
/// for "backtrace" and "verbose" (any case), else the identifier's own state or
/// the "all" default.
warning::WarningState currentState(warning::WarningManagerContext* context, std::string_view target);

/// True for a valid message identifier and for "all" or "last" in any case.
bool isIdentifierOrPseudo(std::string_view target);

/// Case-insensitive (ASCII) comparison with a keyword.
bool isWord(std::string_view text, std::string_view keyword);

}  // namespace orrery::diagnostic
