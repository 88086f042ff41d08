// Tests of lasterror on a record a script cannot make (the last_error script
// shows lasterr and lasterror end to end).
#include "diagnostic/errors/error_builtins.hpp"

#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

using LastError = orrery::except::QException::LastError;
using namespace orrery::testing;

TEST(Lasterror, AStoredBadStackIsReportedWhenRead) {
    LastError::Set("a:b", u"m", ValueArray::structArray(Dims{1, 2}, {"file", "name", "line"}));
    EXPECT_MSGID(callBuiltin(&bnLastErrorFcn, 1, {}), "ORRERY:error:badStack");
    LastError::Set("", u"", std::nullopt);
}
