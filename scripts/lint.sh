#!/usr/bin/env bash
# Static checks: every C++ file formatted as .clang-format says, and clang-tidy
# with .clang-tidy over the sources of the platform, the module and the shell.
# Usage: scripts/lint.sh [BUILD_DIR]; BUILD_DIR holds compile_commands.json of a
# clang configuration (default build/asan).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/asan}

echo "== formatting"
git ls-files -z '*.cpp' '*.hpp' '*.cc' '*.h' | xargs -0 clang-format-14 --dry-run --Werror

echo "== clang-tidy"
run-clang-tidy-14 -p "$build" -quiet -j "$(nproc)" "^$PWD/(platform/src|diagnostic|shell)/.*\.(cpp|cc)$" >"$build/clang-tidy.log" 2>&1 ||
    { grep -E "(warning|error):" "$build/clang-tidy.log" | sort -u; echo "clang-tidy found problems"; exit 1; }
echo "clang-tidy: no findings"
