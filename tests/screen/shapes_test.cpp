#include "app/game_state.h"
#include "app/settings.h"
#include "race/race_state.h"
#include "screen/support/drawn_texts.h"
#include "screen/support/gl_window.h"
#include "screen/support/scenes.h"
#include "support/own_folder.h"
#include "ui/controls.h"
#include "ui/dialogs.h"
#include "ui/layout.h"
#include "ui/manual_pages.h"
#include "ui/matrices.h"
#include "ui/places.h"
#include "ui/scale.h"
#include "ui/text.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

// On every monitor and in every window down to 640 by 480 each control lies in the drawing area,
// clear of the others that act, and holds its label; and from 800 by 600 on no text runs into a
// control.

namespace
{

struct Shape {
    int width, height;
};

// clang-format off
constexpr Shape SHAPES[] = {
    // 4:3 and 5:4
    {640, 480}, {800, 600}, {1024, 768}, {1152, 864}, {1280, 960}, {1280, 1024}, {1400, 1050}, {1600, 1200},
    {2048, 1536}, {2560, 2048},
    // 16:10
    {1280, 800}, {1440, 900}, {1680, 1050}, {1920, 1200}, {2560, 1600}, {2880, 1800}, {3072, 1920}, {3840, 2400},
    // 16:9
    {1024, 600}, {1280, 720}, {1360, 768}, {1366, 768}, {1536, 864}, {1600, 900}, {1920, 1080}, {2048, 1152},
    {2560, 1440}, {3200, 1800}, {3840, 2160}, {5120, 2880},
    // wider
    {2560, 1080}, {3440, 1440}, {3840, 1600}, {3840, 1080}, {5120, 1440}, {5120, 2160},
    // 3:2, square, upright, windows
    {2160, 1440}, {2256, 1504}, {3000, 2000}, {1920, 1920}, {1080, 1920}, {1200, 1920}, {1440, 2560}, {2160, 3840},
    {900, 640}, {1001, 777}, {777, 1001},
};
// clang-format on

std::string tell(const Rect& place)
{
    return std::to_string(place.x) + ", " + std::to_string(place.y) + " " +
           std::to_string(place.w) + " by " + std::to_string(place.h);
}

// An edge in common, and less than a pixel, is not in the way.
bool inTheWay(const Rect& a, const Rect& b)
{
    constexpr float touch = 1.0f;
    return a.x + a.w - b.x > touch && b.x + b.w - a.x > touch && a.y + a.h - b.y > touch &&
           b.y + b.h - a.y > touch;
}

bool isInside(const Rect& inner, const Rect& outer)
{
    constexpr float hair = 0.6f;
    return inner.x >= outer.x - hair && inner.y >= outer.y - hair &&
           inner.x + inner.w <= outer.x + outer.w + hair &&
           inner.y + inner.h <= outer.y + outer.h + hair;
}

// The label of a box or a circle stands beside it, as far as it goes.
bool isBox(Control control)
{
    return control == CONTROL_BREAKAWAY || control == CONTROL_SPRINT || control == CONTROL_FINISH ||
           (control >= CONTROL_COMPUTER_1 && control <= CONTROL_EVENT_CARDS) ||
           (control >= CONTROL_SMOOTH && control <= CONTROL_RATIO_1610);
}

bool holdsItsLabel(Control control)
{
    const float labelW = static_cast<float>(textWidth(controlLabel(control), FONT_BODY));
    return isBox(control) || labelW <= placeOf(control).w;
}

std::vector<Control> liveControls()
{
    std::vector<Control> live;
    for (int i = 0; i < CONTROL_COUNT; ++i)
        if (isLive(static_cast<Control>(i)))
            live.push_back(static_cast<Control>(i));
    return live;
}

void expectOrder(const Rect& area)
{
    const std::vector<Control> live = liveControls();
    for (const Control control : live) {
        const Rect place = placeOf(control);
        EXPECT_TRUE(isInside(place, area)) << "control " << control << " at " << tell(place);
        EXPECT_TRUE(holdsItsLabel(control)) << controlLabel(control) << " at " << tell(place);
        for (const Control other : live)
            if (other > control) {
                EXPECT_FALSE(inTheWay(place, placeOf(other)))
                    << "controls " << control << " and " << other << " at " << tell(place)
                    << " and " << tell(placeOf(other));
            }
    }
}

// A text may stand within a control as its label, or clear of it. Under a box all sorts of texts
// lie, but nobody sees them.
void expectTextsClear(const Rect& area)
{
    const bool underBox = dialogShown() || scorecardShown();
    for (const DrawnText& text : drawnTexts()) {
        // The numbers on pawns are told from the pawn's middle.
        if (text.words.empty() || text.onBox != underBox || std::abs(text.place.x) < 10.0f)
            continue;
        EXPECT_TRUE(isInside(text.place, area)) << text.words << " at " << tell(text.place);
        for (const Control control : liveControls()) {
            const Rect place = placeOf(control);
            EXPECT_TRUE(!inTheWay(text.place, place) || isInside(text.place, place) ||
                        text.words == controlLabel(control))
                << text.words << " at " << tell(text.place) << ", control " << control << " at "
                << tell(place);
        }
    }
}

TEST(Shapes, EverythingHasItsRoomOnEveryMonitor)
{
    const OwnFolder folder;
    startProgram(64, 48);
    std::set<std::pair<int, int>> seen;
    for (const Shape& shape : SHAPES)
        for (const int times : {1, 2, 3}) {
            desktopScale = times;
            takeWindowSize(shape.width, shape.height);
            if (logicalWindowW() < 640 || logicalWindowH() < 480)
                continue;
            settings = {};
            ratioChosenByProgram = false;
            computeLayout(logicalWindowW(), logicalWindowH());
            EXPECT_NEAR(aspectFix(), 1.0f, 0.003f);
            EXPECT_TRUE(
                isInside({static_cast<float>(layout.viewX), static_cast<float>(layout.viewY),
                          static_cast<float>(layout.viewW), static_cast<float>(layout.viewH)},
                         {0.0f, 0.0f, static_cast<float>(layout.windowW),
                          static_cast<float>(layout.windowH)}));
            if (!seen.insert({layout.viewW, layout.viewH}).second)
                continue; // all else follows from the drawing area
            paginateManual();
            computeMatrices();
            const Rect area = {0.0f, 0.0f, static_cast<float>(layout.viewW),
                               static_cast<float>(layout.viewH)};
            for (int scene = 0; scene < SCENE_COUNT; ++scene)
                for (int language = 0; language < LANGUAGE_COUNT; ++language) {
                    setScene(static_cast<Scene>(scene), language);
                    SCOPED_TRACE(
                        std::to_string(layout.viewW) + " by " + std::to_string(layout.viewH) + " " +
                        nameOf(static_cast<Scene>(scene)) + " " + std::to_string(language));
                    expectOrder(area);
                    if (layout.viewH >= 600)
                        expectTextsClear(area);
                }
        }
    desktopScale = 0;
    EXPECT_GT(seen.size(), 20u);
}

} // namespace
