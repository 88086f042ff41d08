// `exit` and `quit`: ending the session from inside a program.
#pragma once

namespace orrery::shell::eval {

/// Thrown by `exit(n)` and `quit(n)`. It is not an error: `try` does not catch
/// it and it passes every boundary up to the command, which exits with status.
struct ExitRequest {
    int status = 0;
};

}  // namespace orrery::shell::eval
