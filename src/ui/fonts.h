#pragma once

#include "app/table.h"

#include <cstdint>

// The bitmap fonts of the program and how wide their letters are. All text is Latin-1.

enum Font {
    FONT_BODY = 0,  // Helvetica 12: buttons, labels, dialogs, numbers
    FONT_FIXED = 1, // 8 by 13: text boxes, course lines
    FONT_SERIF = 2, // Times Roman 24: the names of the languages
    FONT_TITLE = 3, // Helvetica 18: titles, team tabs, the manual
};

enum Align { ALIGN_CENTRE = 0, ALIGN_LEFT = 1, ALIGN_RIGHT = 2 };

// Advance widths in pixels by character code; 0 for control codes and the double quote. A high
// code that the fonts don't hold has the width of its letter without the accent, as which it is
// drawn.
extern const Table<std::uint8_t, 256> bodyWidths;
extern const Table<std::uint8_t, 256> titleWidths;
