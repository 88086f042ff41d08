// Interruption of a running statement (Ctrl-C at the prompt): a signal handler
// only raises a flag; the evaluator looks at it between statements and loop
// iterations and stops with a catalogued error. A run can also be bounded in
// check points and time, and is then stopped the same way when it exceeds them.
#pragma once

#include <orrery/except/qexception.hpp>

#include <chrono>
#include <cstdint>

namespace orrery::shell::eval {

/// Asks the running statement to stop. Safe to call from a signal handler.
void requestInterrupt() noexcept;

/// Whether an interruption was asked for since the last call; clears the request.
bool takeInterrupt() noexcept;

/// Raises "ORRERY:shell:interrupted" when an interruption was asked for, or
/// when the run has used up the bound set by limitRun.
void checkInterrupt();

/// Bounds what runs from now on: once `steps` check points have passed, or
/// `time` has elapsed, every further checkInterrupt raises the interruption,
/// until the next call. Zero steps lift the bound. For running untrusted
/// programs in bounded time (the fuzzing of scripts).
void limitRun(std::uint64_t steps, std::chrono::milliseconds time);

/// Whether the error is an interruption, which try/catch passes on.
bool isInterruption(const except::QException& error) noexcept;

}  // namespace orrery::shell::eval
