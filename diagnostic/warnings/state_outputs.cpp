// State structures returned by the state commands.
#include "diagnostic/warnings/state_outputs.hpp"

#include "diagnostic/warnings/warning_ids.hpp"
#include "diagnostic/warnings/warning_state.hpp"

#include <orrery/warning/warning_operation.hpp>

#include <string>
#include <utility>
#include <vector>

namespace orrery::diagnostic {
namespace {

using value::Dims;
using value::ValueArray;
using warning::WarningState;

ValueArray stateColumnOfAll(warning::WarningManagerContext* context) {
    const WarningState defaultState = warning::utGetWarningStatus(context, "all");
    std::vector<std::pair<std::string, WarningState>> rows{{"all", defaultState}};
    rows.reserve(warning::utCountWarningsInWarningManager(context) + 1);
    warning::utIterateOverWarningStatuses(context, [&](const std::string& identifier, WarningState state) {
        if (state != defaultState) rows.emplace_back(identifier, state);
    });
    auto column = ValueArray::structArray(Dims{rows.size(), 1}, {"identifier", "state"});
    for (std::size_t i = 0; i < rows.size(); ++i) {
        column.setField(i, "identifier", ValueArray::charsFromUtf8(rows[i].first));
        column.setField(i, "state", stateNameValue(rows[i].second));
    }
    return column;
}

ValueArray stateOf(warning::WarningManagerContext* context, std::string_view target) {
    if (target.empty()) return ValueArray::structArray(Dims{0, 0}, {"identifier", "state"});
    if (isWord(target, "all")) return stateColumnOfAll(context);
    auto state = ValueArray::structArray(Dims{1, 1}, {"identifier", "state"});
    state.setField(0, "identifier", ValueArray::charsFromUtf8(target));
    state.setField(0, "state", stateNameValue(currentState(context, target)));
    return state;
}

}  // namespace

void produceStateOutputs(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                         std::string_view target) {
    if (nlhs <= 0) return;
    if (nlhs >= 2) {
        warning::issueCatalogueWarning(context,
                                       catalogue::MessageContent{std::string(ids::kFrequencyOutputObsolete), {}});
        plhs[1] = value::makeValue(ValueArray::charsFromUtf8("always"));
    }
    plhs[0] = value::makeValue(stateOf(context, target));
}

}  // namespace orrery::diagnostic
