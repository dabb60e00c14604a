// Resources of the bitmap button tests, found through the resource chain.
#pragma once

// 16 x 16, 8 bits per pixel: a magenta border (the transparent colour) around
// red, blue (top) and yellow, cyan (bottom) quadrants.
#define IDB_BMPBUTTON_QUADRANTS 7201
// 4 x 4, 24 bits per pixel, green.
#define IDB_BMPBUTTON_TRUECOLOUR 7202
// 16 x 16, 4 bits per pixel: transparent outside 2..13; red and navy above,
// black and white below.
#define IDI_BMPBUTTON_QUADRANTS 7203
// A black cross.
#define IDC_BMPBUTTON_CROSS 7204
