// Resources of the GDI, image list and menu tests, found through the resource chain.
#pragma once

// A 4 x 2 strip, top row red, green, blue, black; bottom row magenta, white,
// yellow, magenta (magenta is the transparent colour of the image list tests).
#define IDB_GDITEST_STRIP 7101
#define IDR_GDITEST_MENU 7102
#define ID_GDITEST_OPEN 7111
#define ID_GDITEST_EXIT 7112
#define IDS_GDITEST_INDICATOR 7121
