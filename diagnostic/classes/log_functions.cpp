// open, close, load and summary of warning logs, called from the language by
// dotted name.
#include "diagnostic/classes/log_functions.hpp"

#include "diagnostic/classes/warning_info.hpp"
#include "diagnostic/log/issue_warning.hpp"
#include "diagnostic/log/warning_log_reader.hpp"
#include "diagnostic/log/warning_log_summary.hpp"
#include "diagnostic/record/warning_row_builder.hpp"

#include <orrery/except/internal_error.hpp>
#include <orrery/warning/warning_log.hpp>
#include <orrery/warning/warning_manager.hpp>

namespace orrery::lang::diagnostic {
namespace {

/// The current context's log, made and installed when there is none.
warning::utWarningLog& currentLog() {
    warning::WarningManagerContext* context = warning::utGetWarningManagerContext();
    if (context == nullptr) except::internalError("warning log", "no warning manager context");
    warning::utWarningLog* log = getOrCreateWarningLog(context);
    if (log == nullptr) except::internalError("warning log", "the warning log could not be made");
    return *log;
}

}  // namespace

OpenLogMI::OpenLogMI() : WarningBaseMI("open") { addInput(ocos::intern("unicodeString")); }

void OpenLogMI::invoke(std::int32_t /*nlhs*/, value::ValueArrayPtr* /*plhs*/, std::int32_t /*nrhs*/,
                       const value::ValueArray* const* prhs) const {
    const std::u16string fileName = prhs[0]->text();
    currentLog().openLog(fileName);
}

CloseLogMI::CloseLogMI() : WarningBaseMI("close") { addInput(ocos::intern("unicodeString")); }

void CloseLogMI::invoke(std::int32_t /*nlhs*/, value::ValueArrayPtr* /*plhs*/, std::int32_t /*nrhs*/,
                        const value::ValueArray* const* prhs) const {
    const std::u16string fileName = prhs[0]->text();
    currentLog().closeLog(fileName);
}

LoadLogMI::LoadLogMI() : WarningBaseMI("load") {
    addInput(ocos::intern("unicodeString"));
    addOutput(ocos::intern(kWarningClassPath));
}

void LoadLogMI::invoke(std::int32_t /*nlhs*/, value::ValueArrayPtr* plhs, std::int32_t /*nrhs*/,
                       const value::ValueArray* const* prhs) const {
    const std::u16string fileName = prhs[0]->text();
    // Each record is read straight into its object; a failure drops the objects
    // made so far and leaves no array.
    WarningRowBuilder row;
    readWarningLog(fileName, [&row]() -> Warning& { return row.add(); });
    plhs[0] = row.finish();
}

SummaryLogMI::SummaryLogMI() : WarningBaseMI("summary") {
    addInput(ocos::intern("unicodeString"));
    addOutput(ocos::intern("struct"));
}

void SummaryLogMI::invoke(std::int32_t /*nlhs*/, value::ValueArrayPtr* plhs, std::int32_t /*nrhs*/,
                          const value::ValueArray* const* prhs) const {
    using value::ValueArray;
    const std::vector<IdentifierTally> tallies = summariseWarningLog(prhs[0]->text(), kSummaryParts);
    ValueArray summary = ValueArray::structArray(value::Dims{tallies.size(), 1},
                                                 {"identifier", "count", "disabled", "first", "last", "timeline"});
    for (std::size_t i = 0; i < tallies.size(); ++i) {
        const IdentifierTally& tally = tallies[i];
        summary.setField(i, "identifier", ValueArray::charsFromUtf8(tally.identifier));
        summary.setField(i, "count", ValueArray::scalar(static_cast<double>(tally.count)));
        summary.setField(i, "disabled", ValueArray::scalar(static_cast<double>(tally.disabled)));
        summary.setField(i, "first", ValueArray::scalar(tally.first));
        summary.setField(i, "last", ValueArray::scalar(tally.last));
        summary.setField(i, "timeline", ValueArray::doubles(value::Dims{1, tally.timeline.size()}, tally.timeline));
    }
    plhs[0] = value::makeValue(std::move(summary));
}

}  // namespace orrery::lang::diagnostic
