// Writes what a window shows, frame included, to a BMP file, so that the
// gallery can leave a picture of itself when it runs unattended.
#pragma once

#include "afx/WinTypes.h"

bool SaveWindowBitmap(HWND window, const char* fileName);
// What the screen shows in a rectangle: a window with the popups over it.
bool SaveScreenBitmap(const RECT& rect, const char* fileName);
