// Reading a warning log file: the file fed to Expat in blocks, the parser's events
// passed to the reader's state machine.
#include "diagnostic/log/warning_log_reader.hpp"

#include "diagnostic/log/expat_parser.hpp"
#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_file_name.hpp"
#include "diagnostic/log/log_stream_failure.hpp"
#include "diagnostic/log/warning_log_events.hpp"
#include "diagnostic/log/xml_parser_ids.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <cerrno>
#include <cstdint>
#include <exception>
#include <fstream>
#include <ios>
#include <string_view>
#include <utility>

namespace orrery::lang::diagnostic {
namespace {

namespace ids = orrery::diagnostic::ids;

constexpr std::streamsize kBlockSize = 1024;
constexpr std::streamsize kLargestBlock = std::streamsize{1} << 28;

// One read of one file: the parser, the stream and the state machine. Expat calls
// back through C frames, so a failure inside a callback is caught there, the
// parser stopped, and the failure raised again once Expat has returned.
class WarningLogReader {
public:
    WarningLogReader(std::u16string fileName, bool scanOnly)
        : fileName_(std::move(fileName)),
          parser_(makeExpatParser()),
          events_(scanOnly, scanOnly ? interp::UtcOffset{} : interp::localUtcOffset()) {
        XML_SetUserData(parser_.get(), this);
        XML_SetElementHandler(parser_.get(), &WarningLogReader::onStart, &WarningLogReader::onEnd);
        if (!scanOnly) XML_SetCharacterDataHandler(parser_.get(), &WarningLogReader::onCharacterData);
        open();
    }

    /// Feeds the whole file to the parser, in blocks of kBlockSize bytes. Expat
    /// scans a token that is still open (a huge attribute value, name or comment)
    /// again from its start at every block, so while one stays open across a whole
    /// block the block size doubles, which keeps the scan linear in the file size.
    void read() {
        std::streamsize blockSize = kBlockSize;
        std::int64_t fed = 0;
        for (;;) {
            void* block = XML_GetBuffer(parser_.get(), static_cast<int>(blockSize));
            if (block == nullptr) throw std::bad_alloc();
            const std::streamsize count = readBlock(static_cast<char*>(block), blockSize);
            const XML_Status status = XML_ParseBuffer(parser_.get(), static_cast<int>(count), input_.eof());
            if (failure_) std::rethrow_exception(failure_);
            if (documentEnded_) return;
            if (status != XML_STATUS_OK) raiseParseError();
            if (count < blockSize) return;
            fed += count;
            // After a successful parse the index is that of the last event: what lies
            // beyond it is the open token.
            const std::int64_t open = fed - static_cast<std::int64_t>(XML_GetCurrentByteIndex(parser_.get()));
            blockSize = open > blockSize && blockSize < kLargestBlock ? 2 * blockSize : kBlockSize;
        }
    }

    WarningLogEvents& events() noexcept { return events_; }

private:
    void open() {
        input_.exceptions(std::ios_base::failbit | std::ios_base::badbit);
        errno = 0;
        try {
            input_.open(text::utf16ToUtf8(fileName_), std::ios_base::in | std::ios_base::binary);
        } catch (const std::ios_base::failure& failure) {
            except::throwMessage(ids::LogFileOpenFileRead(fileName_, streamFailureText(failure, errno)));
        }
    }

    // Up to one block; the short last read sets the failure state with end of
    // file, which is expected.
    std::streamsize readBlock(char* block, std::streamsize size) {
        errno = 0;
        try {
            input_.read(block, size);
        } catch (const std::ios_base::failure& failure) {
            if (!input_.eof()) except::throwMessage(ids::LogFileFileRead(fileName_, streamFailureText(failure, errno)));
        }
        return input_.gcount();
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
            std::forward<Event>(event)(reader->events_);
        } catch (...) {
            reader->failure_ = std::current_exception();
            XML_StopParser(reader->parser_.get(), XML_FALSE);
        }
    }

    static void XMLCALL onStart(void* userData, const XML_Char* name, const XML_Char** attributes) noexcept {
        ++static_cast<WarningLogReader*>(userData)->depth_;
        guarded(userData, [&](WarningLogEvents& events) { events.startElement(name, attributes); });
    }

    // The end of the root element ends the read: what follows it is not the
    // document's (a warning whose writing was cut short leaves its bytes there).
    static void XMLCALL onEnd(void* userData, const XML_Char* name) noexcept {
        auto* reader = static_cast<WarningLogReader*>(userData);
        XML_Parser parser = reader->parser_.get();
        guarded(userData, [&](WarningLogEvents& events) {
            events.endElement(name, static_cast<std::uint64_t>(XML_GetCurrentByteIndex(parser)));
        });
        if (--reader->depth_ == 0 && !reader->failure_) {
            reader->documentEnded_ = true;
            XML_StopParser(parser, XML_FALSE);
        }
    }

    static void XMLCALL onCharacterData(void* userData, const XML_Char* text, int length) noexcept {
        guarded(userData, [&](WarningLogEvents& events) {
            events.characterData(std::string_view(text, static_cast<std::size_t>(length)));
        });
    }

    std::u16string fileName_;
    ExpatParser parser_;
    std::ifstream input_;
    WarningLogEvents events_;
    std::exception_ptr failure_;
    int depth_ = 0;
    bool documentEnded_ = false;
};

}  // namespace

std::vector<Warning> readWarningLogFile(const std::u16string& path) {
    WarningLogReader reader(path, false);
    reader.read();
    return std::move(reader.events().warnings());
}

std::vector<Warning> readWarningLog(const std::u16string& fileName) {
    return readWarningLogFile(normaliseLogFileName(fileName));
}

std::uint64_t findLogEnd(const std::u16string& fileName) {
    WarningLogReader reader(fileName, true);
    reader.read();
    return reader.events().logEnd();
}

}  // namespace orrery::lang::diagnostic
