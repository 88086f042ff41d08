// The module's warning-log factory and destroy functions.
#include "diagnostic/log/warning_log_factory.hpp"

#include "diagnostic/log/warning_log_xml.hpp"

#include <new>

namespace orrery::lang::diagnostic {

warning::utWarningLog* createWarningLog() noexcept {
    try {
        return new WarningLogXML();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void destroyWarningLog(warning::utWarningLog* log) noexcept { delete log; }

}  // namespace orrery::lang::diagnostic
