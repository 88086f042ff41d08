// Message catalogue on an ICU resource bundle of nested tables, one level per
// identifier component, formatted with ICU MessageFormat. The entries are indexed
// by identifier once; each parses its MessageFormat on first use and keeps it.
#include <orrery/catalogue/catalogue.hpp>
#include <orrery/catalogue/message_content.hpp>
#include <orrery/except/internal_error.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>
#include <orrery/text/text_hash.hpp>

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
#include <stdexcept>
#include <system_error>
#include <unordered_map>
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

// ---- the index of entries -------------------------------------------------------

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

// One entry: its pattern, which aliases the bundle's memory, and the format parsed
// from it on first use, in the ICU default locale of that use.
class Entry {
public:
    explicit Entry(icu::UnicodeString pattern) : pattern_(std::move(pattern)) {}

    std::size_t argumentCount(std::string_view identifier) const { return parsed(identifier).argumentCount; }

    // A MessageFormat makes its default number and date formats inside format() on
    // first need, so it serves one caller at a time. After a change of the default
    // locale the text is formatted in the new one, by a format made for the call.
    icu::UnicodeString format(std::string_view identifier, const icu::Formattable* values, int32_t count,
                              UErrorCode& status) const {
        Parsed& made = parsed(identifier);
        icu::UnicodeString result;
        icu::FieldPosition position;
        if (made.format.getLocale() != icu::Locale::getDefault()) {
            icu::MessageFormat(pattern_, icu::Locale::getDefault(), status)
                .format(values, count, result, position, status);
            return result;
        }
        const std::lock_guard lock(made.formatting);
        made.format.format(values, count, result, position, status);
        return result;
    }

private:
    struct Parsed {
        Parsed(const icu::UnicodeString& pattern, UErrorCode& status)
            : format(pattern, icu::Locale::getDefault(), status), argumentCount(argumentsUsed(pattern)) {}
        icu::MessageFormat format;
        std::size_t argumentCount;
        std::mutex formatting;
    };

    Parsed& parsed(std::string_view identifier) const {
        std::call_once(once_, [&] {
            UErrorCode status = U_ZERO_ERROR;
            auto made = std::make_unique<Parsed>(pattern_, status);
            if (U_FAILURE(status))
                except::internalError("message catalogue", "malformed entry for " + std::string(identifier));
            parsed_ = std::move(made);
        });
        return *parsed_;
    }

    icu::UnicodeString pattern_;
    mutable std::once_flag once_;
    mutable std::unique_ptr<Parsed> parsed_;
};

using Index = std::unordered_map<std::string, Entry, text::TextHash, std::equal_to<>>;

// Adds the texts of a table and of the tables within it under their identifiers.
void addEntries(const UResourceBundle& table, const std::string& prefix, Index& index) {
    const int32_t size = ures_getSize(&table);
    for (int32_t i = 0; i < size; ++i) {
        UErrorCode status = U_ZERO_ERROR;
        const Bundle item(ures_getByIndex(&table, i, nullptr, &status));
        if (U_FAILURE(status)) continue;
        const std::string identifier = (prefix.empty() ? "" : prefix + ":") + ures_getKey(item.get());
        if (ures_getType(item.get()) == URES_TABLE) {
            addEntries(*item, identifier, index);
            continue;
        }
        int32_t length = 0;
        const UChar* pattern = ures_getString(item.get(), &length, &status);
        // The bundle stays open for good, so the pattern may alias its memory.
        if (U_SUCCESS(status)) index.try_emplace(identifier, icu::UnicodeString(false, pattern, length));
    }
}

// Every entry of the catalogue, indexed once; read without a lock after that.
const Index& entries() {
    static const Index index = [] {
        Index made;
        addEntries(rootBundle(), "", made);
        return made;
    }();
    return index;
}

// The entry of the identifier, or null when there is none.
const Entry* findEntry(std::string_view identifier) {
    const Index& index = entries();
    const auto found = index.find(identifier);
    return found == index.end() ? nullptr : &found->second;
}

icu::Formattable toFormattable(const MessageArgument& argument) {
    if (const auto* number = std::get_if<double>(&argument)) return icu::Formattable(*number);
    const auto& text = std::get<std::u16string>(argument);
    return icu::Formattable(icu::UnicodeString(text.data(), static_cast<int32_t>(text.size())));
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

bool hasMessage(std::string_view identifier) { return findEntry(identifier) != nullptr; }

namespace {

// The entry of the identifier; a missing entry raises "noSuchMessage".
const Entry& requireEntry(std::string_view identifier) {
    const Entry* entry = findEntry(identifier);
    if (entry == nullptr) except::throwMessage(NoSuchMessage(text::utf8ToUtf16(identifier)));
    return *entry;
}

}  // namespace

std::size_t messageArgumentCount(std::string_view identifier) {
    return requireEntry(identifier).argumentCount(identifier);
}

std::u16string formatMessage(std::string_view identifier, std::span<const MessageArgument> arguments) {
    const Entry& entry = requireEntry(identifier);
    if (arguments.size() != entry.argumentCount(identifier))
        except::throwMessage(ArgumentMismatch(text::utf8ToUtf16(identifier)));
    std::vector<icu::Formattable> values;
    values.reserve(arguments.size());
    for (const auto& argument : arguments) values.push_back(toFormattable(argument));
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString result =
        entry.format(identifier, values.data(), static_cast<int32_t>(values.size()), status);
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
