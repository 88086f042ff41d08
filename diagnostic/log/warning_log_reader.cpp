// Reading a warning log file: the file fed to Expat in blocks, the parser's events
// passed to the reader's state machine.
#include "diagnostic/log/warning_log_reader.hpp"

#include "diagnostic/log/expat_parser.hpp"
#include "diagnostic/log/log_file_format.hpp"
#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_file_io.hpp"
#include "diagnostic/log/log_file_name.hpp"
#include "diagnostic/log/log_file_open.hpp"
#include "diagnostic/log/log_stream_failure.hpp"
#include "diagnostic/log/warning_log_events.hpp"
#include "diagnostic/log/xml_parser_ids.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <exception>
#include <string_view>
#include <utility>

namespace orrery::lang::diagnostic {
namespace {

namespace ids = orrery::diagnostic::ids;

constexpr std::size_t kBlockSize = 1024;
constexpr std::size_t kLargestBlock = std::size_t{1} << 28;
constexpr std::size_t kReadAhead = std::size_t{64} * 1024;

// One read of one open file: the parser and the state machine. Expat calls back
// through C frames, so a failure inside a callback is caught there, the parser
// stopped, and the failure raised again once Expat has returned.
class WarningLogReader {
public:
    /// Builds records in the store, or only scans without one (visitHead then
    /// receiving each warning's head when given).
    WarningLogReader(const LogFileDescriptor& file, std::u16string fileName, const WarningRecordStore& store,
                     WarningHeadVisitor visitHead = {})
        : file_(file),
          fileName_(std::move(fileName)),
          parser_(makeExpatParser()),
          events_(!store && !visitHead ? interp::UtcOffset{} : interp::localUtcOffset(), store, std::move(visitHead)) {
        XML_SetUserData(parser_.get(), this);
        XML_SetElementHandler(parser_.get(), &WarningLogReader::onStart, &WarningLogReader::onEnd);
        XML_SetXmlDeclHandler(parser_.get(), &WarningLogReader::onDeclaration);
        if (store) XML_SetCharacterDataHandler(parser_.get(), &WarningLogReader::onCharacterData);
    }

    /// Feeds the whole file to the parser, in blocks of kBlockSize bytes. Expat
    /// scans a token that is still open (a huge attribute value, name or comment)
    /// again from its start at every block, so while one stays open across a whole
    /// block the block size doubles, which keeps the scan linear in the file size.
    void read() {
        std::size_t blockSize = kBlockSize;
        for (;;) {
            void* block = XML_GetBuffer(parser_.get(), static_cast<int>(blockSize));
            if (block == nullptr) throw std::bad_alloc();
            const std::size_t count = readAt(static_cast<char*>(block), blockSize, fed_);
            const bool final = count < blockSize;
            const XML_Status status = XML_ParseBuffer(parser_.get(), static_cast<int>(count), final);
            if (failure_) std::rethrow_exception(failure_);
            if (status != XML_STATUS_OK) {
                if (rootEnded_ && onlyRemainsAfterRoot()) return;
                raiseParseError();
            }
            if (final) return;
            fed_ += count;
            // After a successful parse the index is that of the last event: what lies
            // beyond it is the open token.
            const auto open = fed_ - static_cast<std::uint64_t>(XML_GetCurrentByteIndex(parser_.get()));
            blockSize = open > blockSize && blockSize < kLargestBlock ? 2 * blockSize : kBlockSize;
        }
    }

    const WarningLogEvents& events() const noexcept { return events_; }
    const std::string& declaredEncoding() const noexcept { return declaredEncoding_; }

private:
    // Blocks are served from a larger read ahead, which spares a system call per block.
    std::size_t readAt(char* block, std::size_t size, std::uint64_t offset) {
        if (offset < aheadStart_ || offset + size > aheadStart_ + ahead_.size()) {
            ahead_.resize(std::max(kReadAhead, size));
            ahead_.resize(readLogBytesAt(file_, offset, ahead_.data(), ahead_.size(), fileName_));
            aheadStart_ = offset;
        }
        const std::size_t count = std::min<std::uint64_t>(size, aheadStart_ + ahead_.size() - offset);
        std::memcpy(block, ahead_.data() + (offset - aheadStart_), count);
        return count;
    }

    // Whether everything after the root element's end tag is whitespace followed
    // by the remains of an append cut short, which a later append cuts off.
    bool onlyRemainsAfterRoot() const {
        std::string rest;
        readLogBytesToEnd(file_, rootEnd_, rest, fileName_);
        return isWhitespaceThenInterruptedAppend(rest);
    }

    [[noreturn]] void raiseParseError() {
        XML_Parser parser = parser_.get();
        except::throwMessage(ids::XmlParseError(text::utf8ToUtf16(XML_ErrorString(XML_GetErrorCode(parser))),
                                                XML_GetCurrentLineNumber(parser),
                                                XML_GetCurrentColumnNumber(parser) + 1));
    }

    // Runs one event unless an earlier one failed; a failure stops the parser.
    template <class Event>
    static void guarded(void* userData, Event&& event) noexcept {
        auto* reader = static_cast<WarningLogReader*>(userData);
        if (reader->failure_) return;
        try {
            std::forward<Event>(event)(*reader);
        } catch (...) {
            reader->failure_ = std::current_exception();
            XML_StopParser(reader->parser_.get(), XML_FALSE);
        }
    }

    static void XMLCALL onStart(void* userData, const XML_Char* name, const XML_Char** attributes) noexcept {
        guarded(userData, [&](WarningLogReader& reader) {
            ++reader.depth_;
            reader.events_.startElement(name, attributes);
        });
    }

    // The end of the root element is remembered: what may follow it is checked
    // only if the parser refuses it.
    static void XMLCALL onEnd(void* userData, const XML_Char* name) noexcept {
        guarded(userData, [&](WarningLogReader& reader) {
            XML_Parser parser = reader.parser_.get();
            const auto index = static_cast<std::uint64_t>(XML_GetCurrentByteIndex(parser));
            reader.events_.endElement(name, index);
            if (--reader.depth_ == 0) {
                reader.rootEnded_ = true;
                reader.rootEnd_ = index + static_cast<std::uint64_t>(XML_GetCurrentByteCount(parser));
            }
        });
    }

    static void XMLCALL onCharacterData(void* userData, const XML_Char* text, int length) noexcept {
        guarded(userData, [&](WarningLogReader& reader) {
            reader.events_.characterData(std::string_view(text, static_cast<std::size_t>(length)));
        });
    }

    static void XMLCALL onDeclaration(void* userData, const XML_Char* /*version*/, const XML_Char* encoding,
                                      int /*standalone*/) noexcept {
        guarded(userData, [&](WarningLogReader& reader) {
            if (encoding != nullptr) reader.declaredEncoding_ = encoding;
        });
    }

    const LogFileDescriptor& file_;
    std::u16string fileName_;
    ExpatParser parser_;
    WarningLogEvents events_;
    std::exception_ptr failure_;
    std::string declaredEncoding_;
    std::string ahead_;
    std::uint64_t aheadStart_ = 0;
    std::uint64_t fed_ = 0;
    std::uint64_t rootEnd_ = 0;
    int depth_ = 0;
    bool rootEnded_ = false;
};

LogFileDescriptor openForReading(const std::u16string& path) {
    LogFileDescriptor file = openExistingLogFile(path, LogAccess::read);
    if (!file.isOpen()) except::throwMessage(ids::LogFileOpenFileRead(path, systemErrorText(ENOENT)));
    return file;
}

void readRecords(const std::u16string& path, const WarningRecordStore& store) {
    const LogFileDescriptor file = openForReading(path);
    WarningLogReader reader(file, path, store);
    reader.read();
}

}  // namespace

std::vector<Warning> readWarningLogFile(const std::u16string& path) {
    std::vector<Warning> records;
    readRecords(path, [&records]() -> Warning& { return records.emplace_back(); });
    return records;
}

std::vector<Warning> readWarningLog(const std::u16string& fileName) {
    return readWarningLogFile(normaliseLogFileName(fileName));
}

void readWarningLog(const std::u16string& fileName, const WarningRecordStore& store) {
    readRecords(normaliseLogFileName(fileName), store);
}

LogScan scanLog(const LogFileDescriptor& file, const std::u16string& path) {
    WarningLogReader reader(file, path, {});
    reader.read();
    return {reader.events().logEnd(), reader.declaredEncoding()};
}

std::uint64_t findLogEnd(const std::u16string& path) { return scanLog(openForReading(path), path).logEnd; }

void visitWarningLog(const std::u16string& fileName, const WarningHeadVisitor& visitHead) {
    const std::u16string path = normaliseLogFileName(fileName);
    const LogFileDescriptor file = openForReading(path);
    WarningLogReader reader(file, path, {}, visitHead);
    reader.read();
}

}  // namespace orrery::lang::diagnostic
