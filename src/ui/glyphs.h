#pragma once

#include "app/table.h"
#include "ui/fonts.h"

#include <cstdint>

// Accented letters of our own, for which GLUT's fonts can't be relied on.

// The point of the bitmap, from its lower left, that comes to lie on the raster position.
struct Origin {
    int x, y;
};

struct Glyph {
    std::uint8_t code; // Latin-1
    std::uint8_t width;
    std::uint8_t height;
    Origin origin;
    Table<std::uint8_t, 34> bits; // as glBitmap takes them: bottom row first, whole bytes a row
};

// The font's own drawing of a letter, or null where it has none.
const Glyph* findGlyph(std::uint8_t code, Font font);

// The code below 0x80 that stands in for a high one without a glyph; a low one is itself.
std::uint8_t baseLetter(std::uint8_t code);
