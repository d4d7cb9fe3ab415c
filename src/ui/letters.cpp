#include "ui/letters.h"

#include "ui/glyphs.h"
#include "ui/scale.h"

#include <GL/glut.h>

#include <vector>

namespace
{

constexpr int FONT_COUNT = 4;
constexpr int FIRST_CODE = 0x20;
constexpr int END_CODE = 0x7F;
constexpr int SERIF_GLYPH_ADVANCE = 12;

// Letters are read from a sheet of cells; a letter's raster position lies in its cell at (LEFT,
// FOOT).
constexpr int CELL_W = 40;
constexpr int CELL_H = 40;
constexpr int LEFT = 8;
constexpr int FOOT = 12;
constexpr int SHEET_COLUMNS = 16;
constexpr int SHEET_ROWS = 6;
constexpr int SHEET_W = SHEET_COLUMNS * CELL_W;
constexpr int SHEET_H = SHEET_ROWS * CELL_H;

// As glBitmap takes it, in device pixels.
struct Letter {
    int w = 0;
    int h = 0;
    float originX = 0.0f;
    float originY = 0.0f;
    float advance = 0.0f;
    std::vector<std::uint8_t> bits;
};

Table<Table<Letter, 256>, FONT_COUNT> letters;
int preparedScale = 1;

void* glutFont(int font)
{
    switch (font) {
    case FONT_FIXED:
        return GLUT_BITMAP_8_BY_13;
    case FONT_SERIF:
        return GLUT_BITMAP_TIMES_ROMAN_24;
    case FONT_TITLE:
        return GLUT_BITMAP_HELVETICA_18;
    default:
        return GLUT_BITMAP_HELVETICA_12;
    }
}

int glyphAdvance(std::uint8_t code, Font font)
{
    if (font == FONT_SERIF)
        return SERIF_GLYPH_ADVANCE;
    return font == FONT_BODY ? bodyWidths[code] : titleWidths[code];
}

// A letter of w by h pixels, of which isSet(x, y) tells each, y from the bottom, in squares.
template <typename IsSet>
Letter enlarged(int w, int h, int originX, int originY, int advance, IsSet isSet)
{
    const int times = preparedScale;
    Letter letter{.w = w * times,
                  .h = h * times,
                  .originX = static_cast<float>(originX * times),
                  .originY = static_cast<float>(originY * times),
                  .advance = static_cast<float>(advance * times),
                  .bits = {}};
    const int rowBytes = (letter.w + 7) / 8;
    letter.bits.resize(static_cast<std::size_t>(rowBytes * letter.h));
    for (int y = 0; y < letter.h; ++y)
        for (int x = 0; x < letter.w; ++x)
            if (isSet(x / times, y / times))
                letter.bits[static_cast<std::size_t>(y * rowBytes + x / 8)] |=
                    static_cast<std::uint8_t>(0x80 >> (x % 8));
    return letter;
}

Letter enlargedGlyph(const Glyph& glyph, int advance)
{
    const int rowBytes = (glyph.width + 7) / 8;
    return enlarged(
        glyph.width, glyph.height, glyph.origin.x, glyph.origin.y, advance,
        [&](int x, int y) { return (glyph.bits[y * rowBytes + x / 8] & (0x80 >> (x % 8))) != 0; });
}

int cellX(int code)
{
    return (code - FIRST_CODE) % SHEET_COLUMNS * CELL_W;
}

int cellY(int code)
{
    return (code - FIRST_CODE) / SHEET_COLUMNS * CELL_H;
}

// The font as it comes out on the screen, white on black: no call hands out its bits.
std::vector<std::uint8_t> readSheet(int font)
{
    glClear(GL_COLOR_BUFFER_BIT);
    glColor3f(1.0f, 1.0f, 1.0f);
    for (int code = FIRST_CODE; code < END_CODE; ++code) {
        glRasterPos2i(cellX(code) + LEFT, cellY(code) + FOOT);
        glutBitmapCharacter(glutFont(font), code);
    }
    std::vector<std::uint8_t> sheet(static_cast<std::size_t>(SHEET_W * SHEET_H));
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, SHEET_W, SHEET_H, GL_RED, GL_UNSIGNED_BYTE, sheet.data());
    return sheet;
}

void prepareFont(int font)
{
    const std::vector<std::uint8_t> sheet = readSheet(font);
    for (int code = FIRST_CODE; code < END_CODE; ++code)
        letters[font][code] = enlarged(
            CELL_W, CELL_H, LEFT, FOOT, glutBitmapWidth(glutFont(font), code), [&](int x, int y) {
                return sheet[static_cast<std::size_t>((cellY(code) + y) * SHEET_W + cellX(code) +
                                                      x)] > 127;
            });
    for (int code = END_CODE; code < 256; ++code) {
        const auto high = static_cast<std::uint8_t>(code);
        const Glyph* glyph = findGlyph(high, static_cast<Font>(font));
        letters[font][code] =
            glyph ? enlargedGlyph(*glyph, glyphAdvance(high, static_cast<Font>(font)))
                  : letters[font][baseLetter(high)];
    }
}

void drawLetter(std::uint8_t code, Font font)
{
    if (preparedScale > 1) {
        const Letter& letter = letters[font][code];
        glBitmap(letter.w, letter.h, letter.originX, letter.originY, letter.advance, 0.0f,
                 letter.bits.data());
    } else if (const Glyph* glyph = findGlyph(code, font)) {
        glBitmap(glyph->width, glyph->height, static_cast<float>(glyph->origin.x),
                 static_cast<float>(glyph->origin.y), static_cast<float>(glyphAdvance(code, font)),
                 0.0f, glyph->bits.items);
    } else {
        glutBitmapCharacter(glutFont(font), baseLetter(code));
    }
}

} // namespace

void prepareLetters()
{
    if (scale() == preparedScale)
        return;
    preparedScale = scale();
    if (preparedScale == 1)
        return;
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_TEXTURE_2D);
    glViewport(0, 0, SHEET_W, SHEET_H);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0.0, SHEET_W, 0.0, SHEET_H, -1.0, 1.0);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    for (int font = 0; font < FONT_COUNT; ++font)
        prepareFont(font);
}

void drawLetters(std::string_view text, Font font)
{
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    for (const char c : text)
        drawLetter(static_cast<std::uint8_t>(c), font);
}
