// One warning record as the "warning" element of a warning log, in UTF-8.
#include "diagnostic/log/warning_element.hpp"

#include "diagnostic/log/log_file_format.hpp"
#include "diagnostic/log/log_text_escape.hpp"
#include "diagnostic/log/log_time_text.hpp"

#include <charconv>
#include <cstdint>
#include <string_view>

namespace orrery::lang::diagnostic {
namespace {

// Leaf elements stand two indentation units deep.
void appendLeafIndent(std::string& out) { out.append(kLogIndent).append(kLogIndent); }

void appendLeaf(std::string& out, std::string_view tag, std::u16string_view text) {
    appendLeafIndent(out);
    out.append("<").append(tag).append(">");
    appendEscapedLogText(out, text);
    out.append("</").append(tag).append(">\n");
}

// Type names and number texts are ASCII, so each UTF-16 unit is one byte.
void appendAscii(std::string& out, std::u16string_view ascii) {
    for (const char16_t c : ascii) out += static_cast<char>(c);
}

void appendArgument(std::string& out, const PrintfArgument& argument) {
    thread_local std::u16string value;  // kept, so that its room serves every warning
    const std::u16string type = argument.getTypeAndValue(value);
    appendLeafIndent(out);
    out.append("<arg type=\"");
    appendAscii(out, type);
    out.append("\">");
    appendEscapedLogText(out, value);
    out.append("</arg>\n");
}

void appendFrame(std::string& out, const StackFrame& frame) {
    appendLeafIndent(out);
    out.append("<frame file=\"");
    appendEscapedLogText(out, frame.file);
    out.append("\" name=\"");
    appendEscapedLogText(out, frame.name);
    out.append("\" line=\"");
    char line[16];
    const auto end = std::to_chars(std::begin(line), std::end(line), frame.line).ptr;
    out.append(line, end);
    out.append("\"/>\n");
}

}  // namespace

void appendWarningElement(std::string& out, const Warning& warning) {
    // Identifiers are checked where they are made; the log writes them as they are.
    out.append(kWarningElementStart).append(warning.getIdentifier());
    out.append("\" wasDisabled=\"").append(warning.getWasDisabled() ? "true" : "false");
    out.append("\" time=\"");
    appendLogTimeText(out, warning.getTime());
    out.append("\">\n");
    appendLeaf(out, "message", warning.getMessage());
    appendLeaf(out, "format", warning.getFormat());
    for (const PrintfArgument& argument : warning.getArguments()) appendArgument(out, argument);
    for (const StackFrame& frame : warning.getStack()) appendFrame(out, frame);
    out.append(kLogIndent).append("</warning>\n");
}

std::string renderWarningElement(const Warning& warning) {
    std::string out;
    appendWarningElement(out, warning);
    return out;
}

}  // namespace orrery::lang::diagnostic
