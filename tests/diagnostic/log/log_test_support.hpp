// Support of the warning log tests: a temporary working folder, a file's bytes,
// the independent well-formedness check of a written log, a time zone scope and
// readable typed format arguments ("int32 7", "string abc") in failures.
#pragma once

#include <orrery/lang/printf_argument.hpp>
#include <orrery/text/text.hpp>

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <ostream>
#include <string>

namespace orrery::test {

/// The bytes before and after the warnings of every written log.
inline const std::string kHeader = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<log>\n";
inline const std::string kFooter = "</log>\n";

/// A fresh folder made the current folder while it lives; afterwards the previous
/// current folder is restored and the folder removed with all it holds.
class TemporaryWorkingFolder {
public:
    TemporaryWorkingFolder() {
        // The message catalogue may be named relative to the folder the tests started in.
        if (const char* catalogue = std::getenv("ORRERY_CATALOGUE_DIR"))
            ::setenv("ORRERY_CATALOGUE_DIR", std::filesystem::absolute(catalogue).c_str(), 1);
        static int made = 0;
        path_ = std::filesystem::temp_directory_path() /
                ("orrery_log_" + std::to_string(::getpid()) + "_" + std::to_string(++made));
        std::filesystem::create_directories(path_);
        path_ = std::filesystem::canonical(path_);
        std::filesystem::current_path(path_);
    }
    ~TemporaryWorkingFolder() {
        std::error_code ignored;
        std::filesystem::current_path(previous_, ignored);
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryWorkingFolder(const TemporaryWorkingFolder&) = delete;
    TemporaryWorkingFolder& operator=(const TemporaryWorkingFolder&) = delete;

    /// The absolute path of name in the folder, as UTF-16.
    std::u16string file(const std::string& name) const { return text::utf8ToUtf16((path_ / name).string()); }

private:
    std::filesystem::path previous_ = std::filesystem::current_path();
    std::filesystem::path path_;
};

/// All bytes of the file.
inline std::string fileBytes(const std::u16string& path) {
    std::ifstream in(text::utf16ToUtf8(path), std::ios_base::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// Fails the test unless xmllint, which shares nothing with the log's own reader,
/// finds the file well-formed.
inline void expectWellFormedXml(const std::u16string& path) {
    const std::string command = "xmllint --noout '" + text::utf16ToUtf8(path) + "'";
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
}

/// Selects a time zone while it lives, then gives the process its own zone back.
class ZoneScope {
public:
    explicit ZoneScope(const char* zone) { use(zone); }
    ~ZoneScope() { use(previous_ ? previous_->c_str() : nullptr); }
    ZoneScope(const ZoneScope&) = delete;
    ZoneScope& operator=(const ZoneScope&) = delete;

private:
    static void use(const char* zone) {
        if (zone != nullptr)
            ::setenv("TZ", zone, 1);
        else
            ::unsetenv("TZ");
        ::tzset();
    }
    std::optional<std::string> previous_ =
        std::getenv("TZ") != nullptr ? std::optional<std::string>(std::getenv("TZ")) : std::nullopt;
};

}  // namespace orrery::test

namespace orrery::lang {

/// Found by GoogleTest through argument-dependent lookup.
inline void PrintTo(const PrintfArgument& argument, std::ostream* os) {
    std::u16string value;
    const std::u16string type = argument.getTypeAndValue(value);
    *os << text::utf16ToUtf8Lossy(type) << ' ' << text::utf16ToUtf8Lossy(value);
}

}  // namespace orrery::lang
