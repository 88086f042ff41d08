#!/bin/sh
# Builds the release preset, runs every benchmark program and prints one table:
# each benchmark with its reference (a floor measured in the same run, or a peer
# library), the ratio of our cost over the reference's (lower is better, 1.00 is
# parity) and both absolute figures, and the peak heap of the loads.
# Usage: bench/run.sh [--markdown] [BUILD_FOLDER]
#   --markdown     print the table in Markdown, as README.md quotes it
#   BUILD_FOLDER   configure an optimised build there instead of the release preset's
set -eu
markdown=false
build=
for argument; do
    case $argument in
    --markdown) markdown=true ;;
    -h | --help)
        sed -n '2,8s/^# \{0,1\}//p' "$0"
        exit 0
        ;;
    -*)
        echo "bench/run.sh: unknown option $argument" >&2
        exit 2
        ;;
    *) build=$argument ;;
    esac
done
case $build in
"" | /*) ;;
*) build=$PWD/$build ;;
esac
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"

# ---- build, its output kept in a log that is shown only on failure ----------------
launcher=
if command -v ccache >/dev/null 2>&1; then launcher=-DCMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
if [ -n "$build" ]; then
    mkdir -p "$build"
    log=$build/bench_build.log
    configure() { cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=g++ $launcher; }
else
    build=build/release
    mkdir -p "$build"
    log=$build/bench_build.log
    configure() { cmake --preset release $launcher; }
fi
if ! { configure && cmake --build "$build" --target orrery_benchmarks -j2; } >"$log" 2>&1; then
    tail -n 40 "$log" >&2
    echo "bench/run.sh: the build failed; its whole output is in $log" >&2
    exit 1
fi
export ORRERY_CATALOGUE_DIR="$build/bin/catalogue"

# ---- run: each program's console report goes to a log, its rows to the table ------
output=$build/bench_output.log
rows=$(mktemp)
one=$(mktemp)
trap 'rm -f "$rows" "$one"' EXIT
: >"$output"
for program in "$build"/bin/*_bench; do
    [ -x "$program" ] || continue
    status=0
    "$program" --benchmark_min_time=0.2 --benchmark_color=false >"$one" 2>>"$output" || status=$?
    cat "$one" >>"$output"
    grep "^ratio	" "$one" >>"$rows" || true
    [ "$status" -eq 0 ] || echo "bench/run.sh: $(basename "$program") failed (status $status); see $output" >&2
done

# ---- the table: columns aligned, or Markdown --------------------------------------
awk -F '\t' -v markdown="$markdown" '
    function pad(text, width, right) { return sprintf("%" (right ? "" : "-") width "s", text) }
    BEGIN { split("benchmark|reference|ratio|ours|reference'"'"'s", heading, "|"); for (c = 1; c <= 5; c++) cell[1, c] = heading[c]; n = 1 }
    { n++; for (c = 1; c <= 5; c++) cell[n, c] = $(c + 1) }
    END {
        for (r = 1; r <= n; r++) {
            line = ""
            for (c = 1; c <= 5; c++) {
                text = cell[r, c]
                if (markdown == "true") { gsub(/</, "\\&lt;", text); line = line "| " text " " }
                else if (length(text) > width[c]) width[c] = length(text)
            }
            if (markdown == "true") { print line "|"; if (r == 1) print "|---|---|--:|--:|--:|" }
        }
        if (markdown == "true") exit
        for (r = 1; r <= n; r++) {
            line = pad(cell[r, 1], width[1], 0) "  " pad(cell[r, 2], width[2], 0)
            for (c = 3; c <= 5; c++) line = line "  " pad(cell[r, c], width[c], 1)
            print line
        }
    }' "$rows"
