// WarningLogXML: the set of open log files, and writing each warning to all of them.
#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_file_name.hpp"
#include "diagnostic/log/warning_element.hpp"
#include "diagnostic/log/warning_log_xml.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;

void WarningLogXML::openLog(const std::u16string& fileName) {
    std::u16string name = normaliseLogFileName(fileName);
    if (const auto open = openLogs_.find(name); open != openLogs_.end()) {
        if (open->first == name) except::throwMessage(ids::LogFileOpen(name));
        except::throwMessage(ids::LogFileOpenCase(open->first));
    }
    auto stream = openLogForWriting(name);
    openLogs_.emplace(std::move(name), std::move(stream));
}

void WarningLogXML::closeLog(const std::u16string& fileName) {
    const std::u16string name = normaliseLogFileName(fileName);
    if (openLogs_.erase(name) == 0) except::throwMessage(ids::LogFileNotOpen(name));
}

// The element is rendered once, in UTF-8 into the kept buffer, however many logs
// are open; a failing log stops the writing of this warning to the logs after it.
void WarningLogXML::writeToOpenLogs(const Warning& warning) {
    if (openLogs_.empty()) return;
    element_.clear();
    appendWarningElement(element_, warning);
    for (const auto& [name, log] : openLogs_) log->writeElement(element_);
}

}  // namespace orrery::lang::diagnostic
