// The command runner: checks the inputs of a state command and runs it.
#include "diagnostic/warnings/warning_commands.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/text/text.hpp>

namespace orrery::diagnostic {

void runWarningCommand(WarningCommand command, std::int32_t nlhs, value::ValueArrayPtr* plhs,
                       warning::WarningManagerContext* context, std::int32_t nrhs,
                       const value::ValueArray* const* prhs) {
    if (nrhs > 2) except::throwTooManyInputs();
    std::optional<std::string> setting;
    if (nrhs == 2) {
        // Tolerant: the language's '' is the 0-by-0 char array, and counts as absent.
        if (!prhs[1]->isTextScalarTolerant()) except::throwInvalidInput();
        // A setting that is not ASCII is handed on as converted, to be refused
        // by the command as an unknown setting.
        std::string text = text::utf16ToUtf8Lossy(prhs[1]->text());
        if (!text.empty()) setting = std::move(text);
    }
    command(nlhs, plhs, context, setting);
}

}  // namespace orrery::diagnostic
