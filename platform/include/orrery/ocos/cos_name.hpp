// Interned names of the class system: property names and type texts.
#pragma once

#include <orrery/export.hpp>

#include <string>
#include <string_view>

namespace orrery::ocos {

/// A name held once in a process-wide table. Two COSName values are equal when
/// they hold the same text, which is a pointer comparison. Copies are cheap and
/// the text lives until the process ends.
class ORRERY_API COSName {
public:
    /// The empty name.
    COSName();

    const std::string& str() const noexcept { return *text_; }
    std::string_view view() const noexcept { return *text_; }
    bool empty() const noexcept { return text_->empty(); }

    friend bool operator==(COSName a, COSName b) noexcept { return a.text_ == b.text_; }
    friend bool operator==(COSName a, std::string_view b) noexcept { return *a.text_ == b; }

private:
    friend ORRERY_API COSName intern(std::string_view text);
    explicit COSName(const std::string* text) noexcept : text_(text) {}
    const std::string* text_;
};

/// The interned name for the text; safe to call from any thread.
ORRERY_API COSName intern(std::string_view text);

}  // namespace orrery::ocos
