// The time of a warning as a warning log writes it.
#pragma once

#include <orrery/interp/dates.hpp>

#include <string>

namespace orrery::lang::diagnostic {

/// "YYYY-MM-DD hh:mm:ss.sss +hhmm": the serial day number in the platform's
/// log-time form (interp::DateTextForm::LogTime), with the given offset from UTC. Hours and minutes of the offset are
/// printed each with its own sign, so minus three and a half hours reads "-03-30".
std::string logTimeText(double serial, interp::UtcOffset offset);

/// The same with the local standard-time offset from UTC at the moment of writing
/// (interp::localUtcOffsetAt the current second), not at the warning's time.
std::string logTimeText(double serial);

/// Appends logTimeText(serial) to out. The text of the last time written on this
/// thread is kept and written again for the same time and offset (warnings issued
/// within one clock tick).
void appendLogTimeText(std::string& out, double serial);

}  // namespace orrery::lang::diagnostic
