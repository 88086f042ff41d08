// Registration of the Warning class and the log functions at module start.
#include "diagnostic/classes/class_registration.hpp"

#include "diagnostic/classes/log_functions.hpp"
#include "diagnostic/classes/warning_info.hpp"

#include <orrery/ocos/registry.hpp>

#include <memory>

namespace orrery::lang::diagnostic {
namespace {

ocos::COSNamespace& internalNamespace() {
    ocos::COSNamespace* internal = ocos::getNamespace("orrery").getInnerNamespace("internal");
    return *internal;
}

}  // namespace

void registerWarningClass(ocos::COSNamespace& internal) {
    ocos::COSNamespace& diagnostic = *internal.getInnerNamespace("diagnostic");
    diagnostic.registerClass("Warning", std::make_shared<WarningInfo>());
    ocos::COSNamespace& log = *diagnostic.getInnerNamespace("log");
    log.addFunction(std::make_shared<OpenLogMI>());
    log.addFunction(std::make_shared<CloseLogMI>());
    log.addFunction(std::make_shared<LoadLogMI>());
    log.addFunction(std::make_shared<SummaryLogMI>());
}

void registerWarningClassForModule() {
    if (ocos::isPerInstanceStorage()) {
        registerWarningClass(internalNamespace());
        return;
    }
    static const bool registered = (registerWarningClass(internalNamespace()), true);
    (void)registered;
}

}  // namespace orrery::lang::diagnostic
