#include "ui/glyphs.h"

#include <algorithm>
#include <span>
#include <string_view>

// What a high code that has no glyph is drawn as: its letter without the accent, a plain sign in
// place of a special one, or "?".
// clang-format off
static constexpr std::string_view BASE_LETTERS =
//   0123456789ABCDEF
    "????????????????" // 8_
    "????????????????" // 9_
    " !cL?Y|S?Ca<--R-" // A_
    "o?23'uP.,1o>????" // B_
    "AAAAAAACEEEEIIII" // C_
    "DNOOOOOxOUUUUYPs" // D_
    "aaaaaaaceeeeiiii" // E_
    "dnooooo/ouuuuypy" // F_
;
// clang-format on

static_assert(BASE_LETTERS.size() == 128);

static constexpr std::uint8_t baseCode(int code)
{
    return static_cast<std::uint8_t>(
        code < 128 ? code : BASE_LETTERS[static_cast<std::size_t>(code - 128)]);
}

std::uint8_t baseLetter(std::uint8_t code)
{
    return baseCode(code);
}

// Advance widths. The double quote measures 0, not its drawn width.
// clang-format off
static constexpr std::uint8_t BODY_ASCII[6][16] = {
//      _0  _1  _2  _3  _4  _5  _6  _7  _8  _9  _A  _B  _C  _D  _E  _F
    { 4,  3,  0,  7,  7, 11,  9,  3,  4,  4,  5,  7,  4,  8,  3,  4}, // 2_
    { 7,  7,  7,  7,  7,  7,  7,  7,  7,  7,  3,  3,  7,  7,  7,  7}, // 3_
    {12,  9,  8,  9,  9,  8,  8,  9,  9,  3,  7,  8,  7, 11,  9, 10}, // 4_
    { 8, 10,  8,  8,  7,  8,  9, 11,  9,  9,  9,  3,  4,  3,  6,  7}, // 5_
    { 3,  7,  7,  7,  7,  7,  3,  7,  7,  3,  3,  6,  3,  9,  7,  7}, // 6_
    { 7,  7,  4,  6,  3,  7,  7,  9,  6,  7,  6,  4,  3,  4,  7,  0}, // 7_
};

static constexpr std::uint8_t TITLE_ASCII[6][16] = {
//      _0  _1  _2  _3  _4  _5  _6  _7  _8  _9  _A  _B  _C  _D  _E  _F
    { 5,  6,  0, 10, 10, 16, 13,  4,  6,  6,  8, 10,  5, 11,  5,  5}, // 2_
    {10, 10, 10, 10, 10, 10, 10, 10, 10, 10,  5,  5, 10, 11, 10, 10}, // 3_
    {13, 12, 13, 14, 13, 11, 11, 14, 13,  6, 10, 13, 10, 16, 13, 15}, // 4_
    {12, 15, 12, 13, 12, 13, 14, 18, 13, 14, 12,  5,  5,  5,  9, 10}, // 5_
    { 4,  9, 11, 10, 11, 10,  6, 11, 10,  4,  4,  9,  4, 14, 10, 11}, // 6_
    {11, 11,  6,  9,  6, 10, 10, 14, 10, 10,  9,  6,  4,  6, 10,  0}, // 7_
};

struct HighWidth {
    std::uint8_t code, body, title;
};

static constexpr HighWidth HIGH_WIDTHS[] = {
//   code body title
    {0xC0,  9, 12}, // À, as Ä
    {0xC4,  9, 12}, // Ä
    {0xC5,  9, 12}, // Å
    {0xC7,  9, 14}, // Ç
    {0xC9,  8, 11}, // É
    {0xD1,  9, 13}, // Ñ
    {0xD6, 10, 15}, // Ö
    {0xDC,  8, 13}, // Ü
    {0xDF,  8, 13}, // ß
    {0xE0,  7,  9}, // à
    {0xE1,  7,  9}, // á
    {0xE2,  7,  9}, // â
    {0xE4,  7,  9}, // ä
    {0xE5,  7,  9}, // å
    {0xE7,  7, 10}, // ç
    {0xE8,  7, 10}, // è
    {0xE9,  7, 10}, // é
    {0xEA,  7, 10}, // ê
    {0xEB,  7, 10}, // ë
    {0xEC,  3,  4}, // ì
    {0xED,  3,  4}, // í
    {0xEE,  3,  4}, // î
    {0xEF,  3,  4}, // ï
    {0xF1,  7, 10}, // ñ
    {0xF2,  7, 11}, // ò
    {0xF3,  7, 11}, // ó
    {0xF4,  7, 11}, // ô
    {0xF6,  7, 11}, // ö
    {0xF8,  7, 11}, // ø
    {0xF9,  7, 10}, // ù
    {0xFA,  7, 10}, // ú
    {0xFB,  7, 10}, // û
    {0xFC,  7, 10}, // ü
    {0xFF,  7, 10}, // ÿ
};
// clang-format on

// A high code that isn't listed takes the width of the letter it is drawn as.
static consteval Table<std::uint8_t, 256> widths(const std::uint8_t (&ascii)[6][16],
                                                 std::uint8_t HighWidth::*high)
{
    Table<std::uint8_t, 256> table{};
    for (int code = 0x20; code < 0x80; ++code)
        table[code] = ascii[code / 16 - 2][code % 16];
    for (int code = 0x80; code < 0x100; ++code)
        table[code] = table[baseCode(code)];
    for (const HighWidth& width : HIGH_WIDTHS)
        table[width.code] = width.*high;
    return table;
}

constinit const Table<std::uint8_t, 256> bodyWidths = widths(BODY_ASCII, &HighWidth::body);
constinit const Table<std::uint8_t, 256> titleWidths = widths(TITLE_ASCII, &HighWidth::title);

static constexpr Glyph cutGlyph(std::uint8_t code, Origin origin,
                                std::span<const std::string_view> rows, std::size_t first,
                                std::size_t width)
{
    Glyph glyph{.code = code,
                .width = static_cast<std::uint8_t>(width),
                .height = static_cast<std::uint8_t>(rows.size()),
                .origin = origin,
                .bits = {}};
    const std::size_t bytesPerRow = (width + 7) / 8;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const std::size_t fromBottom = rows.size() - 1 - row;
        for (std::size_t x = 0; x < width; ++x)
            if (rows[row][first + x] == '#')
                glyph.bits[static_cast<int>(fromBottom * bytesPerRow + x / 8)] |=
                    static_cast<std::uint8_t>(0x80 >> (x % 8));
    }
    return glyph;
}

// Cuts a sheet of glyphs that stand side by side, a blank between each two, into glyphs.
template <int COUNT, int ROWS>
static consteval Table<Glyph, COUNT> cutSheet(const std::uint8_t (&codes)[COUNT], Origin origin,
                                              const std::string_view (&rows)[ROWS])
{
    Table<Glyph, COUNT> glyphs{};
    std::size_t first = 0;
    for (int i = 0; i < COUNT; ++i) {
        const std::size_t end = std::min(rows[0].find(' ', first), rows[0].size());
        glyphs[i] = cutGlyph(codes[i], origin, rows, first, end - first);
        first = end + 1;
    }
    return glyphs;
}

// Letters begin a pixel right of the raster position, as GLUT's own do. A hat is wider than the
// stem of the i below it and begins at the position itself.
static constexpr Origin ON_LINE = {.x = -1, .y = 0};
static constexpr Origin NARROW = {.x = 0, .y = 0};
static constexpr Origin BELOW_LINE = {.x = -1, .y = 3}; // a cedilla hangs below the base line

// clang-format off
static constexpr auto BODY_GLYPHS = cutSheet({0xE0, 0xE1, 0xE2, 0xE4, 0xE8, 0xE9, 0xEA, 0xEB, 0xF4, 0xF6, 0xFC, 0xDF, 0xC9}, ON_LINE, {
//   à      á      â      ä      è      é      ê      ë      ô      ö      ü      ß      É
    "...... ...... ...... ...... ...... ...... ...... ...... ...... ...... ...... ...... ...#..",
    "...... ...... ...... ...... ...... ...... ...... ...... ...... ...... ...... ...... ..#...",
    ".#.... ...#.. ..#... .#..#. .#.... ...#.. ..#... .#..#. ..#... .#..#. .#..#. ...... ......",
    "..#... ..#... .#.#.. ...... ..#... ..#... .#.#.. ...... .#.#.. ...... ...... .###.. ######",
    "...... ...... ...... ...... ...... ...... ...... ...... ...... ...... ...... .#..#. #.....",
    ".###.. .###.. .###.. .###.. .###.. .###.. .###.. .###.. .###.. .###.. #...#. .#..#. #.....",
    "#...#. #...#. #...#. #...#. #...#. #...#. #...#. #...#. #...#. #...#. #...#. .#.##. #.....",
    "....#. ....#. ....#. ....#. #...#. #...#. #...#. #...#. #...#. #...#. #...#. .#...# ######",
    ".####. .####. .####. .####. #####. #####. #####. #####. #...#. #...#. #...#. .#...# #.....",
    "#...#. #...#. #...#. #...#. #..... #..... #..... #..... #...#. #...#. #...#. .#...# #.....",
    "#...#. #...#. #...#. #...#. #...#. #...#. #...#. #...#. #...#. #...#. #..##. .#...# #.....",
    ".###.# .###.# .###.# .###.# .###.. .###.. .###.. .###.. .###.. .###.. .##.#. ##.##. ######",
});

static constexpr auto TITLE_SMALL = cutSheet({0xE0, 0xE1, 0xE2, 0xE4, 0xE8, 0xE9, 0xEA, 0xEB, 0xFC, 0xF9}, ON_LINE, {
//   à        á        â        ä        è        é        ê        ë        ü        ù
    "..##.... ....##.. ..###... .##.##.. ..##.... ....##.. ..###... .##.##.. .##.##.. ..##....",
    "...##... ...##... .##.##.. .##.##.. ...##... ...##... .##.##.. .##.##.. .##.##.. ...##...",
    "........ ........ ........ ........ ........ ........ ........ ........ ........ ........",
    ".#####.. .#####.. .#####.. .#####.. .#####.. .#####.. .#####.. .#####.. ##....## ##....##",
    "###.###. ###.###. ###.###. ###.###. .######. .######. .######. .######. ##....## ##....##",
    "##...##. ##...##. ##...##. ##...##. ##....## ##....## ##....## ##....## ##....## ##....##",
    "....###. ....###. ....###. ....###. ##....## ##....## ##....## ##....## ##....## ##....##",
    ".######. .######. .######. .######. ######## ######## ######## ######## ##....## ##....##",
    "###..##. ###..##. ###..##. ###..##. ##...... ##...... ##...... ##...... ##....## ##....##",
    "##...##. ##...##. ##...##. ##...##. ##...... ##...... ##...... ##...... ##....## ##....##",
    "##...##. ##...##. ##...##. ##...##. ###...## ###...## ###...## ###...## ##...### ##...###",
    "###.###. ###.###. ###.###. ###.###. .####### .####### .####### .####### #####.## #####.##",
    ".###.##. .###.##. .###.##. .###.##. ..####.. ..####.. ..####.. ..####.. .###..## .###..##",
});

static constexpr auto TITLE_I = cutSheet({0xEE}, NARROW, {
//   î
    ".##.",
    "#..#",
    "....",
    ".##.",
    ".##.",
    ".##.",
    ".##.",
    ".##.",
    ".##.",
    ".##.",
    ".##.",
    ".##.",
    ".##.",
});

static constexpr auto TITLE_CEDILLA = cutSheet({0xE7}, BELOW_LINE, {
//   ç
    "..#####.",
    ".#######",
    ".##...##",
    "##......",
    "##......",
    "##......",
    "##......",
    "##......",
    ".##...##",
    ".#######",
    "..#####.",
    "....##..",
    "...##...",
});

static constexpr auto TITLE_O = cutSheet({0xF4, 0xF6}, ON_LINE, {
//   ô         ö
    "...###... ..##.##..",
    "..##.##.. ..##.##..",
    "......... .........",
    "..#####.. ..#####..",
    ".#######. .#######.",
    ".##...##. .##...##.",
    "##.....## ##.....##",
    "##.....## ##.....##",
    "##.....## ##.....##",
    "##.....## ##.....##",
    ".##...##. .##...##.",
    ".#######. .#######.",
    "..#####.. ..#####..",
});

static constexpr auto TITLE_SHARP_S = cutSheet({0xDF}, ON_LINE, {
//   ß
    ".#######...",
    ".########..",
    ".##...###..",
    ".##....##..",
    ".##....##..",
    ".##...##...",
    ".##..####..",
    ".##..#####.",
    ".##.....###",
    ".##......##",
    ".##......##",
    ".##.....###",
    "###..#####.",
    "###..####..",
});

static constexpr auto TITLE_CAPITALS = cutSheet({0xC0, 0xC9, 0xDC}, ON_LINE, {
//   À             É          Ü
    ".....##...... .....##... ...##.##....",
    "......##..... ....##.... ...##.##....",
    "............. .......... ............",
    "......##..... #########. ##.......##.",
    "......##..... #########. ##.......##.",
    ".....####.... ##........ ##.......##.",
    ".....####.... ##........ ##.......##.",
    "....##..##... ##........ ##.......##.",
    "....##..##... ##........ ##.......##.",
    "...##....##.. ########.. ##.......##.",
    "...##....##.. ########.. ##.......##.",
    "...########.. ##........ ##.......##.",
    "..##########. ##........ ##.......##.",
    "..##......##. ##........ ##.......##.",
    "..##......##. ##........ .##.....##..",
    ".##........## #########. .#########..",
    ".##........## #########. ...#####....",
});

static constexpr auto SERIF_GLYPHS = cutSheet({0xE7}, BELOW_LINE, {
//   ç
    "...#####.",
    ".##...###",
    ".#.....##",
    "##.......",
    "##.......",
    "##.......",
    "##.......",
    "##.......",
    "###......",
    ".###....#",
    ".#######.",
    "...#.###.",
    "....#....",
    ".....#...",
    "...##....",
});

// clang-format on

static constexpr std::span<const Glyph> TITLE_GLYPHS[] = {
    TITLE_SMALL.items, TITLE_I.items,       TITLE_CEDILLA.items,
    TITLE_O.items,     TITLE_SHARP_S.items, TITLE_CAPITALS.items};

static const Glyph* findIn(std::span<const Glyph> glyphs, std::uint8_t code)
{
    for (const Glyph& glyph : glyphs)
        if (glyph.code == code)
            return &glyph;
    return nullptr;
}

const Glyph* findGlyph(std::uint8_t code, Font font)
{
    if (font == FONT_BODY)
        return findIn(BODY_GLYPHS.items, code);
    if (font == FONT_SERIF)
        return findIn(SERIF_GLYPHS.items, code);
    if (font != FONT_TITLE)
        return nullptr;
    for (const std::span<const Glyph> sheet : TITLE_GLYPHS)
        if (const Glyph* glyph = findIn(sheet, code))
            return glyph;
    return nullptr;
}
