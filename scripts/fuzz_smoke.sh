#!/usr/bin/env bash
# A short fuzz run for CI: every fuzz target for FUZZ_SECONDS (default 15)
# seconds, two at a time, failing on any finding (see scripts/fuzz.sh). A unit
# counts as hanging after 30 seconds rather than 10: the kept inputs of earlier
# slow-unit findings run first, and on a machine busy with other builds they
# can take longer than 10 seconds without hanging (ctest replays them anyway).
set -euo pipefail
cd "$(dirname "$0")/.."
FUZZ_UNIT_TIMEOUT=${FUZZ_UNIT_TIMEOUT:-30} exec bash scripts/fuzz.sh "${FUZZ_SECONDS:-15}"
