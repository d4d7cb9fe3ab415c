#include "ui/layout.h"

#include "app/settings.h"
#include "race/race_state.h"
#include "screen/support/player.h"
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

// Controls that stand on one screen may touch, but no two of them may be hit by the same click.
// Those in the very same place take turns.
void expectClear(const std::vector<Rect>& places)
{
    for (std::size_t i = 0; i < places.size(); ++i) {
        const Rect& one = places[i];
        EXPECT_TRUE(one.x >= 0.0f && one.y >= 0.0f) << i;
        EXPECT_TRUE(one.x + one.w <= static_cast<float>(layout.viewW) &&
                    one.y + one.h <= static_cast<float>(layout.viewH))
            << i;
        for (std::size_t k = 0; k < i; ++k)
            EXPECT_TRUE(!overlap(one, places[k]) || (one.x == places[k].x && one.y == places[k].y))
                << k << " and " << i;
    }
}

// The controls of a screen, and what else lies on it.
std::vector<Rect> placesOf(int first, int last, std::vector<Rect> others = {})
{
    for (int control = first; control <= last; ++control)
        others.push_back(placeOf(static_cast<Control>(control)));
    return others;
}

std::vector<Rect> row(Rect (*place)(int), int count)
{
    std::vector<Rect> all;
    for (int i = 0; i < count; ++i)
        all.push_back(place(i));
    return all;
}

} // namespace

TEST_F(LayoutTest, ControlsLieInTheDrawingAreaAndClearOfEachOther)
{
    const int windows[][2] = {{1024, 768}, {1280, 960},  {1280, 1024},
                              {1366, 768}, {1920, 1080}, {2560, 1440}};
    for (const auto& [width, height] : windows) {
        SCOPED_TRACE(std::to_string(width) + " by " + std::to_string(height));
        store(-1.0, -1.0);
        computeLayout(width, height);
        std::vector<Rect> panel = row(cardPlace, CARD_SLOT_COUNT);
        for (const Rect& place :
             {dicePlace(0), dicePlace(1), handInSlot(0), handInSlot(1), extraDicePlace()})
            panel.push_back(place);
        std::vector<Rect> fields = row(teamNameBox, TEAM_COUNT);
        fields.push_back(raceNameBox());
        expectClear(placesOf(CONTROL_THROW, CONTROL_CAMERA, panel));
        expectClear(placesOf(CONTROL_QUIT_YES, CONTROL_QUIT_NO, {dialogTitleBar()}));
        expectClear(placesOf(CONTROL_SHEET_OK, CONTROL_NEXT_STAGE));
        expectClear(placesOf(CONTROL_START, CONTROL_EXIT));
        expectClear(row(languageBox, LANGUAGE_COUNT));
        expectClear(placesOf(CONTROL_MANUAL_OK, CONTROL_NEXT_PAGE, {manualFrame()}));
        expectClear(placesOf(CONTROL_TEAM_OK, CONTROL_EVENT_CARDS, fields));
        expectClear(placesOf(CONTROL_CREATE_COURSE, CONTROL_COURSE_BACK, row(coursePicture, 4)));
        expectClear(placesOf(CONTROL_ADD_SECTION, CONTROL_FINISH, row(sectionRadio, 2)));
        expectClear(placesOf(CONTROL_PREVIOUS_COURSE, CONTROL_SAVED_OK, {overviewPicture()}));
        expectClear(placesOf(CONTROL_SETTINGS_OK, CONTROL_RATIO_1610, row(settingsField, 3)));
        expectClear(placesOf(CONTROL_LIST_OK, CONTROL_LIST_NEXT, {raceListNames()}));
    }
}

TEST_F(LayoutTest, TheDrawingAreaTakesTheRatioOfTheWindowOrTheNearestOne)
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
        {1680, 1050,  16.0, 10.0,   1312,   184},
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
    }
    store(4.0, 3.0); // pixels are wider
    computeLayout(1280, 1024);
    EXPECT_FLOAT_EQ(aspectFix(), 0.9375f);
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
    EXPECT_EQ(layout.viewW, 1800);
}
