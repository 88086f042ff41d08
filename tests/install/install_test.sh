#!/usr/bin/env bash
# Installs a build into a fresh prefix and uses the installation as an outside
# project would: the installed embedding example, built from where it is
# installed once through find_package and once with pkg-config's flags alone,
# opens the installed module, sees a warning it issues on the issued-warning
# signal and in the log it opened, and runs with no environment variables; the
# installed orrery command runs a warning.
# Nothing may come from the build tree or the environment, so the variables
# that point the platform and the shell elsewhere are cleared.
# Usage: install_test.sh BUILD_DIR LIBDIR CXX "CXXFLAGS" [LAUNCHER]
set -euo pipefail
build=$1 libdir=$2 cxx=$3 flags=$4 launcher=${5:-}
unset ORRERY_CATALOGUE_DIR ORRERY_MODULE_PATH ORRERY_WARNINGS LD_LIBRARY_PATH

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
step() { echo "== $*"; }
fail() { echo "FAILED: $*"; exit 1; }

step "install into a fresh prefix"
cmake --install "$build" --prefix "$prefix" >"$work/install.log" || { cat "$work/install.log"; fail "cmake --install"; }

example=$prefix/share/orrery/examples/embedding
[ -f "$example/host.cpp" ] || fail "the embedding example is not installed"

step "host built through find_package(OrreryPlatform)"
cmake -S "$example" -B "$work/cmake" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_BUILD_TYPE=Debug \
  -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_CXX_FLAGS="$flags" -DCMAKE_EXE_LINKER_FLAGS="$flags" \
  ${launcher:+-DCMAKE_CXX_COMPILER_LAUNCHER="$launcher"} >"$work/configure.log" ||
  { cat "$work/configure.log"; fail "configuring the host"; }
cmake --build "$work/cmake" >"$work/build.log" || { cat "$work/build.log"; fail "building the host"; }
"$work/cmake/host" "$work/cmake.xml" || fail "the find_package host"

step "host built through pkg-config (orrery-platform)"
export PKG_CONFIG_PATH=$prefix/$libdir/pkgconfig
module=$(pkg-config --variable=module orrery-platform)
[ -f "$module" ] || fail "pkg-config's module path $module is not a file"
# shellcheck disable=SC2046,SC2086
$launcher "$cxx" $flags $(pkg-config --cflags orrery-platform) -DORRERY_MODULE="\"$module\"" \
  "$example/host.cpp" -o "$work/host_pc" $(pkg-config --libs orrery-platform) || fail "building the host with pkg-config"
(cd "$work" && env -i "$work/host_pc") || fail "the pkg-config host"

step "installed orrery command"
output=$("$prefix/bin/orrery" -e "warning('ORRERY:demo:x', 'value %d', 5); frobnicate" 2>&1) && status=0 || status=$?
echo "$output"
[ "$status" -eq 1 ] || fail "exit status $status, expected 1 after the undefined function"
grep -q "value 5" <<<"$output" || fail "the warning was not printed"
grep -q "'frobnicate' is not a defined function or variable" <<<"$output" || fail "the catalogue text is missing"
echo "install test passed"
