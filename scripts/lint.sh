#!/usr/bin/env bash
# Static checks: every C++ file formatted as .clang-format says, and clang-tidy
# with .clang-tidy over the sources of the platform, the module and the shell.
# Usage: scripts/lint.sh [--format-only | --tidy-only] [BUILD_DIR]; BUILD_DIR
# holds compile_commands.json of a clang configuration (default build/asan). The
# formatting check needs no build, so the test command runs it first, alone.
set -euo pipefail
cd "$(dirname "$0")/.."
format=1 tidy=1
case ${1:-} in
  --format-only) tidy=0; shift ;;
  --tidy-only) format=0; shift ;;
esac
build=${1:-build/asan}

if [ $format -eq 1 ]; then
  echo "== formatting"
  git ls-files -z '*.cpp' '*.hpp' '*.cc' '*.h' | xargs -0 clang-format-14 --dry-run --Werror
fi

if [ $tidy -eq 1 ]; then
  echo "== clang-tidy"
  run-clang-tidy-14 -p "$build" -quiet -j "$(nproc)" "^$PWD/(platform/src|diagnostic|shell)/.*\.(cpp|cc)$" >"$build/clang-tidy.log" 2>&1 ||
      { grep -E "(warning|error):" "$build/clang-tidy.log" | sort -u; echo "clang-tidy found problems"; exit 1; }
  echo "clang-tidy: no findings"
fi
