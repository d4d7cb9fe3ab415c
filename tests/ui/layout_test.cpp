#include "ui/layout.h"

#include "app/settings.h"
#include "ui/places.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace
{

class LayoutTest : public testing::Test
{
protected:
    ~LayoutTest() override
    {
        settings = {};
        layout = {};
        ratioChosenByProgram = false;
    }

    static void store(double ratioW, double ratioH)
    {
        settings.ratioW = ratioW;
        settings.ratioH = ratioH;
        ratioChosenByProgram = false;
    }
};

} // namespace

TEST_F(LayoutTest, TheDrawingAreaTakesTheRatioOfTheWindowOrTheNearestOne)
{
    struct Case {
        int windowW, windowH;
        double ratioW, ratioH;
        int viewW, viewX, viewH, viewY;
    };
    // clang-format off
    constexpr Case cases[] = {
        // window      ratio        width   left  height   top
        {1280, 1024,   5.0,  4.0,   1280,     0,   1024,     0},
        {1280,  960,   4.0,  3.0,   1200,    40,    960,     0},
        {1680, 1050,  16.0, 10.0,   1312,   184,   1050,     0},
        {1920, 1080,  16.0, 10.0,   1350,   285,   1080,     0},
        {1366,  768,  16.0, 10.0,    960,   203,    768,     0},
        {3440, 1440,  16.0, 10.0,   1800,   820,   1440,     0},
        {1500, 1000,  16.0, 10.0,   1250,   125,   1000,     0},
        {1400, 1000,   4.0,  3.0,   1250,    75,   1000,     0},
        {1080, 1920,   5.0,  4.0,   1080,     0,    864,   528},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.windowW) + " by " + std::to_string(c.windowH));
        store(-1.0, -1.0);
        computeLayout(c.windowW, c.windowH);
        EXPECT_EQ(settings.ratioW, c.ratioW);
        EXPECT_EQ(settings.ratioH, c.ratioH);
        EXPECT_EQ(layout.viewW, c.viewW);
        EXPECT_EQ(layout.viewX, c.viewX);
        EXPECT_EQ(layout.viewH, c.viewH);
        EXPECT_EQ(layout.viewY, c.viewY);
        EXPECT_NEAR(aspectFix(), 1.0f, 0.001f);
    }
    store(4.0, 3.0); // pixels are wider
    computeLayout(1280, 1024);
    EXPECT_FLOAT_EQ(aspectFix(), 0.9375f);
    store(16.0, 10.0); // of a wider window only the middle counts
    computeLayout(1920, 1080);
    EXPECT_EQ(layout.viewW, 1350);
    store(5.0, 4.0);
    computeLayout(1920, 1080);
    EXPECT_EQ(layout.viewW, 1728);
}

TEST_F(LayoutTest, AStoredRatioIsKeptAndAnUnknownOneCountsAsNone)
{
    store(5.0, 4.0);
    computeLayout(1280, 960);
    EXPECT_EQ(layout.viewW, 1280);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double unknown[][2] = {{16.0, 9.0}, {0.0, 0.0}, {5.0, -1.0}, {-1.0, 4.0}, {nan, nan}};
    for (const auto& [ratioW, ratioH] : unknown) {
        store(ratioW, ratioH);
        computeLayout(1280, 960);
        EXPECT_EQ(settings.ratioW, 4.0);
        EXPECT_EQ(settings.ratioH, 3.0);
    }
}

TEST_F(LayoutTest, AGuessFollowsTheWindowAndAChoiceStaysEvenIfItIsTheFirstGuessAgain)
{
    store(-1.0, -1.0);
    computeLayout(0, 0); // not yet shown: nothing to go by
    EXPECT_EQ(settings.ratioW, -1.0);
    computeLayout(1280, 960);
    EXPECT_EQ(settings.ratioW, 4.0);
    computeLayout(1920, 1080); // full screen at last
    EXPECT_EQ(settings.ratioW, 16.0);
    computeLayout(1280, 960);
    settings.ratioW = 5.0; // picked on the settings screen
    settings.ratioH = 4.0;
    computeLayout(1280, 960);
    EXPECT_EQ(layout.viewW, 1280);
    settings.ratioW = 4.0;
    settings.ratioH = 3.0;
    computeLayout(1920, 1080);
    EXPECT_EQ(layout.viewW, 1620);
}
