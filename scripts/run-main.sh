#!/usr/bin/env bash
# The main job: builds the Windows configuration and runs the gallery, the demo
# application, under Wine. Without an X display it runs inside a virtual one,
# saves a picture of its window with each page shown to build/windows/pictures/
# (tabs on top, and once more with the tabs below) and exits.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
build=build/windows
cmake -S . -B "$build" -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw-w64-posix.cmake" \
  -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" -j"$(nproc)" --target gallery >/dev/null

if [ -n "${DISPLAY:-}" ]; then
  exec "$build/wine-run" "$build/bin/gallery.exe"
fi
# No window manager draws the frame on the virtual display: let Wine draw the
# gallery's caption and borders itself (a setting for gallery.exe alone).
"$build/wine-run" reg add 'HKCU\Software\Wine\AppDefaults\gallery.exe\X11 Driver' \
  /v Managed /d N /f >/dev/null
# The Wine server started without a display must be gone before the gallery
# starts on the virtual one, or the gallery would join it and get no window.
WINEPREFIX="$PWD/$build/wineprefix" wineserver -w
pictures="$build/pictures"
rm -rf "$pictures"
mkdir -p "$pictures/bottom-tabs"
xvfb-run -a "$build/wine-run" "$build/bin/gallery.exe" --pictures "$pictures"
xvfb-run -a "$build/wine-run" "$build/bin/gallery.exe" --bottom-tabs --pictures "$pictures/bottom-tabs"
for bmp in "$pictures"/*.bmp "$pictures"/bottom-tabs/*.bmp; do
  convert "$bmp" "${bmp%.bmp}.png" && rm "$bmp"
done
echo "The gallery's pages: $pictures/*.png, and with the tabs below: $pictures/bottom-tabs/*.png"
