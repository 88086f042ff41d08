#!/bin/sh
# Builds the release preset and prints the table of ratios of every benchmark
# program to its floor. Usage: bench/run.sh [build-folder]; with a folder, an
# optimised build is configured there instead of the release preset's own.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"
if [ $# -ge 1 ]; then
    build=$1
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=g++ >/dev/null
else
    build=build/release
    cmake --preset release >/dev/null
fi
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! cmake --build "$build" --target orrery_benchmarks -j2 >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi
export ORRERY_CATALOGUE_DIR="$build/bin/catalogue"

results=$(mktemp)
trap 'rm -f "$log" "$results"' EXIT
for program in "$build"/bin/*_bench; do
    [ -x "$program" ] || continue
    "$program" --benchmark_min_time=0.2 --benchmark_color=false 2>/dev/null | grep '^ratio ' >>"$results" || true
done
printf '%-32s %8s  %s\n' benchmark ratio detail
printf '%-32s %8s  %s\n' --------- ----- ------
while read -r _ name ratio detail; do
    printf '%-32s %7sx  %s\n' "$name" "$ratio" "$detail"
done <"$results"
