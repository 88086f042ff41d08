// Conversion, recording and printing of user errors.
#include "shell/eval/user_error.hpp"

#include "shell/eval/eval_messages.hpp"

#include <orrery/interp/call_stack.hpp>
#include <orrery/text/text.hpp>

namespace orrery::shell::eval {

except::QException userErrorFrom(const except::IMsgIDException& failure, std::string functionName) {
    return except::QException(failure.identifier(), failure.message(), interp::currentStack(0), std::move(functionName));
}

except::QException outOfMemoryError() {
    const OutOfMemory key;
    return except::QException(key.identifier(), key.text(), interp::currentStack(0), "");
}

void recordLastError(const except::QException& error) {
    except::QException::LastError::Set(error.identifier(), error.message(), error.stack());
}

std::string uncaughtErrorText(const except::QException& error) {
    const std::string message = text::utf16ToUtf8Lossy(error.message());
    if (error.functionName().empty()) return "Error: " + message + "\n";
    return "Error using " + error.functionName() + "\n" + message + "\n";
}

}  // namespace orrery::shell::eval
