// Removal of the console's hyperlink mark-up, in one pass over the text.
#include <orrery/text/hot_links.hpp>

#include <optional>

namespace orrery::text {
namespace {

constexpr std::string_view kOpen = "<a href=";
constexpr std::string_view kClose = "</a>";

struct HotLink {
    std::string_view label;
    std::size_t end;  // just past the closing tag
};

// The link starting at `open` (which holds kOpen), or none when it is malformed.
// The text ends where the next link opens, so a label never holds an opening
// and every search stays within one link: the pass is linear.
std::optional<HotLink> parseHotLink(std::string_view text, std::size_t open) {
    const std::size_t quoteAt = open + kOpen.size();
    if (quoteAt >= text.size() || (text[quoteAt] != '"' && text[quoteAt] != '\'')) return std::nullopt;
    const std::size_t quoteEnd = text.find(text[quoteAt], quoteAt + 1);
    if (quoteEnd == std::string_view::npos || quoteEnd + 1 >= text.size() || text[quoteEnd + 1] != '>') {
        return std::nullopt;
    }
    const std::size_t labelAt = quoteEnd + 2;
    const std::size_t close = text.find(kClose, labelAt);
    if (close == std::string_view::npos) return std::nullopt;
    return HotLink{text.substr(labelAt, close - labelAt), close + kClose.size()};
}

}  // namespace

std::string ioStripHotLinks(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    std::size_t pos = 0;
    for (std::size_t open = utf8.find(kOpen); open != std::string_view::npos;) {
        const std::size_t nextOpen = utf8.find(kOpen, open + 1);
        if (const auto link = parseHotLink(utf8.substr(0, nextOpen), open)) {
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
