// Fuzzes the module's built-ins (error, assert, rethrow, lasterr, lasterror,
// warning in all its forms, warning with a structure, lastwarn) with values
// decoded from the input. Each input runs a few calls in a fresh interpreter,
// so the warning states and the last error and warning start alike every time.
// A user error or a catalogued failure is the answer to bad input; anything
// else (an internal error above all) escapes and ends the run as a finding.
#include "diagnostic/errors/error_builtins.hpp"
#include "diagnostic/module/entry_points.hpp"
#include "diagnostic/warnings/warning_builtins.hpp"
#include "fuzz/fuzz_input.hpp"
#include "fuzz/fuzz_values.hpp"

#include <orrery/console/console_capture.hpp>
#include <orrery/except/msg_id_exception.hpp>
#include <orrery/except/qexception.hpp>
#include <orrery/interp/virtual_machine.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

using namespace orrery;

constexpr std::array<value::BuiltinFunction, 8> kBuiltins = {
    &bnFullErrorFcn, &bnFullAssertFcn,  &bnStructRethrowFcn,    &bnLastErrMsg,
    &bnLastErrorFcn, &bnFullWarningFcn, &bnStructureWarningFcn, &bnLastWarningMsg,
};

// The module attached to the interpreter for as long as it lives.
class ModuleScope {
public:
    ModuleScope() { LxInitialize_diagnostic(); }
    ~ModuleScope() { LxTerminate_diagnostic(); }
    ModuleScope(const ModuleScope&) = delete;
    ModuleScope& operator=(const ModuleScope&) = delete;
};

void callOnce(fuzz::FuzzInput& in) {
    const value::BuiltinFunction builtin = kBuiltins[in.below(kBuiltins.size())];
    // Up to three requested outputs (one more than any of them gives) and up to
    // four inputs.
    const auto nlhs = static_cast<std::int32_t>(in.below(4));
    std::vector<value::ValueArray> inputs(in.below(5));
    for (auto& input : inputs) input = fuzz::decodeValue(in);
    std::vector<const value::ValueArray*> pointers;
    for (const auto& input : inputs) pointers.push_back(&input);
    std::vector<value::ValueArrayPtr> outputs(static_cast<std::size_t>(nlhs) + 1);
    try {
        builtin(nlhs, outputs.data(), static_cast<std::int32_t>(pointers.size()), pointers.data());
    } catch (const except::QException&) {
        // the user error the inputs describe
    } catch (const except::IMsgIDException&) {
        // a catalogued refusal of the inputs
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const interp::VirtualMachineScope machine;
    const console::ConsoleCapture console;
    const ModuleScope module;
    fuzz::FuzzInput in(data, size);
    for (int calls = 0; calls < 4 && !in.empty(); ++calls) callOnce(in);
    return 0;
}
