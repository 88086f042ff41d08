// Conversion, recording and printing of user errors.
#include "shell/eval/user_error.hpp"

#include "shell/eval/eval_messages.hpp"

#include <orrery/except/msg_id_exception.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/text/text.hpp>

#include <boost/lexical_cast/bad_lexical_cast.hpp>

#include <cmath>
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

namespace {

// "Error in NAME (line N)\n" for the innermost frame of the stack, when it is a
// named frame with a line: stacks given to rethrow by the user may hold
// anything that passed the stack check, and a frame without a place says nothing.
std::string whereText(const value::ValueArray& stack) {
    if (!stack.is(value::ClassId::Struct) || stack.isEmpty()) return {};
    const value::ValueArray* name = stack.field(0, "name");
    const value::ValueArray* line = stack.field(0, "line");
    if (name == nullptr || line == nullptr || !name->isTextScalar() || name->isEmpty()) return {};
    if (!line->is(value::ClassId::Double) || !line->isScalar()) return {};
    const double number = line->realAt(0);
    constexpr double kBeyondAnyLine = 1e18;  // keeps the conversion below in range
    if (!(number >= 1 && number < kBeyondAnyLine) || std::floor(number) != number) return {};
    return "Error in " + text::utf16ToUtf8Lossy(name->text()) + " (line " +
           std::to_string(static_cast<long long>(number)) + ")\n";
}

}  // namespace

std::string uncaughtErrorText(const except::QException& error) {
    const std::string message = text::utf16ToUtf8Lossy(error.message());
    const std::string head =
        error.functionName().empty() ? "Error: " + message : "Error using " + error.functionName() + "\n" + message;
    return head + "\n" + whereText(error.stack());
}

}  // namespace orrery::shell::eval
