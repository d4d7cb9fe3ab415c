#include "ui/layout.h"

#include "app/settings.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <tuple>

namespace
{

using Ratio = std::pair<double, double>;
constexpr Ratio NO_RATIO = {-1.0, -1.0};

// The ratio in a window of this size, if the settings have been read with this one.
Ratio ratioIn(int windowW, int windowH, const Ratio& stored = NO_RATIO)
{
    std::tie(settings.ratioW, settings.ratioH) = stored;
    ratioChosenByProgram = false;
    computeLayout(windowW, windowH);
    return {settings.ratioW, settings.ratioH};
}

} // namespace

TEST(LayoutTest, TheDrawingAreaTakesTheRatioOfTheWindowOrTheNearestOne)
{
    struct Case {
        int windowW, windowH;
        Ratio ratio;
        int viewW, viewX, viewH, viewY;
    };
    // clang-format off
    constexpr Case cases[] = {
        // window      ratio          width   left  height   top
        {1280, 1024,  { 5.0,  4.0},   1280,     0,   1024,     0},
        {1280,  960,  { 4.0,  3.0},   1200,    40,    960,     0},
        {1680, 1050,  {16.0, 10.0},   1312,   184,   1050,     0},
        {1920, 1080,  {16.0, 10.0},   1350,   285,   1080,     0},
        {1366,  768,  {16.0, 10.0},    960,   203,    768,     0},
        {3440, 1440,  {16.0, 10.0},   1800,   820,   1440,     0},
        {1500, 1000,  {16.0, 10.0},   1250,   125,   1000,     0},
        {1400, 1000,  { 4.0,  3.0},   1250,    75,   1000,     0},
        {1080, 1920,  { 5.0,  4.0},   1080,     0,    864,   528},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.windowW) + " by " + std::to_string(c.windowH));
        EXPECT_EQ(ratioIn(c.windowW, c.windowH), c.ratio);
        EXPECT_EQ(layout.viewW, c.viewW);
        EXPECT_EQ(layout.viewX, c.viewX);
        EXPECT_EQ(layout.viewH, c.viewH);
        EXPECT_EQ(layout.viewY, c.viewY);
    }
    ratioIn(1280, 1024, {4.0, 3.0}); // pixels are wider
    EXPECT_FLOAT_EQ(aspectFix(), 0.9375f);
    EXPECT_NEAR(layout.boardViewH / layout.boardViewW, 0.629f, 0.001f) << "higher to look right";
    ratioIn(1920, 1080, {5.0, 4.0}); // of a wider window only the middle counts
    EXPECT_EQ(layout.viewW, 1728);
}

TEST(LayoutTest, AStoredRatioIsKeptAndAnUnknownOneCountsAsNone)
{
    EXPECT_EQ(ratioIn(1280, 960, {5.0, 4.0}), Ratio(5.0, 4.0));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Ratio& unknown :
         {Ratio{16.0, 9.0}, {0.0, 0.0}, {5.0, -1.0}, {-1.0, 4.0}, {nan, nan}})
        EXPECT_EQ(ratioIn(1280, 960, unknown), Ratio(4.0, 3.0));
    EXPECT_EQ(ratioIn(0, 0), NO_RATIO) << "not yet shown: nothing to go by";
}
