// Running a loop written in the language through the shell's interpreter, as
// the benchmarks of the evaluator do: the text is parsed once, then run once
// per benchmark iteration in the same interpreter.
#pragma once

#include "shell/eval/interpreter.hpp"
#include "shell/lang/parser.hpp"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace orrery::bench {

/// Iterations of every language loop, and of the peers that run it elsewhere.
inline constexpr std::size_t kLoopCount = 100000;

/// The text with every N replaced by kLoopCount.
inline std::string withLoopCount(std::string text) {
    for (auto at = text.find('N'); at != std::string::npos; at = text.find('N'))
        text.replace(at, 1, std::to_string(kLoopCount));
    return text;
}

/// Runs the script text (N standing for kLoopCount) once per iteration; one
/// item is one pass of its loop.
inline void runScriptLoop(benchmark::State& state, const std::string& text) {
    const auto program = shell::lang::parse(withLoopCount(text), u"bench.orr");
    shell::eval::Interpreter interpreter;
    for (auto _ : state) interpreter.run(program, u"bench.orr", u"");
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * kLoopCount));
}

}  // namespace orrery::bench
