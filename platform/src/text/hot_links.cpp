// Removal of the console's hyperlink mark-up, in one pass over the text.
#include <orrery/text/hot_links.hpp>

#include <optional>

namespace orrery::text {
namespace {

constexpr std::string_view kOpen = "<a href=";
constexpr std::string_view kClose = "</a>";

// A search that adds the bytes it passed over (up to the end of what it found) to
// a count of the work done.
std::size_t find(std::string_view text, std::string_view what, std::size_t from, std::size_t& examined) {
    const std::size_t found = text.find(what, from);
    const std::size_t end = found == std::string_view::npos ? text.size() : found + what.size();
    examined += end > from ? end - from : 0;
    return found;
}

struct HotLink {
    std::string_view label;
    std::size_t end;  // just past the closing tag
};

// The link starting at `open` (which holds kOpen), or none when it is malformed.
// The text ends where the next link opens, so a label never holds an opening
// and every search stays within one link: the pass is linear.
std::optional<HotLink> parseHotLink(std::string_view text, std::size_t open, std::size_t& examined) {
    const std::size_t quoteAt = open + kOpen.size();
    if (quoteAt >= text.size() || (text[quoteAt] != '"' && text[quoteAt] != '\'')) return std::nullopt;
    const std::size_t quoteEnd = find(text, text.substr(quoteAt, 1), quoteAt + 1, examined);
    if (quoteEnd == std::string_view::npos || quoteEnd + 1 >= text.size() || text[quoteEnd + 1] != '>') {
        return std::nullopt;
    }
    const std::size_t labelAt = quoteEnd + 2;
    const std::size_t close = find(text, kClose, labelAt, examined);
    if (close == std::string_view::npos) return std::nullopt;
    return HotLink{text.substr(labelAt, close - labelAt), close + kClose.size()};
}

}  // namespace

std::string ioStripHotLinks(std::string_view utf8) {
    std::size_t examined = 0;
    return ioStripHotLinks(utf8, examined);
}

std::string ioStripHotLinks(std::string_view utf8, std::size_t& examined) {
    std::string out;
    out.reserve(utf8.size());
    std::size_t pos = 0;
    for (std::size_t open = find(utf8, kOpen, 0, examined); open != std::string_view::npos;) {
        const std::size_t nextOpen = find(utf8, kOpen, open + 1, examined);
        if (const auto link = parseHotLink(utf8.substr(0, nextOpen), open, examined)) {
            out.append(utf8.substr(pos, open - pos));
            out.append(link->label);
            pos = link->end;
        }
        open = nextOpen;
    }
    out.append(utf8.substr(pos));
    return out;
}

}  // namespace orrery::text
