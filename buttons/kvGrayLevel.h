// kvGrayLevel: the brightness the buttons gray their images by, weighted for
// the eye's sensitivity to red, green and blue.
#pragma once

constexpr int kvGrayLevel(int red, int green, int blue) { return (77 * red + 153 * green + 25 * blue) / 255; }
