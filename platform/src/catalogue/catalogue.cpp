// Message catalogue on an ICU resource bundle of nested tables, one level per
// identifier component, formatted with ICU MessageFormat.
#include <orrery/catalogue/catalogue.hpp>
#include <orrery/catalogue/message_content.hpp>
#include <orrery/except/internal_error.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <unicode/locid.h>
#include <unicode/messagepattern.h>
#include <unicode/msgfmt.h>
#include <unicode/ures.h>

#include <dlfcn.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <system_error>
#include <vector>

namespace orrery::catalogue {
namespace {

ORRERY_MESSAGE_KEY(NoSuchMessage, "ORRERY:catalogue:noSuchMessage", 1);
ORRERY_MESSAGE_KEY(ArgumentMismatch, "ORRERY:catalogue:argumentMismatch", 1);

struct BundleCloser {
    void operator()(UResourceBundle* bundle) const { ures_close(bundle); }
};
using Bundle = std::unique_ptr<UResourceBundle, BundleCloser>;

const UResourceBundle& rootBundle() {
    static Bundle root;
    static std::once_flag once;
    std::call_once(once, [] {
        const std::string folder = catalogueFolder() + "/";
        UErrorCode status = U_ZERO_ERROR;
        root.reset(ures_openDirect(folder.c_str(), "root", &status));
        if (U_FAILURE(status)) root.reset();
    });
    if (!root) except::internalError("message catalogue", "not found in " + catalogueFolder());
    return *root;
}

std::vector<std::string> components(std::string_view identifier) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (true) {
        const std::size_t colon = identifier.find(':', start);
        parts.emplace_back(identifier.substr(start, colon - start));
        if (colon == std::string_view::npos) return parts;
        start = colon + 1;
    }
}

// The pattern of the identifier, or an empty optional when there is none.
std::optional<std::u16string> lookupPattern(std::string_view identifier) {
    const UResourceBundle* table = &rootBundle();
    Bundle level;
    for (const std::string& part : components(identifier)) {
        if (part.empty() || ures_getType(table) != URES_TABLE) return std::nullopt;
        UErrorCode status = U_ZERO_ERROR;
        Bundle next(ures_getByKey(table, part.c_str(), nullptr, &status));
        if (U_FAILURE(status)) return std::nullopt;
        level = std::move(next);
        table = level.get();
    }
    if (ures_getType(table) != URES_STRING) return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = 0;
    const UChar* pattern = ures_getString(table, &length, &status);
    if (U_FAILURE(status)) return std::nullopt;
    return std::u16string(reinterpret_cast<const char16_t*>(pattern), static_cast<std::size_t>(length));
}

icu::Formattable toFormattable(const MessageArgument& argument) {
    if (const auto* number = std::get_if<double>(&argument)) return icu::Formattable(*number);
    const auto& text = std::get<std::u16string>(argument);
    return icu::Formattable(icu::UnicodeString(text.data(), static_cast<int32_t>(text.size())));
}

// The number of arguments a pattern uses: one more than its highest argument
// number (nested choices and plurals included).
std::size_t argumentsUsed(const icu::UnicodeString& pattern) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::MessagePattern parsed(pattern, nullptr, status);
    if (U_FAILURE(status)) return 0;
    std::size_t used = 0;
    for (int32_t i = 0; i < parsed.countParts(); ++i) {
        const icu::MessagePattern::Part& part = parsed.getPart(i);
        if (part.getType() == UMSGPAT_PART_TYPE_ARG_NUMBER)
            used = std::max(used, static_cast<std::size_t>(part.getValue()) + 1);
    }
    return used;
}

}  // namespace

std::string catalogueFolder() {
    if (const char* overridden = std::getenv("ORRERY_CATALOGUE_DIR")) return overridden;
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&catalogueFolder), &info) == 0 || info.dli_fname == nullptr) return "catalogue";
    const std::filesystem::path libraryFolder = std::filesystem::path(info.dli_fname).parent_path();
    const std::filesystem::path built = libraryFolder / "catalogue";
    const std::filesystem::path installed = libraryFolder / "orrery" / "catalogue";
    std::error_code ignored;
    if (!std::filesystem::is_directory(built, ignored) && std::filesystem::is_directory(installed, ignored))
        return installed.string();
    return built.string();
}

bool hasMessage(std::string_view identifier) { return lookupPattern(identifier).has_value(); }

namespace {

// The pattern of the identifier as ICU text; a missing entry raises "noSuchMessage".
icu::UnicodeString requirePattern(std::string_view identifier) {
    const auto pattern = lookupPattern(identifier);
    if (!pattern) except::throwMessage(NoSuchMessage(text::utf8ToUtf16(identifier)));
    return {pattern->data(), static_cast<int32_t>(pattern->size())};
}

}  // namespace

std::size_t messageArgumentCount(std::string_view identifier) { return argumentsUsed(requirePattern(identifier)); }

std::u16string formatMessage(std::string_view identifier, std::span<const MessageArgument> arguments) {
    const icu::UnicodeString patternText = requirePattern(identifier);
    UErrorCode status = U_ZERO_ERROR;
    icu::MessageFormat format(patternText, icu::Locale::getDefault(), status);
    if (U_FAILURE(status)) except::internalError("message catalogue", "malformed entry for " + std::string(identifier));
    if (arguments.size() != argumentsUsed(patternText))
        except::throwMessage(ArgumentMismatch(text::utf8ToUtf16(identifier)));
    std::vector<icu::Formattable> values;
    values.reserve(arguments.size());
    for (const auto& argument : arguments) values.push_back(toFormattable(argument));
    icu::UnicodeString result;
    icu::FieldPosition position;
    format.format(values.data(), static_cast<int32_t>(values.size()), result, position, status);
    if (U_FAILURE(status)) except::throwMessage(ArgumentMismatch(text::utf8ToUtf16(identifier)));
    return std::u16string(reinterpret_cast<const char16_t*>(result.getBuffer()),
                          static_cast<std::size_t>(result.length()));
}

std::string formatMessageUtf8(std::string_view identifier, std::span<const MessageArgument> arguments) {
    return text::utf16ToUtf8(formatMessage(identifier, arguments));
}

std::string MessageContent::component() const { return identifier.substr(0, identifier.rfind(':')); }

std::string MessageContent::key() const {
    const auto colon = identifier.rfind(':');
    return colon == std::string::npos ? identifier : identifier.substr(colon + 1);
}

std::u16string MessageContent::text() const { return formatMessage(identifier, arguments); }

}  // namespace orrery::catalogue
