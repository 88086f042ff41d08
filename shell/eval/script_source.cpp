// The text of a script file, as the interpreter runs it.
#include "shell/eval/script_source.hpp"

#include "shell/eval/eval_messages.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace orrery::shell::eval {

void dropByteOrderMark(std::string& source) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (source.starts_with(byteOrderMark)) source.erase(0, byteOrderMark.size());
}

std::string readScript(const std::string& file) {
    std::error_code ignored;
    errno = std::filesystem::is_directory(file, ignored) ? EISDIR : 0;
    std::ifstream in;
    if (errno == 0) in.open(file, std::ios::binary);
    std::ostringstream content;
    if (in.is_open()) content << in.rdbuf();
    if (!in.is_open() || !in) {
        const int reason = errno != 0 ? errno : EIO;
        except::throwMessage(
            CannotRead(text::utf8ToUtf16(file), text::utf8ToUtf16Lossy(std::generic_category().message(reason))));
    }
    std::string source = content.str();
    dropByteOrderMark(source);
    return source;
}

}  // namespace orrery::shell::eval
