#!/usr/bin/env bash
# Installs the Debian packages that building, testing, benchmarking and fuzzing need,
# and the decimal-comma locale that some tests switch to.
# Runs unattended as root (or through sudo); installs only what is missing.
set -euo pipefail

packages=(
  g++ clang libclang-rt-14-dev clang-format clang-tidy cmake ninja-build pkg-config
  libboost-dev libboost-thread-dev libboost-system-dev
  libexpat1-dev libicu-dev icu-devtools
  libgtest-dev libgmock-dev libbenchmark-dev libspdlog-dev
  libedit-dev libxml2-utils tzdata tmux locales
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo -n)

if [ ${#missing[@]} -gt 0 ]; then
  echo "setup: installing ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  "${sudo_cmd[@]}" apt-get update -qq </dev/null
  "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" </dev/null
fi

# A locale that writes numbers with a decimal comma, for the tests that text reads
# as the same number under any locale; without it those tests are skipped.
if ! locale -a 2>/dev/null | grep -qix 'de_DE\.utf-\?8'; then
  echo "setup: generating the de_DE.UTF-8 locale"
  "${sudo_cmd[@]}" localedef -i de_DE -f UTF-8 de_DE.UTF-8 </dev/null ||
    echo "setup: could not generate de_DE.UTF-8; the decimal-comma tests will be skipped"
fi
