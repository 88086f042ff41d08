// Classification, identifier checks and formatting of message arguments.
#include "diagnostic/module/message_input_analyzer.hpp"
#include <orrery/except/internal_error.hpp>

#include "diagnostic/module/diagnostic_ids.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/interp/sprintf.hpp>
#include <orrery/ocos/message_object.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <algorithm>
#include <stdexcept>

namespace orrery::diagnostic {
namespace {

using value::ClassId;
using value::ValueArray;

// Identifiers are ASCII, so a text holding any other unit is never one. Narrowing
// here, instead of converting to UTF-8, keeps a message with an unpaired
// surrogate a message rather than a conversion failure.
std::optional<std::string> asciiCandidate(std::u16string_view text) {
    std::string ascii(text.size(), '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] >= 128) return std::nullopt;
        ascii[i] = static_cast<char>(text[i]);
    }
    return ascii;
}

// The language's isscalar, so that a class may answer for its own objects.
bool answersScalar(const ValueArray& object) {
    value::ValueArrayPtr answer;
    const ValueArray* argument = &object;
    interp::callFunction("isscalar", 1, &answer, 1, &argument);
    if (!answer || !answer->isScalar()) return false;
    if (!answer->is(ClassId::Logical) && !answer->isNumeric()) return false;
    return answer->realAt(0) != 0;
}

}  // namespace

MessageInputAnalyzer::MessageInputAnalyzer(std::int32_t inputCount, const ValueArray* const* inputs,
                                           std::string_view prefix)
    : prefix_(prefix),
      rawInputs_(inputs, static_cast<std::size_t>(std::max(inputCount, std::int32_t{0}))),
      inputCount_(std::max(inputCount, std::int32_t{0})) {
    if (inputCount_ > 0) classify();
}

template <class Key>
void MessageInputAnalyzer::fail(std::string_view mnemonic, Key key) const {
    except::throwMessage(std::string(prefix_).append(mnemonic), std::move(key));
}

void MessageInputAnalyzer::classify() {
    const ValueArray* first = rawInputs_[0];
    if (first && first->is(ClassId::Struct)) {
        kind_ = MessageKind::Structure;
        if (inputCount_ >= 2) fail("unexpectedArguments", ids::AnalyzerUnexpectedArguments());
        return;
    }
    if (first && first->isTextScalarTolerant()) {
        kind_ = MessageKind::Text;
        analyseText();
        return;
    }
    if (first && first->is(ClassId::Object) && first->className() == "message") {
        kind_ = MessageKind::MessageObject;
        analyseMessageObject();
        return;
    }
    fail("invalidMessageType", ids::AnalyzerInvalidMessageType());
}

void MessageInputAnalyzer::analyseText() {
    auto candidate = asciiCandidate(rawInputs_[0]->textView());
    if (!candidate || !warning::utIsValidMessageIdentifier(*candidate)) {
        identifier_.clear();
        identifierIndex_ = 0;
        return;
    }
    identifier_ = std::move(*candidate);
    identifierIndex_ = 1;
    // Deliberately, a lone argument shaped like an identifier is never a message.
    if (inputCount_ < 2) fail("missingMessageArgument", ids::AnalyzerMissingMessageArgument());
    if (!rawInputs_[1] || !rawInputs_[1]->isTextScalar()) fail("badMessageArgument", ids::AnalyzerBadMessageArgument());
    if (identifier_.size() > kMaxIdentifierBytes) {
        fail("identifierTooLong", ids::AnalyzerIdentifierTooLong(kMaxIdentifierBytes));
    }
    checkFormatArguments();
}

void MessageInputAnalyzer::analyseMessageObject() {
    if (inputCount_ > 1) except::throwMessage(ids::InvalidNumberOfArguments());
    const ValueArray& messages = *rawInputs_[0];
    if (!messages.isScalar()) except::throwMessage(ids::NonScalarMessage());
    ingredients_ = ocos::messageContentOf(messages, 0);
    messageArguments_ = ingredients_->arguments;
}

void MessageInputAnalyzer::checkFormatArguments() {
    if (formatArgumentsChecked_) return;
    formatArgumentsChecked_ = true;
    for (std::int32_t i = identifierIndex_ + 1; i < inputCount_; ++i) {
        const ValueArray* argument = rawInputs_[i];
        if (!argument) continue;
        const bool tooMany = argument->is(ClassId::Logical) && argument->numel() > 1;
        if (tooMany || (argument->is(ClassId::Object) && !answersScalar(*argument))) {
            fail("nonScalarInput", ids::AnalyzerNonScalarInput());
        }
    }
}

std::u16string MessageInputAnalyzer::formatMessage() {
    if (kind_ != MessageKind::Text)
        except::internalError("message input analysis", "formatMessage needs a text analysis");
    if (inputCount_ < 2) return rawInputs_[0]->text();
    checkFormatArguments();
    // The language's sprintf always yields one text, a char row or a string scalar
    // that is not missing, so its text is the message.
    return interp::sprintfText(inputCount_ - identifierIndex_, rawInputs_.data() + identifierIndex_);
}

}  // namespace orrery::diagnostic
