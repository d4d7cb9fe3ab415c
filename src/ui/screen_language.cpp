#include "ui/screens.h"

#include "app/settings.h"
#include "ui/places.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <GL/gl.h>

constexpr Colour chosenOrange = {1.0f, 0.5f, 0.0f};
constexpr Colour rowBlue = {0.0f, 0.0f, 0.3f};
constexpr Colour flagRed = {0.8f, 0.0f, 0.0f};
constexpr Colour flagYellow = {0.8f, 0.8f, 0.0f};
constexpr Colour flagBlue = {0.0f, 0.0f, 0.5f};

using Stripes = Table<Colour, 3>;

static void drawBands(const Rect& flag, const Stripes& fromTop)
{
    const float h = flag.h / 3.0f;
    for (int i = 0; i < fromTop.size(); ++i) {
        setColour(fromTop[i]);
        fillRect(flag.x, flag.y + static_cast<float>(i) * h, flag.w, h);
    }
}

static void drawColumns(const Rect& flag, const Stripes& fromLeft)
{
    const float w = flag.w / 3.0f;
    for (int i = 0; i < fromLeft.size(); ++i) {
        setColour(fromLeft[i]);
        fillRect(flag.x + static_cast<float>(i) * w, flag.y, w, flag.h);
    }
}

// A piece of the Union flag: points from one of its corners towards the middle, as parts of the
// flag's width and height, in the order of a triangle strip.
struct FlagPoint {
    float across, down;
};

// clang-format off
constexpr Table<FlagPoint, 4> SALTIRE_A =  {{{0.0f, 0.0f},  {0.0f, 0.07f}, {0.33f, 0.33f}, {0.25f, 0.33f}}};
constexpr Table<FlagPoint, 4> SALTIRE_B =  {{{0.0f, 0.0f},  {0.08f, 0.0f}, {0.33f, 0.33f}, {0.41f, 0.33f}}};
constexpr Table<FlagPoint, 3> BLUE_UPPER = {{{0.11f, 0.0f}, {0.41f, 0.0f}, {0.41f, 0.3f}}};
constexpr Table<FlagPoint, 3> BLUE_LOWER = {{{0.0f, 0.11f}, {0.0f, 0.33f}, {0.22f, 0.33f}}};
// clang-format on

template <int N>
static void drawPiece(const Rect& flag, bool right, bool bottom, const Table<FlagPoint, N>& points)
{
    glBegin(GL_TRIANGLE_STRIP);
    for (const FlagPoint& point : points)
        glVertex2f(flag.x + flag.w * (right ? 1.0f - point.across : point.across),
                   flag.y + flag.h * (bottom ? 1.0f - point.down : point.down));
    glEnd();
}

// On whole pixels, or its thin stripes would come out unlike.
static void drawUnionFlag(const Rect& place)
{
    const Rect flag = {static_cast<float>(static_cast<int>(place.x)),
                       static_cast<float>(static_cast<int>(place.y)),
                       static_cast<float>(static_cast<int>(place.w) + 1),
                       static_cast<float>(static_cast<int>(place.h) + 1)};
    setColour(WHITE);
    fillRect(flag.x, flag.y, flag.w, flag.h);

    setColour(flagRed);
    for (const bool bottom : {false, true}) {
        drawPiece(flag, bottom, bottom, SALTIRE_A);
        drawPiece(flag, !bottom, bottom, SALTIRE_B);
    }
    fillRect(flag.x, flag.y + flag.h * 0.39f, flag.w, flag.h * 0.22f);
    fillRect(flag.x + flag.w * 0.45f, flag.y, flag.w * 0.1f, flag.h);

    setColour(flagBlue);
    for (const bool right : {false, true})
        for (const bool bottom : {false, true}) {
            drawPiece(flag, right, bottom, BLUE_UPPER);
            drawPiece(flag, right, bottom, BLUE_LOWER);
        }
}

static void drawFlag(int language, const Rect& at)
{
    switch (language) {
    case LANGUAGE_GERMAN:
        return drawBands(at, {{BLACK, flagRed, flagYellow}});
    case LANGUAGE_ENGLISH:
        return drawUnionFlag(at);
    case LANGUAGE_FRENCH:
        return drawColumns(at, {{flagBlue, WHITE, flagRed}});
    case LANGUAGE_DUTCH:
        return drawBands(at, {{flagRed, WHITE, flagBlue}});
    default:
        return;
    }
}

void drawLanguages()
{
    for (int language = 0; language < LANGUAGE_COUNT; ++language) {
        const Rect row = languageBox(language);
        const float middle = row.y + row.h * 0.5f;
        setColour(language == settings.language ? chosenOrange : rowBlue);
        drawRoundedBox(row.x, row.y, row.w, row.h, row.h * 0.12f);
        drawFlag(language,
                 {row.x + row.w * 0.05f, middle - row.w * 0.05f, row.w * 0.15f, row.w * 0.1f});
        setColour(WHITE);
        drawText(row.x + row.w * 0.225f, row.y + row.h * 0.54f, ALIGN_LEFT, languageNames[language],
                 FONT_SERIF);
    }
}
