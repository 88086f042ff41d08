#!/usr/bin/env bash
# The main job: installs what is missing, builds in the release preset only what
# the tour needs (the platform library, the catalogue, the module and the orrery
# command; no tests or benchmarks) and runs the tour script through the orrery
# command.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/setup.sh
echo "tour: configuring and building (release)"
cmake --preset release >/dev/null
cmake --build --preset release --target orrery_platform orrery_catalogue diagnostic orrery
exec build/release/bin/orrery examples/tour.orr
