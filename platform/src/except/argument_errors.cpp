// The standard argument errors of built-ins.
#include <orrery/except/argument_errors.hpp>
#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>

namespace orrery::except {

void throwTooManyOutputs() { throwMessage(host::TooManyOutputs()); }
void throwTooManyInputs() { throwMessage(host::TooManyInputs()); }
void throwNotEnoughInputs() { throwMessage(host::NotEnoughInputs()); }
void throwInvalidInput() { throwMessage(host::InvalidInput()); }

void checkArgumentCounts(std::int32_t nlhs, std::int32_t maxOutputs, std::int32_t nrhs, std::int32_t minInputs,
                         std::int32_t maxInputs) {
    if (nlhs > maxOutputs) throwTooManyOutputs();
    if (nrhs > maxInputs) throwTooManyInputs();
    if (nrhs < minInputs) throwNotEnoughInputs();
}

}  // namespace orrery::except
