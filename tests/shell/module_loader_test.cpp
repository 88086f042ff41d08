// The module loader refuses a file that is not a library. Where the module is
// looked for, the binding of each built-in to its language name and the other
// start-up errors are proved by the startup_* script tests.
#include "shell/startup/module_loader.hpp"

#include "tests/support/expect_error.hpp"

#include <string>

TEST(ModuleLoader, RefusesAFileThatIsNotALibrary) {
    const std::string notALibrary = std::string(ORRERY_SOURCE_DIR) + "/tests/shell/test_module/test_module.cc";
    EXPECT_MSGID(orrery::shell::startup::DiagnosticModule{notALibrary}, "ORRERY:shell:moduleNotLoaded");
}
