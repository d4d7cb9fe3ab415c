#include "ui/cameras.h"
#include "screen/support/old_places.h"
#include "ui/layout.h"
#include "ui/models.h"

#include "app/settings.h"
#include "app/view.h"
#include "race/race_state.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace
{

constexpr double HALF_PI = 3.14159265358979 / 2.0;

struct Screen {
    const char* name;
    std::vector<Rect> controls;
};

std::vector<Rect> racePanel()
{
    std::vector<Rect> all = {
        viewToggle(),   cameraButton(),   scorecardButton(), positionsButton(),
        dopingButton(), settingsButton(), quitButton(),      breakawayBox(),
        throwButton(),  dicePlace(0),     dicePlace(1),      handInSlot(0),
        handInSlot(1),  handInOkButton(), extraDicePlace(),  extraThrowButton()};
    for (int team = 0; team < TEAM_COUNT; ++team)
        all.push_back(teamTab(team));
    for (int slot = 0; slot < CARD_SLOT_COUNT; ++slot)
        all.push_back(cardPlace(slot));
    return all;
}

std::vector<Rect> teamSetup()
{
    std::vector<Rect> all = {multiStageRadio(), singleStageRadio(), raceNameBox(),
                             eventCardsBox(),   teamOkButton(),     cornerButton()};
    for (int team = 0; team < TEAM_COUNT; ++team) {
        all.push_back(teamNameBox(team));
        all.push_back(teamComputerBox(team));
    }
    return all;
}

std::vector<Screen> everyScreen()
{
    return {
        {"race", racePanel()},
        {"dialog", {dialogTitleBar(), dialogLeftButton(), dialogRightButton()}},
        {"menu",
         {menuLanguageButton(), menuManualButton(), menuSettingsButton(), menuContinueButton(),
          menuStartButton(), exitButton()}},
        {"language", {languageBox(0), languageBox(1), languageBox(2), languageBox(3)}},
        {"manual", {manualFrame(), manualOkButton(), prevPageButton(), nextPageButton()}},
        {"team setup", teamSetup()},
        {"courses",
         {coursePicture(0), coursePicture(1), coursePicture(2), coursePicture(3),
          savedCourseButton(), newCourseButton(), cornerButton()}},
        {"designer",
         {sectionRadio(0), sectionRadio(1), sprintBox(), finishBox(), prevSectionButton(),
          addSectionButton(), saveCourseButton(), cornerButton()}},
        {"saved courses",
         {savedCoursePicture(), prevCourseButton(), nextCourseButton(), savedOkButton(),
          savedBackButton()}},
        {"settings",
         {smoothRadio(), stepwiseRadio(), settingsField(0), settingsField(1), settingsField(2),
          defaultButton(), ratioRadio(0), ratioRadio(1), ratioRadio(2), settingsOkButton(),
          settingsCancelButton()}},
        {"race list",
         {raceListNames(), listPrevButton(), listNextButton(), listOkButton(),
          listScorecardButton(), cornerButton()}},
        {"scorecard",
         {prevStageButton(), nextStageButton(), generalViewButton(), stageViewButton(),
          exportButton(), scorecardOkButton()}},
    };
}

// Controls may touch, but no two of them may be hit by the same click.
bool overlap(const Rect& a, const Rect& b)
{
    constexpr float TOUCH = 0.01f;
    return a.x + a.w > b.x + TOUCH && b.x + b.w > a.x + TOUCH && a.y + a.h > b.y + TOUCH &&
           b.y + b.h > a.y + TOUCH;
}

class ControlsTest : public testing::TestWithParam<std::array<int, 2>>
{
protected:
    ControlsTest() { computeLayout(GetParam()[0], GetParam()[1]); }

    ~ControlsTest() override
    {
        settings = {};
        layout = {};
        ratioChosenByProgram = false;
    }
};

TEST_P(ControlsTest, LieInTheDrawingAreaAndClearOfEachOther)
{
    for (const Screen& screen : everyScreen()) {
        SCOPED_TRACE(screen.name);
        for (std::size_t i = 0; i < screen.controls.size(); ++i) {
            const Rect& control = screen.controls[i];
            EXPECT_GE(control.x, 0.0f) << i;
            EXPECT_GE(control.y, 0.0f) << i;
            EXPECT_LE(control.x + control.w, static_cast<float>(layout.viewW)) << i;
            EXPECT_LE(control.y + control.h, static_cast<float>(layout.viewH)) << i;
            for (std::size_t k = 0; k < i; ++k)
                EXPECT_FALSE(overlap(control, screen.controls[k])) << k << " and " << i;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, ControlsTest,
                         testing::Values(std::array{1024, 768}, std::array{1280, 960},
                                         std::array{1280, 1024}, std::array{1366, 768},
                                         std::array{1920, 1080}, std::array{2560, 1440}));

class FigureTest : public testing::Test
{
protected:
    ~FigureTest() override { view = {}; }
};

TEST_F(FigureTest, ShowsItsSideToEveryCamera)
{
    constexpr float X = 700.0f;
    constexpr float Y = 300.0f;
    for (int i = 0; i < PERSPECTIVE_CAMERA_COUNT; ++i) {
        view.cameraIndex = FIRST_PERSPECTIVE_CAMERA + i;
        const double boardY = -cameraEyes[i].y; // the view turns the board's y round
        const double towards = std::atan2(boardY - Y, cameraEyes[i].x - X);
        EXPECT_FALSE(figureTurned(X, Y, towards)) << i;
        EXPECT_FALSE(figureTurned(X, Y, towards + 2.0 * HALF_PI)) << i;
        EXPECT_FALSE(figureTurned(X, Y, towards + 0.4)) << i;
        EXPECT_TRUE(figureTurned(X, Y, towards + 0.45)) << i;
        EXPECT_TRUE(figureTurned(X, Y, towards + HALF_PI)) << i;
        EXPECT_TRUE(figureTurned(X, Y, towards - HALF_PI)) << i;
    }
}

TEST_F(FigureTest, IsLeftAloneInTheFlatView)
{
    for (const int camera : {1, 2}) {
        view.cameraIndex = camera;
        EXPECT_FALSE(figureTurned(977.0f, 576.0f, 0.0));
        EXPECT_FALSE(figureTurned(977.0f, 576.0f, HALF_PI));
    }
}

} // namespace
