// Interruption of a running statement (Ctrl-C at the prompt): a signal handler
// only raises a flag; the evaluator looks at it between statements and loop
// iterations and stops with a catalogued error.
#pragma once

#include <orrery/except/qexception.hpp>

namespace orrery::shell::eval {

/// Asks the running statement to stop. Safe to call from a signal handler.
void requestInterrupt() noexcept;

/// Whether an interruption was asked for since the last call; clears the request.
bool takeInterrupt() noexcept;

/// Raises "ORRERY:shell:interrupted" when an interruption was asked for.
void checkInterrupt();

/// Whether the error is an interruption, which try/catch passes on.
bool isInterruption(const except::QException& error) noexcept;

}  // namespace orrery::shell::eval
