// Whether text typed at the prompt stops in the middle of a construct.
#include "shell/lang/parser.hpp"
#include "shell/lang/syntax_messages.hpp"

#include <orrery/except/msg_id_exception.hpp>
#include <orrery/except/qexception.hpp>

#include <variant>

namespace orrery::shell::lang {

bool needsMoreInput(std::string_view source) {
    // A trial parse must not change the last error that the user can read.
    struct KeepLastError {
        except::QException::LastError::Record saved = except::QException::LastError::Get();
        ~KeepLastError() { except::QException::LastError::Set(saved.identifier, saved.message, saved.stack); }
    } keep;
    try {
        const Program program = parse(source, u"<prompt>");
        // At the prompt a function is a block like any other: it waits for its "end".
        for (const auto& [name, function] : program.functions)
            if (function->endedWithSource) return true;
        return false;
    } catch (const except::IMsgIDException& failure) {
        if (failure.is(UnterminatedComment::identifierText)) return true;
        if (!failure.is(UnexpectedToken::identifierText)) return false;
        const auto& arguments = failure.key().arguments;
        const auto* found = arguments.size() > 4 ? std::get_if<std::u16string>(&arguments[4]) : nullptr;
        return found != nullptr && *found == u"end of input";
    }
}

}  // namespace orrery::shell::lang
