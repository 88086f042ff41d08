#!/usr/bin/env bash
# Installs the Debian packages that building, testing, benchmarking and fuzzing need.
# Runs unattended as root (or through sudo); installs only what is missing.
set -euo pipefail

packages=(
  g++ clang libclang-rt-14-dev cmake ninja-build pkg-config
  libboost-dev libboost-thread-dev libboost-system-dev
  libexpat1-dev libicu-dev icu-devtools
  libgtest-dev libgmock-dev libbenchmark-dev
  libedit-dev libxml2-utils tzdata tmux
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "setup: installing ${missing[*]}"
sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo -n)
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq </dev/null
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" </dev/null
