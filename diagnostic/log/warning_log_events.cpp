// The warning log reader's state machine over element and text events.
#include "diagnostic/log/warning_log_events.hpp"

#include "diagnostic/log/log_text_unescaper.hpp"
#include "diagnostic/log/log_time_reading.hpp"
#include "diagnostic/log/xml_attribute_check.hpp"
#include "diagnostic/log/xml_parser_ids.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <boost/lexical_cast.hpp>

#include <array>
#include <cstring>
#include <utility>

namespace orrery::lang::diagnostic {
namespace {

namespace ids = orrery::diagnostic::ids;

// Expected attribute names, each list in case-insensitive alphabetical order, so
// that the first missing one is reported first.
constexpr std::array<std::string_view, 3> kWarningAttributes{"identifier", "time", "wasDisabled"};
constexpr std::array<std::string_view, 1> kArgAttributes{"type"};
constexpr std::array<std::string_view, 3> kFrameAttributes{"file", "line", "name"};

// The elements of a log, told apart by their first letter and then compared whole.
enum class LogElement { log, warning, message, format, arg, frame, unknown };

LogElement elementNamed(const XML_Char* name) {
    const auto is = [name](const char* expected, LogElement element) {
        return std::strcmp(name, expected) == 0 ? element : LogElement::unknown;
    };
    switch (name[0]) {
        case 'a': return is("arg", LogElement::arg);
        case 'f': return name[1] == 'o' ? is("format", LogElement::format) : is("frame", LogElement::frame);
        case 'l': return is("log", LogElement::log);
        case 'm': return is("message", LogElement::message);
        case 'w': return is("warning", LogElement::warning);
        default: return LogElement::unknown;
    }
}

// Attribute values and character data reach the records as UTF-16. Expat hands
// over well-formed UTF-8, mostly ASCII, which is widened here directly.
void appendUtf16(std::u16string& out, std::string_view utf8) {
    const std::size_t start = out.size();
    out.resize(start + utf8.size());
    std::size_t ascii = 0;
    for (; ascii < utf8.size() && static_cast<unsigned char>(utf8[ascii]) < 0x80; ++ascii)
        out[start + ascii] = static_cast<char16_t>(utf8[ascii]);
    if (ascii == utf8.size()) return;
    out.resize(start + ascii);
    out += text::utf8ToUtf16(utf8.substr(ascii));
}

std::u16string utf16(std::string_view utf8) {
    std::u16string out;
    appendUtf16(out, utf8);
    return out;
}

void checkNoAttributes(const XML_Char* name, const XML_Char** attributes) { checkAttributes(name, attributes, {}, {}); }

}  // namespace

WarningLogEvents::WarningLogEvents(interp::UtcOffset localOffset, WarningRecordStore store,
                                   WarningHeadVisitor visitHead)
    : scanOnly_(!store), localOffset_(localOffset), store_(std::move(store)), visitHead_(std::move(visitHead)) {}

// ---- element start ------------------------------------------------------------------

void WarningLogEvents::startElement(const XML_Char* name, const XML_Char** attributes) {
    switch (elementNamed(name)) {
        case LogElement::log:
            checkNoAttributes(name, attributes);
            if (inLog_) except::throwMessage(ids::XmlNestedLog());
            inLog_ = true;
            return;
        case LogElement::warning: {
            if (inWarning_) except::throwMessage(ids::XmlNestedWarning());
            inWarning_ = true;
            std::array<const XML_Char*, kWarningAttributes.size()> values{};
            checkAttributes(name, attributes, kWarningAttributes, values);
            return startWarning(values.data());
        }
        case LogElement::arg: {
            enterLeaf(name);
            text_.clear();
            std::array<const XML_Char*, kArgAttributes.size()> values{};
            checkAttributes(name, attributes, kArgAttributes, values);
            return startArg(values[0]);
        }
        case LogElement::frame: {
            enterLeaf(name);
            std::array<const XML_Char*, kFrameAttributes.size()> values{};
            checkAttributes(name, attributes, kFrameAttributes, values);
            return startFrame(values.data());
        }
        case LogElement::format:
        case LogElement::message:
            checkNoAttributes(name, attributes);
            enterLeaf(name);
            text_.clear();
            return;
        case LogElement::unknown: except::throwMessage(ids::XmlUnknownElement(utf16(name)));
    }
}

void WarningLogEvents::enterLeaf(const XML_Char* name) {
    if (!inWarning_) except::throwMessage(ids::XmlUnexpectedElement(utf16(name)));
    if (inLeaf_) except::throwMessage(ids::XmlImmutableElement(utf16(name)));
    inLeaf_ = true;
}

// values: identifier, time, wasDisabled.
void WarningLogEvents::startWarning(const XML_Char** values) {
    const std::string_view identifier = values[0];
    if (!identifier.empty() && !warning::utIsValidMessageIdentifier(identifier))
        except::throwMessage(ids::XmlInvalidIdentifier(utf16(identifier)));
    const std::string_view wasDisabled = values[2];
    if (wasDisabled != "true" && wasDisabled != "false")
        except::throwMessage(ids::XmlInvalidWasDisabled(utf16(wasDisabled)));
    if (scanOnly_) {
        if (visitHead_) visitHead_(identifier, wasDisabled == "true", readLogTime(values[1], localOffset_));
        return;
    }
    record_ = &store_();
    record_->setIdentifier(std::string(identifier));
    record_->setWasDisabled(wasDisabled == "true");
    record_->setTime(readLogTime(values[1], localOffset_));
}

void WarningLogEvents::startArg(const XML_Char* type) {
    const auto kind = logArgTypeNamed(type);
    if (!kind) except::throwMessage(ids::XmlInvalidArgType(utf16(type)));
    argType_ = *kind;
}

// values: file, line, name.
void WarningLogEvents::startFrame(const XML_Char** values) {
    StackFrame frame;
    frame.file = unescapeLogText(utf16(values[0]));
    frame.name = unescapeLogText(utf16(values[2]));
    const std::string_view line = values[1];
    if (line.find_first_not_of("0123456789") != std::string_view::npos)
        except::throwMessage(ids::XmlInvalidLine(utf16(line)));
    frame.line = boost::lexical_cast<std::uint32_t>(line.data(), line.size());
    if (!scanOnly_) pendingFrames_.push_back(std::move(frame));
}

// ---- character data -----------------------------------------------------------------

// Only text inside a leaf element is ever used: text outside is dropped at the next
// leaf start, so it is not collected.
void WarningLogEvents::characterData(std::string_view utf8) {
    if (!scanOnly_ && inLeaf_) appendUtf16(text_, utf8);
}

// ---- element end --------------------------------------------------------------------

void WarningLogEvents::endElement(const XML_Char* name, std::uint64_t byteIndex) {
    switch (const LogElement element = elementNamed(name)) {
        case LogElement::log:
            logEnd_ = byteIndex;
            inLog_ = false;
            return;
        case LogElement::warning:
            inWarning_ = false;
            if (!scanOnly_) endWarning();
            break;
        case LogElement::message:
        case LogElement::format:
            inLeaf_ = false;
            if (!scanOnly_) {
                std::u16string value = unescapeLogText(std::move(text_));
                if (element == LogElement::message)
                    record_->setMessage(std::move(value));
                else
                    record_->setFormat(std::move(value));
            }
            break;
        case LogElement::arg:
            inLeaf_ = false;
            if (!scanOnly_) endArg();
            break;
        case LogElement::frame: inLeaf_ = false; break;
        case LogElement::unknown: except::throwMessage(ids::XmlUnknownElement(utf16(name)));
    }
    text_.clear();
}

// Arguments and frames are gathered on the side and given to the record when it ends.
void WarningLogEvents::endWarning() {
    record_->setArguments(std::move(pendingArguments_));
    record_->setStack(std::move(pendingFrames_));
    pendingArguments_.clear();
    pendingFrames_.clear();
}

void WarningLogEvents::endArg() {
    pendingArguments_.push_back(convertLogArgument(argType_, unescapeLogText(std::move(text_))));
}

}  // namespace orrery::lang::diagnostic
