#!/usr/bin/env bash
# Runs every fuzz target of the fuzz preset (clang, libFuzzer, ASan + UBSan) for
# SECONDS each (default 600), two at a time. New inputs go to the working corpus
# under build/fuzz/corpus/NAME (kept between runs), not to the checked-in seeds,
# unless --keep-corpus is given: then the working corpus is merged (minimised)
# into fuzz/corpus/NAME at the end. A crash, leak, timeout or memory exhaustion
# is copied to tests/fuzz_regressions/NAME/, which ctest replays in every other
# build; the script then exits with status 1.
#
#   scripts/fuzz.sh [--keep-corpus] [SECONDS] [NAME...]
set -euo pipefail
cd "$(dirname "$0")/.."

keep_corpus=0
if [ "${1:-}" = "--keep-corpus" ]; then
  keep_corpus=1
  shift
fi
seconds=${1:-600}
shift || true

if ! command -v clang++ >/dev/null 2>&1; then
  echo "clang++ is not installed: skipping the fuzz run"
  exit 0
fi

cmake --preset fuzz >/dev/null
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
  mapfile -t targets < <(sed -n 's/^orrery_fuzz_target(\([a-z_]*\).*/\1/p' fuzz/CMakeLists.txt)
fi
cmake --build --preset fuzz -j2 --target "${targets[@]}"

work=build/fuzz/fuzzing
mkdir -p "$work"
# The targets' scratch folders: libFuzzer ends without running destructors, so
# they are made here and removed after the run.
export TMPDIR=$PWD/$work/tmp
rm -rf "$TMPDIR"
mkdir -p "$TMPDIR"

# Options of a target beyond the common ones: input size limits and dictionary.
options_of() {
  local name=$1
  case $name in
    script_fuzzer) echo "-max_len=3072" ;;
    log_reader_fuzzer) echo "-max_len=8192" ;;
    *) echo "-max_len=4096" ;;
  esac
  if [ -f "fuzz/$name.dict" ]; then echo "-dict=fuzz/$name.dict"; fi
}

run_target() {
  local name=$1
  local corpus=$work/corpus/$name findings=$work/findings/$name
  mkdir -p "$corpus" "$findings"
  rm -f "$findings"/*
  local seeds=()
  for folder in "fuzz/corpus/$name" "tests/fuzz_regressions/$name"; do
    if [ -d "$folder" ]; then seeds+=("$folder"); fi
  done
  # shellcheck disable=SC2046
  build/fuzz/bin/"$name" -max_total_time="$seconds" -timeout="${FUZZ_UNIT_TIMEOUT:-10}" -rss_limit_mb=2048 -print_final_stats=1 \
    -artifact_prefix="$findings/" $(options_of "$name") "$corpus" "${seeds[@]}" >"$work/$name.log" 2>&1 || true
}

# Two at a time, one per core.
for name in "${targets[@]}"; do
  while [ "$(jobs -rp | wc -l)" -ge 2 ]; do wait -n || true; done
  echo "== $name: fuzzing for $seconds s"
  run_target "$name" &
done
wait
rm -rf "$TMPDIR"

status=0
for name in "${targets[@]}"; do
  log=$work/$name.log
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
  cov=$(grep -o 'cov: [0-9]*' "$log" | tail -1 || true)
  echo "== $name: ${runs:-?} runs, ${cov:-cov: ?}"
  for finding in "$work/findings/$name"/*; do
    [ -e "$finding" ] || continue
    mkdir -p "tests/fuzz_regressions/$name"
    cp "$finding" "tests/fuzz_regressions/$name/"
    echo "FINDING in $name: kept as tests/fuzz_regressions/$name/$(basename "$finding") (log: $log)"
    grep -m1 -E 'ERROR: |==ABORT|runtime error|Internal error|deadly signal' "$log" || true
    status=1
  done
  if [ "$keep_corpus" = 1 ]; then
    mkdir -p "fuzz/corpus/$name"
    build/fuzz/bin/"$name" -merge=1 $(options_of "$name") "fuzz/corpus/$name" "$work/corpus/$name" \
      >"$work/$name.merge.log" 2>&1 || echo "merging the corpus of $name failed (log: $work/$name.merge.log)"
  fi
done
exit $status
