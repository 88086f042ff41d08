#!/usr/bin/env bash
# The test command: installs what is missing; checks formatting (no build needed,
# so a formatting fault fails in seconds); builds and runs every test of the dev
# preset (g++, warnings are errors), then of the asan preset (clang with
# AddressSanitizer + UndefinedBehaviorSanitizer); runs clang-tidy on the asan
# build's compile commands; then a short fuzz smoke run. Neither preset builds the
# benchmarks (bench/run.sh does); compilations go through ccache when it is on
# the path.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/setup.sh

bash scripts/lint.sh --format-only

launcher=()
if command -v ccache >/dev/null 2>&1; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi

for preset in dev asan; do
  echo "== $preset: configure, build, test"
  cmake --preset "$preset" "${launcher[@]}" >/dev/null
  cmake --build --preset "$preset"
  ctest --preset "$preset"
done

# Static analysis, on the clang configuration's compile commands.
bash scripts/lint.sh --tidy-only build/asan

if [ -x scripts/fuzz_smoke.sh ]; then
  echo "== fuzz smoke run"
  bash scripts/fuzz_smoke.sh
fi
