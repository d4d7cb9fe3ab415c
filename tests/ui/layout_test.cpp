#include "ui/layout.h"

#include "app/settings.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>
#include <string>

namespace
{

constexpr std::size_t METRIC_COUNT = (sizeof(Layout) - offsetof(Layout, hudY)) / sizeof(float);

std::array<float, METRIC_COUNT> metricsOf(const Layout& l)
{
    std::array<float, METRIC_COUNT> metrics{};
    std::memcpy(metrics.data(), &l.hudY, sizeof metrics);
    return metrics;
}

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

using DrawingArea = LayoutTest;
using Ratio = LayoutTest;
using Metrics = LayoutTest;
using Dragging = LayoutTest;

TEST_F(DrawingArea, TakesTheRatioOfTheWindowOrTheNearestOne)
{
    struct Case {
        int windowW, windowH;
        double ratioW, ratioH;
        int viewW, viewX;
    };
    // clang-format off
    constexpr Case cases[] = {
        // window      ratio        width   left
        {1280, 1024,   5.0,  4.0,   1280,     0},
        {1280,  960,   4.0,  3.0,   1200,    40},
        {1024,  768,   4.0,  3.0,    960,    32},
        {1680, 1050,  16.0, 10.0,   1312,   184},
        {1920, 1080,  16.0, 10.0,   1500,   210},
        {1366,  768,  16.0, 10.0,   1067,   149},
        {1500, 1000,  16.0, 10.0,   1171,   164},
        {1400, 1000,   4.0,  3.0,   1312,    44},
        {1285, 1024,   5.0,  4.0,   1285,     0},
        { 600,  900,   5.0,  4.0,    600,     0},
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
        EXPECT_EQ(layout.viewH, c.windowH);
        EXPECT_EQ(layout.viewY, 0);
    }
}

TEST_F(DrawingArea, RoundShapesAreNarrowerWherePixelsAreWider)
{
    store(4.0, 3.0);
    computeLayout(1280, 1024);
    EXPECT_EQ(layout.viewW, 1200);
    EXPECT_FLOAT_EQ(aspectFix(), 0.9375f);
    computeLayout(1280, 960);
    EXPECT_FLOAT_EQ(aspectFix(), 1.0f);
}

TEST_F(DrawingArea, AWindowWithoutAreaBreaksNothing)
{
    const int sizes[][2] = {{0, 0}, {0, 600}, {800, 0}, {1, 1}, {1, 3000}, {3000, 1}};
    for (const bool stored : {false, true}) {
        for (const auto& [width, height] : sizes) {
            SCOPED_TRACE(std::to_string(width) + " by " + std::to_string(height));
            store(stored ? 16.0 : -1.0, stored ? 10.0 : -1.0);
            computeLayout(width, height);
            EXPECT_EQ(layout.windowH, height);
            for (const float metric : metricsOf(layout))
                EXPECT_TRUE(std::isfinite(metric));
            EXPECT_GE(layout.linesPerPage, 1.0f);
        }
    }
}

TEST_F(Ratio, AStoredOneIsKept)
{
    store(5.0, 4.0);
    computeLayout(1920, 1080);
    computeLayout(1280, 960);
    EXPECT_EQ(settings.ratioW, 5.0);
    EXPECT_EQ(layout.viewW, 1280);
}

TEST_F(Ratio, AnUnknownOneCountsAsNone)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double unknown[][2] = {{16.0, 9.0}, {0.0, 0.0}, {5.0, -1.0}, {-1.0, 4.0}, {nan, nan}};
    for (const auto& [ratioW, ratioH] : unknown) {
        store(ratioW, ratioH);
        computeLayout(1280, 960);
        EXPECT_EQ(settings.ratioW, 4.0);
        EXPECT_EQ(settings.ratioH, 3.0);
    }
}

TEST_F(Ratio, TheProgramsOwnGuessFollowsTheWindow)
{
    store(-1.0, -1.0);
    computeLayout(0, 0); // not yet shown: nothing to go by
    EXPECT_EQ(settings.ratioW, -1.0);
    computeLayout(1280, 960);
    EXPECT_EQ(settings.ratioW, 4.0);
    computeLayout(1920, 1080); // full screen at last
    EXPECT_EQ(settings.ratioW, 16.0);
    EXPECT_EQ(layout.viewW, 1500);
}

TEST_F(Ratio, APersonsChoiceStaysEvenIfItIsTheFirstGuessAgain)
{
    store(-1.0, -1.0);
    computeLayout(1280, 960);
    settings.ratioW = 5.0; // picked on the settings screen
    settings.ratioH = 4.0;
    computeLayout(1280, 960);
    EXPECT_EQ(layout.viewW, 1280);
    settings.ratioW = 4.0;
    settings.ratioH = 3.0;
    computeLayout(1920, 1080);
    EXPECT_EQ(settings.ratioW, 4.0);
    EXPECT_EQ(layout.viewW, 1800);
}

TEST_F(Metrics, CardsAndLinesAreWholeTheRestKeepsItsFraction)
{
    computeLayout(1280, 1024);
    EXPECT_EQ(layout.cardW, 54.0f);
    EXPECT_EQ(layout.cardH, 70.0f);
    EXPECT_EQ(layout.linesPerPage, 45.0f);
    EXPECT_FLOAT_EQ(layout.hudY, 779.264f);
    EXPECT_FLOAT_EQ(layout.diceX, 675.368f);
    EXPECT_FLOAT_EQ(layout.movesLeftBoxY, 973.184f);
    EXPECT_FLOAT_EQ(layout.boardViewH, 694.26571f);
    EXPECT_FLOAT_EQ(layout.settingsCancelX, 711.168f);
    EXPECT_FLOAT_EQ(layout.scorecardY, 90.268657f);

    computeLayout(640, 480);
    EXPECT_EQ(layout.linesPerPage, 19.0f);
}

// The same formulas serve the layout and the drag: to drop a box where it stands changes nothing,
// and to drop it elsewhere moves its own parts alone.
TEST_F(Dragging, MovesTheDialogAndItsButtonsUntilTheNextLayout)
{
    computeLayout(1280, 1024);
    const Layout before = layout;
    placeDialog(before.dialogX, before.dialogY);
    EXPECT_EQ(metricsOf(layout), metricsOf(before));

    placeDialog(before.dialogX + 32.0f, before.dialogY - 64.0f);
    Layout expected = before;
    for (float* x :
         {&expected.dialogX, &expected.dialogOkX, &expected.dialogLeftX, &expected.dialogRightX})
        *x += 32.0f;
    for (float* y : {&expected.dialogY, &expected.dialogButtonY})
        *y -= 64.0f;
    for (std::size_t i = 0; i < METRIC_COUNT; ++i)
        EXPECT_NEAR(metricsOf(layout)[i], metricsOf(expected)[i], 0.001f) << i;

    computeLayout(1280, 1024);
    EXPECT_EQ(metricsOf(layout), metricsOf(before));
}

TEST_F(Dragging, MovesTheScorecardAndItsButtons)
{
    computeLayout(1280, 1024);
    const Layout before = layout;
    placeScorecard(before.scorecardX, before.scorecardY);
    EXPECT_EQ(metricsOf(layout), metricsOf(before));

    placeScorecard(before.scorecardX - 128.0f, before.scorecardY + 16.0f);
    Layout expected = before;
    for (float* x : {&expected.scorecardX, &expected.scorecardOkX, &expected.exportButtonX,
                     &expected.prevStageX, &expected.nextStageX, &expected.stageTitleX,
                     &expected.generalViewButtonX, &expected.stageViewButtonX})
        *x -= 128.0f;
    for (float* y : {&expected.scorecardY, &expected.scorecardBottomButtonY, &expected.stageArrowY,
                     &expected.stageTitleY})
        *y += 16.0f;
    for (std::size_t i = 0; i < METRIC_COUNT; ++i)
        EXPECT_NEAR(metricsOf(layout)[i], metricsOf(expected)[i], 0.001f) << i;
}

} // namespace
