// The warning log reader's state machine: what each element start, element end
// and run of character data does to the records being built.
#pragma once

#include "diagnostic/log/log_argument_conversion.hpp"

#include <orrery/interp/dates.hpp>
#include <orrery/lang/warning.hpp>

#include <expat.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::lang::diagnostic {

/// What a summary reads of each warning: identifier, wasDisabled and time.
using WarningHeadVisitor = std::function<void(std::string_view identifier, bool wasDisabled, double time)>;

/// Where a read builds its records: called as each "warning" element starts, in
/// file order, it answers a new empty record that the reader fills in place
/// until the element ends; the reference must stay valid until the next call.
using WarningRecordStore = std::function<Warning&()>;

/// Checks the nesting log, warning, leaf ("message", "format", "arg", "frame")
/// and every attribute and text. Given a store, it builds one record per
/// "warning" element in the store and keeps none itself. Without one
/// (scan-only) it checks the structure, identifiers, wasDisabled
/// values, argument types and frames, but builds nothing and reads no times;
/// given a visitor then, it reads each warning's time too and hands the visitor
/// the warning's head (a summary that needs no texts, arguments or frames).
/// Every failure is raised as its "ORRERY:warning:XMLParser" identifier (or
/// boost::bad_lexical_cast for an argument text); the machine is then spent.
class WarningLogEvents {
public:
    /// localOffset: the reader's offset from UTC, to which times are moved.
    WarningLogEvents(interp::UtcOffset localOffset, WarningRecordStore store, WarningHeadVisitor visitHead = {});

    /// An element starts: its name and Expat's null-terminated attribute list.
    void startElement(const XML_Char* name, const XML_Char** attributes);
    /// An element ends; byteIndex is the offset of its end tag in the file.
    void endElement(const XML_Char* name, std::uint64_t byteIndex);
    /// A run of character data (UTF-8).
    void characterData(std::string_view utf8);

    /// The offset of the closing "log" tag; 0 until it has been seen.
    std::uint64_t logEnd() const noexcept { return logEnd_; }

private:
    void enterLeaf(const XML_Char* name);
    void startWarning(const XML_Char** values);
    void startArg(const XML_Char* type);
    void startFrame(const XML_Char** values);
    void endWarning();
    void endArg();

    bool scanOnly_;
    interp::UtcOffset localOffset_;
    WarningRecordStore store_;
    WarningHeadVisitor visitHead_;
    Warning* record_ = nullptr;
    std::vector<PrintfArgument> pendingArguments_;
    std::vector<StackFrame> pendingFrames_;
    std::u16string text_;
    LogArgType argType_ = LogArgType::String;
    bool inLog_ = false;
    bool inWarning_ = false;
    bool inLeaf_ = false;
    std::uint64_t logEnd_ = 0;
};

}  // namespace orrery::lang::diagnostic
