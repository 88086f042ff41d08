// The log summary as an aligned table with timelines, as CSV and as JSON.
#include "shell/startup/log_summary.hpp"

#include <orrery/except/internal_error.hpp>
#include <orrery/interp/date_text.hpp>
#include <orrery/interp/dates.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <string_view>

namespace orrery::shell::startup {
namespace {

constexpr std::string_view kColumns[] = {"identifier", "count", "disabled", "first", "last"};

// "2026-03-04T10:07:30.250+01:00": local standard time, the zone the log's
// reader moved every time into, with that zone's offset.
std::string isoTime(double serial) {
    return interp::dateText(serial, interp::DateTextForm::Iso8601, interp::localUtcOffset());
}

constexpr bool isCountColumn(std::size_t column) { return column == 1 || column == 2; }

using Row = std::vector<std::string>;

Row rowOf(const IdentifierSummary& entry) {
    return {entry.identifier, std::to_string(entry.count), std::to_string(entry.disabled), isoTime(entry.first),
            isoTime(entry.last)};
}

// ---- text: identifier left-aligned, counts right-aligned, two spaces apart ----

// Warnings issued without an identifier; no identifier can read so.
constexpr const char* kNoIdentifier = "(none)";

std::string padded(const std::string& cell, std::size_t width, bool right) {
    const std::string fill(width - std::min(width, cell.size()), ' ');
    return right ? fill + cell : cell + fill;
}

std::string textTable(std::vector<Row> rows) {
    for (Row& row : rows)
        if (row[0].empty()) row[0] = kNoIdentifier;
    std::vector<std::size_t> widths;
    for (const std::string_view column : kColumns) widths.push_back(column.size());
    for (const Row& row : rows)
        for (std::size_t c = 0; c < row.size(); ++c) widths[c] = std::max(widths[c], row[c].size());
    auto line = [&](const Row& row) {
        std::string text;
        for (std::size_t c = 0; c < row.size(); ++c) {
            const bool last = c + 1 == row.size();
            text += last ? row[c] : padded(row[c], widths[c], isCountColumn(c)) + "  ";
        }
        return text + "\n";
    };
    Row header(std::begin(kColumns), std::end(kColumns));
    if (!rows.empty() && rows.front().size() > header.size()) header.emplace_back("timeline");
    std::string table = line(header);
    for (const Row& row : rows) table += line(row);
    return table;
}

// ---- CSV (RFC 4180 quoting; lines end in "\n") --------------------------------

std::string csvField(const std::string& field) {
    if (field.find_first_of(",\"\r\n") == std::string::npos) return field;
    std::string quoted = "\"";
    for (const char c : field) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

std::string csvTable(const std::vector<Row>& rows) {
    auto line = [](const Row& row) {
        std::string text;
        for (std::size_t c = 0; c < row.size(); ++c) text += (c == 0 ? "" : ",") + csvField(row[c]);
        return text + "\n";
    };
    std::string table = line(Row(std::begin(kColumns), std::end(kColumns)));
    for (const Row& row : rows) table += line(row);
    return table;
}

// ---- JSON: an array of objects, counts as numbers ------------------------------

std::string jsonString(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        switch (c) {
            case '"': quoted += "\\\""; break;
            case '\\': quoted += "\\\\"; break;
            case '\n': quoted += "\\n"; break;
            case '\r': quoted += "\\r"; break;
            case '\t': quoted += "\\t"; break;
            default:
                if (static_cast<unsigned char>(c) < 0x20) {
                    char escape[8];
                    std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
                    quoted += escape;
                } else {
                    quoted += c;  // UTF-8 passes through
                }
        }
    }
    return quoted + "\"";
}

std::string jsonNumbers(const std::vector<double>& numbers) {
    std::string json = "[";
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        char number[32];
        std::snprintf(number, sizeof number, "%.17g", numbers[i]);
        json += (i == 0 ? "" : ", ") + std::string(number);
    }
    return json + "]";
}

std::string jsonArray(const std::vector<Row>& rows, const std::vector<IdentifierSummary>& summary) {
    if (rows.empty()) return "[]\n";
    std::string json = "[\n";
    for (std::size_t r = 0; r < rows.size(); ++r) {
        json += "  {";
        for (std::size_t c = 0; c < std::size(kColumns); ++c) {
            const bool number = isCountColumn(c);
            json += (c == 0 ? "" : ", ") + jsonString(std::string(kColumns[c])) + ": " +
                    (number ? rows[r][c] : jsonString(rows[r][c]));
        }
        json += ", \"timeline\": " + jsonNumbers(summary[r].timeline);
        json += r + 1 == rows.size() ? "}\n" : "},\n";
    }
    return json + "]\n";
}

}  // namespace

std::string timelineBlocks(const std::vector<double>& timeline) {
    constexpr std::string_view kBlocks[] = {"\u2581", "\u2582", "\u2583", "\u2584",
                                            "\u2585", "\u2586", "\u2587", "\u2588"};
    const double most = timeline.empty() ? 0 : *std::max_element(timeline.begin(), timeline.end());
    std::string blocks;
    for (const double part : timeline) {
        if (part <= 0 || most <= 0) {
            blocks += ' ';
            continue;
        }
        const auto level = static_cast<std::size_t>(std::ceil(part / most * std::size(kBlocks))) - 1;
        blocks += kBlocks[std::min(level, std::size(kBlocks) - 1)];
    }
    return blocks;
}

std::string renderSummary(const std::vector<IdentifierSummary>& summary, SummaryFormat format) {
    std::vector<Row> rows;
    rows.reserve(summary.size());
    for (const IdentifierSummary& entry : summary) rows.push_back(rowOf(entry));
    switch (format) {
        case SummaryFormat::Text:
            for (std::size_t r = 0; r < rows.size(); ++r) rows[r].push_back(timelineBlocks(summary[r].timeline));
            return textTable(std::move(rows));
        case SummaryFormat::Csv: return csvTable(rows);
        case SummaryFormat::Json: return jsonArray(rows, summary);
    }
    except::internalError("shell", "unknown log summary format");
}

}  // namespace orrery::shell::startup
