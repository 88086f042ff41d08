// Finding a warning log's footer again after other writers have changed the file.
#include "diagnostic/log/log_footer_search.hpp"

#include "diagnostic/log/log_file_format.hpp"
#include "diagnostic/log/log_file_io.hpp"

#include <string_view>

namespace orrery::lang::diagnostic {

// Read in blocks; each block starts with the last bytes of the one before, so a
// footer across two blocks is seen whole. The footer follows the line feed that
// ends the header or the last element.
std::optional<std::uint64_t> findLogFooter(const LogFileDescriptor& file, std::uint64_t from, std::string& scratch,
                                           const std::u16string& path) {
    constexpr std::size_t kBlock = std::size_t{64} * 1024;
    const std::string_view kLine = "\n</log>\n";
    std::uint64_t offset = from > 0 ? from - 1 : 0;
    scratch.resize(kBlock);
    for (;;) {
        const std::size_t count = readLogBytesAt(file, offset, scratch.data(), kBlock, path);
        const std::string_view block(scratch.data(), count);
        if (const std::size_t found = block.find(kLine); found != std::string_view::npos) return offset + found + 1;
        if (count < kBlock) return std::nullopt;
        offset += kBlock - (kLine.size() - 1);
    }
}

}  // namespace orrery::lang::diagnostic
