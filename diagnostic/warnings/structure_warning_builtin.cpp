// Restoring warning states from a structure array: every element is checked
// before the first is applied.
#include "diagnostic/warnings/warning_builtins.hpp"

#include "diagnostic/warnings/warning_commands.hpp"
#include "diagnostic/warnings/warning_ids.hpp"
#include "diagnostic/warnings/warning_keywords.hpp"
#include "diagnostic/warnings/warning_state.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/internal_error.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <string>
#include <vector>

namespace {

using orrery::diagnostic::isWord;
using orrery::value::ValueArray;
namespace except = orrery::except;
namespace ids = orrery::diagnostic::ids;

// One element of the structure, checked: its state word and its target.
struct StateCommand {
    std::string state;
    std::string identifier;
};

bool isText(const ValueArray* field) { return field != nullptr && field->isTextScalar(); }

bool isAcceptedTarget(std::string_view identifier) {
    return orrery::diagnostic::isIdentifierOrPseudo(identifier) || isWord(identifier, "backtrace") ||
           isWord(identifier, "verbose") || identifier == "debug";
}

// The checks of one element, in order; index counts from 1.
StateCommand checkElement(const ValueArray& states, std::size_t i) {
    const double index = static_cast<double>(i + 1);
    const ValueArray* state = states.field(i, "state");
    if (!isText(state)) except::throwMessage(ids::NonStringState(index));
    const std::string stateText = orrery::text::utf16ToUtf8Lossy(state->text());
    if (!isWord(stateText, "on") && !isWord(stateText, "off") && !isWord(stateText, "error"))
        except::throwMessage(ids::BadStateValue(index));
    const ValueArray* identifier = states.field(i, "identifier");
    if (!isText(identifier)) except::throwMessage(ids::NonStringIdentifier(index));
    const std::u16string identifierText = identifier->text();
    if (!orrery::text::isAscii(identifierText)) except::throwMessage(ids::BadIdentifierValue(index));
    std::string ascii = orrery::text::utf16ToAscii(identifierText);
    if (!isAcceptedTarget(ascii)) except::throwMessage(ids::BadIdentifierValue(index));
    return {stateText, std::move(ascii)};
}

std::vector<StateCommand> checkElements(const ValueArray& states) {
    if (!states.hasField("state") || !states.hasField("identifier")) except::throwMessage(ids::MissingStructureField());
    std::vector<StateCommand> commands;
    commands.reserve(states.numel());
    for (std::size_t i = 0; i < states.numel(); ++i) commands.push_back(checkElement(states, i));
    return commands;
}

}  // namespace

void bnStructureWarningFcn(std::int32_t nlhs, orrery::value::ValueArrayPtr* plhs, std::int32_t nrhs,
                           const ValueArray* const* prhs) {
    if (nlhs > 1) except::throwTooManyOutputs();
    if (nrhs < 1) except::throwNotEnoughInputs();
    const ValueArray& states = *prhs[0];
    if (!states.is(orrery::value::ClassId::Struct)) except::throwInvalidInput();
    auto* context = orrery::diagnostic::warningContext();
    const std::vector<StateCommand> commands = checkElements(states);
    auto previous = ValueArray::structArray(states.dims(), {"identifier", "state"});
    // Deliberately, an element that fails here leaves the ones before it applied.
    for (std::size_t i = 0; i < commands.size(); ++i) {
        const auto command = orrery::diagnostic::findWarningCommand(commands[i].state, 1);
        if (command == nullptr) except::internalError("warning states", "a checked state names no command");
        if (nlhs > 0) {
            previous.setField(i, "identifier", ValueArray::charsFromUtf8(commands[i].identifier));
            previous.setField(
                i, "state",
                orrery::diagnostic::stateNameValue(orrery::diagnostic::currentState(context, commands[i].identifier)));
        }
        command(0, nullptr, context, commands[i].identifier);
    }
    if (nlhs > 0) plhs[0] = orrery::value::makeValue(std::move(previous));
}
