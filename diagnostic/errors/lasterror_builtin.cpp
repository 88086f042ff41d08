// The lasterror built-in: the last error as a structure, replaced or reset.
#include "diagnostic/errors/error_builtins.hpp"

#include "diagnostic/errors/error_structure.hpp"
#include "diagnostic/errors/stack_validation.hpp"
#include "diagnostic/module/diagnostic_ids.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/qexception.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <string>
#include <string_view>

namespace {

using orrery::value::ClassId;
using orrery::value::Dims;
using orrery::value::ValueArray;
using orrery::value::ValueArrayPtr;
namespace except = orrery::except;
namespace ids = orrery::diagnostic::ids;
using LastError = except::QException::LastError;

// The 0-by-1 stack that stands for "no stack", made once per process.
const ValueArray& emptyStackArray() {
    static const ValueArray empty = ValueArray::stackStructure(0);
    return empty;
}

ValueArray lastErrorStructure() {
    const auto record = LastError::Get();
    if (record.stack) orrery::diagnostic::validateStack(*record.stack);
    auto structure = ValueArray::structArray(Dims{1, 1}, {"message", "identifier", "stack"});
    structure.setField(0, "message", ValueArray::chars(record.message));
    structure.setField(0, "identifier", ValueArray::charsFromUtf8(record.identifier));
    structure.setField(0, "stack", record.stack ? record.stack->sharedCopy() : emptyStackArray());
    return structure;
}

// Compares with "reset" ignoring ASCII case. Deliberately, a unit above 127 fails
// the text layer's way only when reached: within the first five units and after
// every unit before it has matched.
bool isResetKeyword(std::u16string_view text) {
    constexpr std::string_view keyword = "reset";
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i >= keyword.size()) return false;
        const std::string unit = orrery::text::utf16ToAscii(text.substr(i, 1));
        if (!orrery::text::equalsIgnoreCaseAscii(unit, keyword.substr(i, 1))) return false;
    }
    return text.size() == keyword.size();
}

void resetRecord() { LastError::Set("", u"", emptyStackArray()); }

void replaceRecord(const ValueArray& input) {
    if (input.is(ClassId::Struct) || input.is(ClassId::Object)) {
        if (input.isEmpty()) return resetRecord();
        auto error = orrery::diagnostic::readErrorStructure(input);
        return LastError::Set(std::move(error.identifier), std::move(error.message), std::move(error.stack));
    }
    if (!input.isTextScalar() || input.text().empty()) except::throwMessage(ids::LasterrorNonStructureInput());
    if (!isResetKeyword(input.text())) except::throwMessage(ids::LasterrorNonStructureInput());
    resetRecord();
}

}  // namespace

void bnLastErrorFcn(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    except::checkArgumentCounts(nlhs, 1, nrhs, 0, 1);
    emptyStackArray();
    // The output describes the record as it was before any change below.
    if (nrhs == 0 || nlhs > 0) plhs[0] = orrery::value::makeValue(lastErrorStructure());
    if (nrhs == 0) return;
    replaceRecord(*prhs[0]);
}
