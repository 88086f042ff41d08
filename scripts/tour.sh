#!/usr/bin/env bash
# The main job: installs what is missing, builds the release preset and runs the
# tour script through the orrery command.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/setup.sh
cmake --preset release >/dev/null
cmake --build --preset release
exec build/release/bin/orrery examples/tour.orr
