// The warning manager context: what one interpreter instance's warning manager keeps.
#pragma once

#include "warning/warning_state_table.hpp"

#include <orrery/warning/warning_manager.hpp>

#include <functional>
#include <memory>
#include <string>

namespace orrery::warning {

/// Destroys a log through the destroy function installed when it was set; a log
/// set while none was installed is left alone.
struct WarningLogDeleter {
    utWarningLogDestroyFcn destroy = nullptr;
    void operator()(utWarningLog* log) const {
        if (destroy != nullptr) destroy(log);
    }
};

using OwnedWarningLog = std::unique_ptr<utWarningLog, WarningLogDeleter>;

struct WarningManagerContext {
    WarningStateTable states;  // identifiers' own states; the default is for the rest
    WarningState defaultState = WarningState::On;
    bool modes[3] = {false, true, false};  // indexed by WarningMode
    std::u16string lastMessage;
    std::string lastIdentifier;
    std::string lastPrintedIdentifier;
    std::function<void()> callback;
    OwnedWarningLog log;  // last, so that the log goes while the rest is still whole
};

}  // namespace orrery::warning
