#!/usr/bin/env bash
# Installs what is missing, builds every configuration and runs all tests:
# host, host with sanitizers, fuzz targets over their corpus, and the Windows
# build under Wine inside a virtual X display.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
jobs=$(nproc)

scripts/install-deps.sh

run() { echo; echo "== $*"; "$@"; }

configure_and_test() {
  local dir=$1; shift
  run cmake -S "$root" -B "$root/build/$dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
  run cmake --build "$root/build/$dir" -j"$jobs"
}

configure_and_test host
run ctest --test-dir build/host --output-on-failure -j"$jobs"

configure_and_test asan -DKVWIN_SANITIZE=ON
run ctest --test-dir build/asan --output-on-failure -j"$jobs"

CXX=clang++ CC=clang configure_and_test fuzz -DKVWIN_FUZZ=ON -DKVWIN_TESTS=OFF
run ctest --test-dir build/fuzz --output-on-failure -j"$jobs"

configure_and_test windows -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw-w64-posix.cmake"
run xvfb-run -a ctest --test-dir build/windows --output-on-failure
