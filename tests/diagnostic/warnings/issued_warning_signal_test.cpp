// Tests of the issued-warning signal and its connection point.
#include "diagnostic/warnings/issued_warning_signal.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>

using orrery::lang::diagnostic::emitIssuedWarning;
using orrery::lang::diagnostic::hasIssuedWarningSlots;
using orrery::lang::diagnostic::Warning;

TEST(IssuedWarningSignal, ConnectedSlotsHearTheRecordUntilDisconnected) {
    EXPECT_FALSE(hasIssuedWarningSlots());
    std::string heard;
    std::optional<boost::signals2::scoped_connection> connection =
        builtins::connectIssuedWarningCallback([&heard](const Warning& w) { heard += w.getIdentifier() + ";"; });
    EXPECT_TRUE(hasIssuedWarningSlots());
    Warning warning;
    warning.setIdentifier("a:b");
    emitIssuedWarning(warning);
    connection.reset();
    EXPECT_FALSE(hasIssuedWarningSlots());
    emitIssuedWarning(warning);
    EXPECT_EQ(heard, "a:b;");
}
