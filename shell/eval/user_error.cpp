// Conversion, recording and printing of user errors.
#include "shell/eval/user_error.hpp"

#include "shell/eval/eval_messages.hpp"

#include <orrery/except/msg_id_exception.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/text/text.hpp>

#include <boost/lexical_cast/bad_lexical_cast.hpp>

#include <new>

namespace orrery::shell::eval {

void rethrowAsUserError(std::string functionName) {
    try {
        throw;
    } catch (const except::QException&) {
        throw;
    } catch (const except::IMsgIDException& failure) {
        throw except::QException(failure.identifier(), failure.message(), interp::currentStack(0),
                                 std::move(functionName));
    } catch (const std::bad_alloc&) {
        const OutOfMemory key;
        throw except::QException(key.identifier(), key.text(), interp::currentStack(0), "");
    } catch (const boost::bad_lexical_cast&) {
        // a text from outside (a log file's argument or line) that is not the number it should be
        const BadConversion key;
        throw except::QException(key.identifier(), key.text(), interp::currentStack(0), std::move(functionName));
    }
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
