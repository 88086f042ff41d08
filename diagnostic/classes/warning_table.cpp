// Rendering of Warning arrays as a small table.
#include "diagnostic/classes/warning_table.hpp"

#include "diagnostic/classes/warning_instance.hpp"

#include <orrery/interp/date_text.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace orrery::lang::diagnostic {
namespace {

constexpr std::size_t kMessageWidth = 48;
// U+2400 onwards picture the control characters U+0000 to U+001F; U+2421 pictures DELETE.
constexpr char16_t kControlPictures = 0x2400;
constexpr char16_t kDeletePicture = 0x2421;
// An array with more warnings than a screen holds shows its first ones and says
// how many more there are.
constexpr std::size_t kMostRowsShown = 30;
constexpr std::size_t kFirstRowsShown = 20;

struct Row {
    std::string position;
    std::u16string identifier;
    std::u16string message;
    std::string time;
};

// "yyyy-mm-dd HH:MM:SS"; a time outside the calendar shows as its number.
std::string timeText(double serial) {
    if (!std::isfinite(serial) || std::abs(serial) > 1e7) {
        char buffer[64];
        std::snprintf(buffer, sizeof buffer, "%g", serial);
        return buffer;
    }
    return interp::dateText(serial, interp::DateTextForm::WholeSeconds);
}

// The message on one line, cut with "..." past the column's width.
std::u16string oneLine(std::u16string text) {
    // Line breaks and tabs become blanks; other control characters (NUL among
    // them) are shown as their pictures, so that nothing after them is lost.
    for (char16_t& c : text) {
        if (c == u'\n' || c == u'\r' || c == u'\t')
            c = u' ';
        else if (c < 0x20)
            c = static_cast<char16_t>(kControlPictures + c);
        else if (c == 0x7F)
            c = kDeletePicture;
    }
    if (text.size() > kMessageWidth) text = text.substr(0, kMessageWidth - 3) + u"...";
    return text;
}

std::string padded(const std::u16string& text, std::size_t width) {
    return text::utf16ToUtf8Lossy(text) + std::string(width > text.size() ? width - text.size() : 0, ' ');
}

// A count through the C library: the standard library's integer formatting
// would make its digit tables part of the module's exports.
std::string countText(std::size_t n) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%zu", n);
    return buffer;
}

// The position from 1.
std::string positionText(std::size_t i) { return countText(i + 1); }

Row rowOf(const value::ValueArray& objects, std::size_t i) {
    Row row{positionText(i), u"<invalid>", u"", ""};
    const auto instance = objects.isValidElement(i) ? objects.objectAt(i) : nullptr;
    const auto* warning = dynamic_cast<const WarningInstance*>(instance.get());
    if (warning == nullptr) return row;
    const Warning& record = warning->record();
    row.identifier = text::utf8ToUtf16Lossy(record.getIdentifier());
    row.message = oneLine(record.getMessage());
    row.time = timeText(record.getTime()) + (record.getWasDisabled() ? "  (off)" : "");
    return row;
}

}  // namespace

std::string warningTable(const value::ValueArray& objects) {
    const std::string heading = "  " + objects.dims().text() + " Warning array";
    if (objects.isEmpty()) return heading + " with no warnings.\n";
    std::vector<Row> rows;
    Row header{"#", u"identifier", u"message", "time"};
    std::size_t positionWidth = header.position.size();
    std::size_t identifierWidth = header.identifier.size();
    std::size_t messageWidth = header.message.size();
    const std::size_t shown = objects.numel() > kMostRowsShown ? kFirstRowsShown : objects.numel();
    for (std::size_t i = 0; i < shown; ++i) {
        rows.push_back(rowOf(objects, i));
        positionWidth = std::max(positionWidth, rows.back().position.size());
        identifierWidth = std::max(identifierWidth, rows.back().identifier.size());
        messageWidth = std::max(messageWidth, rows.back().message.size());
    }
    std::string out = heading + ":\n\n";
    const auto line = [&](const Row& row) {
        std::string text = "    " + std::string(positionWidth - row.position.size(), ' ') + row.position + "  " +
                           padded(row.identifier, identifierWidth) + "  " + padded(row.message, messageWidth) + "  " +
                           row.time;
        text.erase(text.find_last_not_of(' ') + 1);
        out += text + "\n";
    };
    line(header);
    for (const Row& row : rows) line(row);
    if (shown < objects.numel())
        out += "    ... " + countText(objects.numel() - shown) + " more warnings (" + countText(objects.numel()) +
               " in all)\n";
    return out;
}

}  // namespace orrery::lang::diagnostic
