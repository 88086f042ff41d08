// A C library locale that writes numbers with a decimal comma, for tests that
// text reads as the same number under any locale.
#pragma once

#include <clocale>
#include <string>

namespace orrery::testing {

/// Switches the whole C library (LC_ALL) to the first decimal-comma locale that is
/// installed, and back to the previous locale when it goes.
class DecimalCommaLocale {
public:
    DecimalCommaLocale() : previous_(std::setlocale(LC_ALL, nullptr)) {
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8"}) {
            if (std::setlocale(LC_ALL, name) != nullptr) break;
        }
    }
    ~DecimalCommaLocale() { std::setlocale(LC_ALL, previous_.c_str()); }
    DecimalCommaLocale(const DecimalCommaLocale&) = delete;
    DecimalCommaLocale& operator=(const DecimalCommaLocale&) = delete;

    /// True when the locale in force now writes "1,5".
    static bool active() { return std::localeconv()->decimal_point == std::string(","); }

private:
    std::string previous_;
};

}  // namespace orrery::testing

/// Switches to a decimal-comma locale for the rest of the scope, or skips the test
/// when none is installed (scripts/setup.sh generates de_DE.UTF-8).
#define ORRERY_USE_DECIMAL_COMMA_LOCALE()                             \
    const ::orrery::testing::DecimalCommaLocale decimalCommaLocale__; \
    if (!::orrery::testing::DecimalCommaLocale::active()) GTEST_SKIP() << "no decimal-comma locale installed"
