// A stand-in for the diagnostic module, for the shell's loader tests: it
// reports its entry points on standard output and answers each bound
// built-in with the built-in's own exported name. Built without
// ORRERY_TEST_MODULE_COMPLETE it lacks bnLastErrorFcn.
#include <orrery/value/value_array.hpp>

#include <cstdint>
#include <cstdio>

#define TEST_MODULE_EXPORT extern "C" __attribute__((visibility("default")))

TEST_MODULE_EXPORT void LxInitialize_diagnostic() {
    std::printf("test module: initialised\n");
    std::fflush(stdout);
}

TEST_MODULE_EXPORT void LxTerminate_diagnostic() {
    std::printf("test module: terminated\n");
    std::fflush(stdout);
}

#define TEST_MODULE_BUILTIN(symbol)                                                                \
    TEST_MODULE_EXPORT void symbol(std::int32_t, orrery::value::ValueArrayPtr* plhs, std::int32_t, \
                                   const orrery::value::ValueArray* const*) {                      \
        plhs[0] = orrery::value::makeValue(orrery::value::ValueArray::charsFromUtf8(#symbol));     \
    }

TEST_MODULE_BUILTIN(bnFullErrorFcn)
TEST_MODULE_BUILTIN(bnFullAssertFcn)
TEST_MODULE_BUILTIN(bnStructRethrowFcn)
TEST_MODULE_BUILTIN(bnLastErrMsg)
TEST_MODULE_BUILTIN(bnFullWarningFcn)
TEST_MODULE_BUILTIN(bnLastWarningMsg)
#ifdef ORRERY_TEST_MODULE_COMPLETE
TEST_MODULE_BUILTIN(bnLastErrorFcn)
#endif
