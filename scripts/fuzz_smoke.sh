#!/usr/bin/env bash
# A short fuzz run for CI: every fuzz target for FUZZ_SECONDS (default 15)
# seconds, two at a time, failing on any finding (see scripts/fuzz.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
exec bash scripts/fuzz.sh "${FUZZ_SECONDS:-15}"
