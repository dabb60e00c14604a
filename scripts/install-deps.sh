#!/usr/bin/env bash
# Installs the Debian packages that the builds and tests need; skips what is there.
set -euo pipefail

packages=(
  cmake make g++ clang libclang-rt-14-dev
  googletest libgtest-dev libbenchmark-dev qtbase5-dev libicu-dev
  g++-mingw-w64-x86-64-posix wine wine64 fonts-wine xvfb xauth
  xdotool x11-apps imagemagick
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
echo "Installing: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
