// Tests of the message input analyzer: classification and its order of checks,
// identifier rules, format arguments and formatting.
#include "diagnostic/module/message_input_analyzer.hpp"

#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/message_object.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/text/text.hpp>

using namespace orrery;
using diagnostic::MessageInputAnalyzer;
using diagnostic::MessageKind;
using namespace orrery::testing;

namespace {

const std::string kPrefix = "ORRERY:probe:";

MessageInputAnalyzer analyse(const InputList& inputs) {
    return MessageInputAnalyzer(inputs.count(), inputs.data(), kPrefix);
}

std::string formatted(const InputList& inputs) { return text::utf16ToUtf8(analyse(inputs).formatMessage()); }

ValueArray messageObject() { return ocos::makeMessageObject({"ORRERY:assertion:failed", {}}); }

// An object whose class answers isscalar itself, with false.
class NeverScalarMI final : public ocos::COSMethodInfo {
public:
    NeverScalarMI() : COSMethodInfo("isscalar", ocos::COSMethodSignature({"probe.NeverScalar"}, {"logical scalar"})) {}
    void invoke(std::int32_t, value::ValueArrayPtr* plhs, std::int32_t, const ValueArray* const*) const override {
        plhs[0] = value::makeValue(ValueArray::logicalScalar(false));
    }
};

ValueArray neverScalarObject() {
    static const auto info = [] {
        auto described = std::make_shared<ocos::COSClassInfo>("probe.NeverScalar");
        described->addMethod(std::make_shared<NeverScalarMI>());
        return described;
    }();
    return ValueArray::objectArray(info, Dims{1, 1});
}

std::string identifierOfLength(std::size_t bytes) { return "a:" + std::string(bytes - 2, 'b'); }

}  // namespace

TEST(MessageInputAnalyzer, ClassifiesTheFirstInput) {
    // Inputs, then the kind, identifier index and identifier found.
    const std::tuple<const char*, std::vector<ValueArray>, MessageKind, std::int32_t, const char*> cases[] = {
        {"struct alone", {ValueArray::structArray(Dims{2, 2})}, MessageKind::Structure, -1, ""},
        {"message text", {chars("hello")}, MessageKind::Text, 0, ""},
        {"0-by-0 char is the empty text", {ValueArray::charArray(Dims{0, 0}, u"")}, MessageKind::Text, 0, ""},
        {"identifier and format", {chars("a:b"), chars("x")}, MessageKind::Text, 1, "a:b"},
        {"string identifier", {ValueArray::string(u"p:q"), ValueArray::string(u"x")}, MessageKind::Text, 1, "p:q"},
        {"not an identifier", {chars("a::b"), chars("x")}, MessageKind::Text, 0, ""},
        {"non-ASCII text", {ValueArray::chars(u"a:\u00e9"), chars("x")}, MessageKind::Text, 0, ""},
        {"message object", {messageObject()}, MessageKind::MessageObject, -1, ""},
        {"nothing", {}, MessageKind::Unclassified, -1, ""},
    };
    for (const auto& [name, values, kind, identifierIndex, identifier] : cases) {
        SCOPED_TRACE(name);
        const InputList inputs(values);
        const auto analyzer = analyse(inputs);
        EXPECT_EQ(analyzer.kind(), kind);
        EXPECT_EQ(analyzer.identifierIndex(), identifierIndex);
        EXPECT_EQ(analyzer.identifier(), identifier);
        EXPECT_TRUE(analyzer.format().empty());
    }
}

TEST(MessageInputAnalyzer, RejectsInOrderWithTheCallersPrefix) {
    const auto messages = ValueArray::objectArray(ocos::messageClass(), Dims{1, 2});
    const auto tooLong = chars(identifierOfLength(8192));
    const std::tuple<const char*, std::vector<ValueArray>, std::string> cases[] = {
        {"struct then more", {ValueArray::structArray(Dims{1, 1}), chars("x")}, kPrefix + "unexpectedArguments"},
        {"identifier then missing string", {chars("a:b"), ValueArray::missingString()}, kPrefix + "badMessageArgument"},
        {"text check before length", {tooLong, ValueArray::scalar(5)}, kPrefix + "badMessageArgument"},
        {"message object then more", {messages, chars("x")}, "ORRERY:builtins:InvalidNumberOfArguments"},
        {"message object array", {messages}, "ORRERY:QException:NonScalarMessage"},
        {"other object", {neverScalarObject()}, kPrefix + "invalidMessageType"},
        {"number", {ValueArray::scalar(3)}, kPrefix + "invalidMessageType"},
        {"0-by-0 char as format",
         {chars("a:b"), ValueArray::charArray(Dims{0, 0}, u"")},
         kPrefix + "badMessageArgument"},
        {"missing string", {ValueArray::missingString()}, kPrefix + "invalidMessageType"},
    };
    for (const auto& [name, values, identifier] : cases) {
        SCOPED_TRACE(name);
        const InputList inputs(values);
        EXPECT_MSGID(analyse(inputs), identifier);
    }
}

TEST(MessageInputAnalyzer, IdentifierLimitIs8191Bytes) {
    const InputList longest{chars(identifierOfLength(8191)), chars("x")};
    EXPECT_EQ(analyse(longest).identifier().size(), 8191u);
    const InputList tooLong{chars(identifierOfLength(8192)), chars("x")};
    EXPECT_MSGID_TEXT(analyse(tooLong), kPrefix + "identifierTooLong",
                      "The message identifier is too long; at most 8191 bytes are accepted.");
}

TEST(MessageInputAnalyzer, FormatArgumentsMustBeScalarWhenLogicalOrObject) {
    const auto logicalPair = ValueArray::logicals(Dims{1, 2}, {true, false});
    // With an identifier the arguments are checked at once.
    const InputList withIdentifier{chars("a:b"), chars("%d"), ValueArray::scalar(1), logicalPair};
    EXPECT_MSGID(analyse(withIdentifier), kPrefix + "nonScalarInput");
    const InputList objectArgument{chars("a:b"), chars("%d"), neverScalarObject()};
    EXPECT_MSGID(analyse(objectArgument), kPrefix + "nonScalarInput");
    // Without one, only when the message is formatted.
    const InputList withoutIdentifier{chars("%d"), logicalPair};
    auto analyzer = analyse(withoutIdentifier);
    EXPECT_MSGID(analyzer.formatMessage(), kPrefix + "nonScalarInput");
    // The format itself is not a format argument, and scalar or empty logicals pass.
    const InputList accepted{chars("a:b"), chars("%d%d"), ValueArray::logicalScalar(true),
                             ValueArray::zeros(ClassId::Logical, Dims{0, 0})};
    EXPECT_EQ(formatted(accepted), "1");
}

TEST(MessageInputAnalyzer, AStringFormatIsFormatted) {
    const InputList stringFormat{chars("a:b"), ValueArray::string(u"%s and %s"), chars("x"), chars("y")};
    EXPECT_EQ(formatted(stringFormat), "x and y");
}
