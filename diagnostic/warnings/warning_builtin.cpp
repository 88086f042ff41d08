// The warning built-in: sorts a call into issuing a warning, a state command, the
// list of states or restoring states from a structure.
#include "diagnostic/warnings/warning_builtins.hpp"

#include "diagnostic/module/message_input_analyzer.hpp"
#include "diagnostic/warnings/issue_from_call.hpp"
#include "diagnostic/warnings/warning_commands.hpp"
#include "diagnostic/warnings/warning_ids.hpp"
#include "diagnostic/warnings/warning_keywords.hpp"
#include "diagnostic/warnings/warning_state.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/text/text.hpp>
#include <orrery/warning/warning_operation.hpp>

namespace {

using orrery::diagnostic::isWord;
using orrery::diagnostic::MessageInputAnalyzer;
using orrery::diagnostic::MessageKind;
using orrery::value::ValueArray;
using orrery::value::ValueArrayPtr;
using orrery::warning::WarningManagerContext;

// Two inputs whose first is an identifier, "all" or "last" and whose second is a
// state word: the user wrote a state command backwards. Deliberately, the call is
// issued as a warning after saying so, neither run nor refused.
bool looksReversed(const MessageInputAnalyzer& analysis, std::string_view first) {
    if (analysis.identifierIndex() != 1 && !isWord(first, "all") && !isWord(first, "last")) return false;
    const ValueArray* second = analysis.rawInputs()[1];
    if (!second->isTextScalar()) return false;
    const std::string word = orrery::text::utf16ToUtf8Lossy(second->textView());
    return isWord(word, "query") || isWord(word, "on") || isWord(word, "off");
}

void runTextCall(std::int32_t nlhs, ValueArrayPtr* plhs, WarningManagerContext* context, std::int32_t nrhs,
                 const ValueArray* const* prhs, MessageInputAnalyzer& analysis) {
    // An identifier holds a colon, which no keyword does: it is never a command,
    // and it is already at hand as text.
    const bool isIdentifier = analysis.identifierIndex() == 1;
    const std::string converted = isIdentifier ? std::string() : orrery::text::utf16ToUtf8Lossy(prhs[0]->textView());
    const std::string& first = isIdentifier ? analysis.identifier() : converted;
    const auto command = isIdentifier ? nullptr : orrery::diagnostic::findWarningCommand(first, nrhs - 1);
    if (command != nullptr) return orrery::diagnostic::runWarningCommand(command, nlhs, plhs, context, nrhs, prhs);
    if (nrhs == 2 && looksReversed(analysis, first)) {
        orrery::warning::issueCatalogueWarning(
            context, orrery::catalogue::MessageContent{std::string(orrery::diagnostic::ids::kInputsOutOfOrder), {}});
    }
    orrery::diagnostic::issueTextWarning(nlhs, plhs, context, analysis);
}

}  // namespace

void bnFullWarningFcn(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    if (nlhs > 2) orrery::except::throwTooManyOutputs();
    WarningManagerContext* context = orrery::diagnostic::warningContext();
    MessageInputAnalyzer analysis(nrhs, prhs, orrery::diagnostic::ids::kWarningPrefix);
    switch (analysis.kind()) {
        case MessageKind::Structure: return bnStructureWarningFcn(nlhs, plhs, nrhs, prhs);
        case MessageKind::Unclassified: return orrery::diagnostic::queryState(nlhs, plhs, context, std::nullopt);
        case MessageKind::MessageObject: return orrery::diagnostic::issueMessageObjectWarning(nlhs, context, analysis);
        case MessageKind::Text: return runTextCall(nlhs, plhs, context, nrhs, prhs, analysis);
    }
}
