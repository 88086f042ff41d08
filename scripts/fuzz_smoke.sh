#!/usr/bin/env bash
# A short fuzz run: builds the fuzz preset (clang with libFuzzer) and runs the
# parser fuzzer for about 30 seconds from the seed corpus. Skipped when clang
# is not installed. New inputs go to a temporary corpus, not to fuzz/corpus.
set -euo pipefail
cd "$(dirname "$0")/.."

if ! command -v clang++ >/dev/null 2>&1; then
  echo "clang++ is not installed: skipping the fuzz smoke run"
  exit 0
fi

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target parser_fuzzer

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
build/fuzz/bin/parser_fuzzer -max_total_time="${FUZZ_SECONDS:-30}" -timeout=10 -rss_limit_mb=2048 \
  -print_final_stats=1 "$work" fuzz/corpus
