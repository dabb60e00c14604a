#!/usr/bin/env bash
# Installs what is missing, builds every configuration and runs all tests:
# host, host with sanitizers, fuzz targets over their corpus, and the Windows
# build under Wine inside a virtual X display. The host and Windows builds are
# also installed, and the examples built against each package and run.
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

# The package as an application finds it: a fresh install of build/<dir>, and
# examples/ configured against it through CMAKE_PREFIX_PATH alone.
install_and_build_examples() {
  local dir=$1; shift
  local prefix="$root/build/install/$dir"
  rm -rf "$prefix"
  run cmake --install "$root/build/$dir" --prefix "$prefix" >/dev/null
  run cmake -S "$root/examples" -B "$root/build/example-$dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_PREFIX_PATH="$prefix" "$@" >/dev/null
  run cmake --build "$root/build/example-$dir" -j"$jobs"
}

configure_and_test host
run ctest --test-dir build/host --output-on-failure -j"$jobs"
install_and_build_examples host
run build/example-host/amount_check 1234.5 250

configure_and_test asan -DKVWIN_SANITIZE=ON
run ctest --test-dir build/asan --output-on-failure -j"$jobs"

CXX=clang++ CC=clang configure_and_test fuzz -DKVWIN_FUZZ=ON -DKVWIN_TESTS=OFF
run ctest --test-dir build/fuzz --output-on-failure -j"$jobs"

toolchain="$root/cmake/mingw-w64-posix.cmake"
configure_and_test windows -DCMAKE_TOOLCHAIN_FILE="$toolchain"
run xvfb-run -a ctest --test-dir build/windows --output-on-failure
install_and_build_examples windows -DCMAKE_TOOLCHAIN_FILE="$toolchain"
# In the tests' Wine prefix, once its server, tied to their display, has gone.
WINEPREFIX="$root/build/windows/wineprefix" wineserver -w
wine_run=build/windows/wine-run examples=build/example-windows
run xvfb-run -a sh -c "$wine_run $examples/amount_check.exe 1234.5 250 &&
  $wine_run $examples/amount_window.exe --check"
