// Fuzzes the warning log reader with whole files: the full read (records built)
// and the scan that only finds the log's end. The scan checks less than the
// full read, so a file the full read accepts must pass the scan too.
#include "diagnostic/log/warning_log_reader.hpp"

#include <orrery/except/msg_id_exception.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/text/text.hpp>

#include <boost/lexical_cast.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace {

using namespace orrery;
namespace fs = std::filesystem;

// A folder of this process's own for the file under test, removed at exit.
class ScratchFolder {
public:
    ScratchFolder() {
        std::string pattern = (fs::temp_directory_path() / "orrery-fuzz-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) std::abort();
        path_ = pattern;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const fs::path& path() const noexcept { return path_; }

private:
    fs::path path_;
};

const fs::path& logFile() {
    static const ScratchFolder folder;
    static const fs::path file = folder.path() / "log.xml";
    return file;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    static const interp::VirtualMachineScope machine;
    logFile();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    {
        std::ofstream out(logFile(), std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    const std::u16string name = text::utf8ToUtf16(logFile().string());
    bool readInFull = false;
    try {
        lang::diagnostic::readWarningLogFile(name);
        readInFull = true;
    } catch (const except::IMsgIDException&) {
        // the reader's refusal of a malformed log
    } catch (const boost::bad_lexical_cast&) {
        // an argument text that does not convert to its type
    }
    try {
        lang::diagnostic::findLogEnd(name);
    } catch (const except::IMsgIDException& failure) {
        if (readInFull) {
            std::cerr << "FINDING: the scan refuses a log the full read accepts: " << failure.what() << std::endl;
            std::abort();
        }
    } catch (const boost::bad_lexical_cast&) {
        // a frame's line that does not convert, which the scan checks too
        if (readInFull) {
            std::cerr << "FINDING: the scan refuses a line the full read accepts" << std::endl;
            std::abort();
        }
    }
    return 0;
}
