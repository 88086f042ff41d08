#!/usr/bin/env bash
# The test command: installs what is missing, then builds and runs every test of
# the dev preset (g++, warnings are errors), then of the asan preset (clang with
# AddressSanitizer + UndefinedBehaviorSanitizer), then the formatting and
# clang-tidy checks, then a short fuzz smoke run.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/setup.sh

for preset in dev asan; do
  echo "== $preset: configure, build, test"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset"
  ctest --preset "$preset"
done

# Formatting and static analysis, on the clang configuration's compile commands.
bash scripts/lint.sh build/asan

if [ -x scripts/fuzz_smoke.sh ]; then
  echo "== fuzz smoke run"
  bash scripts/fuzz_smoke.sh
fi
