// The analysis of the message arguments shared by error, assert and warning.
#pragma once

#include <orrery/catalogue/message_argument.hpp>
#include <orrery/catalogue/message_content.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::diagnostic {

/// What the first input of a message argument list turned out to be.
enum class MessageKind : std::int32_t {
    Structure = 0,      ///< an error structure
    Text = 1,           ///< a message, or an identifier followed by a format
    MessageObject = 2,  ///< a catalogue message object
    Unclassified = 3,   ///< nothing analysed (an empty argument list)
};

/// Classifies and checks a built-in's message arguments on construction, then
/// yields the identifier and the message text. Every analysis failure carries the
/// caller's prefix plus its mnemonic ("ORRERY:error:missingMessageArgument") and
/// the text of the matching "ORRERY:msgInputAnalyzer" catalogue entry. The inputs
/// are borrowed, with the array of their pointers: both must outlive the analyzer
/// and stay unchanged while it lives.
///
/// A first input is text when it is a character row, a string scalar that is not
/// missing, or the 0-by-0 char array (the language's ''), which is the empty text;
/// a format after an identifier must be a character row or a string scalar.
class MessageInputAnalyzer {
public:
    /// Largest accepted identifier length in bytes.
    static constexpr std::size_t kMaxIdentifierBytes = 8191;

    /// Analyses inputs[0 .. inputCount-1]; an empty list is left Unclassified.
    /// prefix ends in ":" and must outlive the analyzer. Raises the failures of the
    /// analysis (see the class).
    MessageInputAnalyzer(std::int32_t inputCount, const value::ValueArray* const* inputs, std::string_view prefix);

    /// The message of a Text analysis: the first input taken literally when it is
    /// the only input, otherwise the language's sprintf of the format and its
    /// arguments. Raises "ORRERY:string:*" when the formatted result is not one
    /// text, and the prefix's "nonScalarInput" for a rejected format argument.
    std::u16string formatMessage();

    /// The identifier found (UTF-8); empty when the first input is not one.
    const std::string& identifier() const noexcept { return identifier_; }
    /// Moves the identifier out, for a caller done with the analysis.
    std::string takeIdentifier() noexcept { return std::move(identifier_); }
    /// 1 when the first input is an identifier, 0 when not, -1 before text analysis;
    /// also the index of the format among the inputs.
    std::int32_t identifierIndex() const noexcept { return identifierIndex_; }
    MessageKind kind() const noexcept { return kind_; }
    /// The content of a message-object input; empty otherwise.
    const std::optional<catalogue::MessageContent>& ingredients() const noexcept { return ingredients_; }
    /// The arguments of a message-object input.
    const std::vector<catalogue::MessageArgument>& messageArguments() const noexcept { return messageArguments_; }
    std::span<const value::ValueArray* const> rawInputs() const noexcept { return rawInputs_; }
    std::int32_t inputCount() const noexcept { return inputCount_; }
    std::string_view prefix() const noexcept { return prefix_; }
    /// Kept for the warning side; the analysis leaves it empty.
    const std::u16string& format() const noexcept { return format_; }

private:
    void classify();
    void analyseText();
    void analyseMessageObject();
    void checkFormatArguments();
    template <class Key>
    [[noreturn]] void fail(std::string_view mnemonic, Key key) const;

    std::optional<catalogue::MessageContent> ingredients_;
    std::string identifier_;
    std::int32_t identifierIndex_ = -1;
    MessageKind kind_ = MessageKind::Unclassified;
    std::string_view prefix_;
    std::span<const value::ValueArray* const> rawInputs_;
    std::int32_t inputCount_;
    bool formatArgumentsChecked_ = false;
    std::u16string format_;
    std::vector<catalogue::MessageArgument> messageArguments_;
};

}  // namespace orrery::diagnostic
