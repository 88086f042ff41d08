// One warning record as the "warning" element of a warning log.
#include "diagnostic/log/warning_element.hpp"

#include "diagnostic/log/log_text_escape.hpp"
#include "diagnostic/log/log_time_text.hpp"

#include <orrery/text/text.hpp>

#include <cstdint>
#include <string_view>

namespace orrery::lang::diagnostic {
namespace {

// The log's one indentation unit: elements of a warning stand one unit deeper.
constexpr std::u16string_view kIndent = u"    ";
// Room for the tags, the time and a few arguments and frames, reserved up front.
constexpr std::size_t kTypicalElementLength = 512;

void appendLeaf(std::u16string& out, std::u16string_view tag, std::u16string_view text) {
    out.append(kIndent).append(kIndent).append(u"<").append(tag).append(u">");
    appendEscapedLogText(out, text);
    out.append(u"</").append(tag).append(u">\n");
}

void appendArgument(std::u16string& out, const PrintfArgument& argument) {
    std::u16string value;
    const std::u16string type = argument.getTypeAndValue(value);
    out.append(kIndent).append(kIndent).append(u"<arg type=\"").append(type).append(u"\">");
    appendEscapedLogText(out, value);
    out.append(u"</arg>\n");
}

void appendFrame(std::u16string& out, const StackFrame& frame) {
    out.append(kIndent).append(kIndent).append(u"<frame file=\"");
    appendEscapedLogText(out, frame.file);
    out.append(u"\" name=\"");
    appendEscapedLogText(out, frame.name);
    out.append(u"\" line=\"");
    std::u16string line;
    PrintfArgument(frame.line).getTypeAndValue(line);  // plain decimal, as an unsigned 32-bit value's text
    out.append(line);
    out.append(u"\"/>\n");
}

}  // namespace

std::u16string renderWarningElement(const Warning& warning) {
    std::u16string out;
    out.reserve(kTypicalElementLength + warning.getMessage().size() + warning.getFormat().size());
    // Identifiers are checked where they are made; the log writes them as they are.
    out.append(kIndent).append(u"<warning identifier=\"").append(text::utf8ToUtf16Lossy(warning.getIdentifier()));
    out.append(u"\" wasDisabled=\"").append(warning.getWasDisabled() ? u"true" : u"false");
    out.append(u"\" time=\"").append(logTimeText(warning.getTime())).append(u"\">\n");
    appendLeaf(out, u"message", warning.getMessage());
    appendLeaf(out, u"format", warning.getFormat());
    for (const PrintfArgument& argument : warning.getArguments()) appendArgument(out, argument);
    for (const StackFrame& frame : warning.getStack()) appendFrame(out, frame);
    out.append(kIndent).append(u"</warning>\n");
    return out;
}

}  // namespace orrery::lang::diagnostic
