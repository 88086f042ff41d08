#!/usr/bin/env bash
# Installs the Debian packages that building, testing, benchmarking and fuzzing need,
# and the decimal-comma locale that some tests switch to.
# Runs unattended as root (or through sudo); installs only what is missing. Prints
# one line per action; the package manager's own output goes to build/setup.log,
# which a failing step names.
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(
  g++ clang libclang-rt-14-dev clang-format clang-tidy cmake ninja-build pkg-config
  libboost-dev libboost-thread-dev libboost-system-dev
  libexpat1-dev libicu-dev icu-devtools
  libfmt-dev libgtest-dev libgmock-dev libbenchmark-dev libspdlog-dev
  libedit-dev libxml2-utils tzdata tmux locales ccache
)

mkdir -p build
log=$PWD/build/setup.log
: >"$log"

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
# The benchmarks run the same loops in CPython when python3 is there; any
# python3 on the path will do, so the package is installed only without one.
command -v python3 >/dev/null 2>&1 || missing+=(python3)
sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo -n)

if [ ${#missing[@]} -gt 0 ]; then
  echo "setup: installing packages: ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  if ! { "${sudo_cmd[@]}" apt-get update && "${sudo_cmd[@]}" apt-get install -y --no-install-recommends "${missing[@]}"; } \
    </dev/null >>"$log" 2>&1; then
    echo "setup: installing packages failed; the package manager's output is in $log" >&2
    exit 1
  fi
else
  echo "setup: all packages present"
fi

# A locale that writes numbers with a decimal comma, for the tests that text reads
# as the same number under any locale; without it those tests are skipped.
if ! locale -a 2>/dev/null | grep -qix 'de_DE\.utf-\?8'; then
  echo "setup: generating locale de_DE.UTF-8"
  "${sudo_cmd[@]}" localedef -i de_DE -f UTF-8 de_DE.UTF-8 </dev/null >>"$log" 2>&1 ||
    echo "setup: could not generate de_DE.UTF-8 (see $log); the decimal-comma tests will be skipped"
fi
