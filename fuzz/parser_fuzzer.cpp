// Fuzzes the shell's lexer and parser, and the prompt's check for unfinished
// input, with arbitrary bytes.
#include "shell/lang/parser.hpp"

#include <orrery/except/msg_id_exception.hpp>

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view source(reinterpret_cast<const char*>(data), size);
    try {
        orrery::shell::lang::parse(source, u"fuzz");
    } catch (const orrery::except::IMsgIDException&) {
        // a syntax error (or invalid text) is the expected answer to bad input
    }
    orrery::shell::lang::needsMoreInput(source);
    return 0;
}
