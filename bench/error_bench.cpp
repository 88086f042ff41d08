// Cost of raising a user error through the error built-in, against throwing a
// plain C++ exception that carries the same identifier and message.
#include "bench/ratio_reporter.hpp"

#include "diagnostic/errors/error_builtins.hpp"

#include <orrery/except/qexception.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/value/value_array.hpp>

#include <exception>
#include <string>

namespace {

using orrery::value::ValueArray;

// error('ORRERY:bench:outOfRange', 'value %d is out of range', 42), caught.
void errorBuiltin(benchmark::State& state) {
    const ValueArray inputs[] = {ValueArray::charsFromUtf8("ORRERY:bench:outOfRange"),
                                 ValueArray::charsFromUtf8("value %d is out of range"), ValueArray::scalar(42)};
    const ValueArray* const pointers[] = {&inputs[0], &inputs[1], &inputs[2]};
    orrery::value::ValueArrayPtr slot;
    for (auto _ : state) {
        try {
            bnFullErrorFcn(0, &slot, 3, pointers);
        } catch (const orrery::except::QException& error) {
            benchmark::DoNotOptimize(error.message().data());
        }
    }
}

struct PlainError : std::exception {
    PlainError(std::string id, std::u16string text) : identifier(std::move(id)), message(std::move(text)) {}
    std::string identifier;
    std::u16string message;
};

// The floor: the same texts in a plain exception, constructed, thrown and caught.
void errorBuiltinFloor(benchmark::State& state) {
    const std::string identifier = "ORRERY:bench:outOfRange";
    const std::u16string message = u"value 42 is out of range";
    state.SetLabel("a C++ exception holding the same texts, thrown and caught");
    for (auto _ : state) {
        try {
            throw PlainError(identifier, message);
        } catch (const PlainError& error) {
            benchmark::DoNotOptimize(error.message.data());
        }
    }
}

}  // namespace

BENCHMARK(errorBuiltin)->Repetitions(5);
BENCHMARK(errorBuiltinFloor)->Repetitions(5);

int main(int argc, char** argv) {
    // Errors are raised inside an interpreter instance, as in a session.
    const orrery::interp::VirtualMachineScope machine;
    return orrery::bench::runWithRatios(argc, argv);
}
