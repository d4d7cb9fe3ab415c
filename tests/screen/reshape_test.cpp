#include "app/game_state.h"
#include "board/course.h"
#include "board/designer.h"
#include "play/start.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "support/fake_host.h"
#include "ui/places.h"
#include "ui/reshape.h"

#include <gtest/gtest.h>

#include <cstdlib>

static void openCourses(int width, int height)
{
    startProgram(width, height);
    Player().click({CONTROL_START, CONTROL_SINGLE_STAGE, CONTROL_TEAM_OK});
}

// The window system reports the size asked for first and the one that the window gets after it.
TEST(Reshape, TheSecondSizeLooksAsIfItHadBeenTheFirstAndIsClickedWhereItIsSeen)
{
    for (const auto& [width, height] :
         {std::pair{1920, 1080}, {1366, 768}, {1280, 1024}, {1024, 768}, {1500, 1000}}) {
        openCourses(width, height);
        const Image direct = screenshot();
        openCourses(1280, 960);
        resizeScreen(width, height);
        EXPECT_TRUE(screenshot() == direct) << width << " by " << height;

        Player player;
        for (int i = 0; i < fixedCourses.size(); ++i) {
            player.hover(coursePicture(i));
            EXPECT_EQ(courseScreens.courseHover, i);
        }
        player.click(coursePicture(3));
        EXPECT_EQ(courseText, fixedCourses[3]);
        EXPECT_EQ(gameState, STATE_ORDER_RESULT);
    }
}

TEST(Reshape, ARiderInMotionGoesOnWhereHeWas)
{
    startProgram(1280, 1024);
    std::srand(3);
    courseText = "01S23S4S5F12";
    startRace();
    while (gameState == STATE_ORDER_RESULT)
        Player().click(CONTROL_NEXT);
    for (int tick = 0; tick < 5; ++tick)
        runTick();
    ASSERT_EQ(gameState, STATE_ANIMATE);
    const RaceState before = race;
    const int pending = fakeHost.pendingMs;
    const Image here = screenshot();

    resizeScreen(1024, 768);
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(race.riders[race.currentRider].x, before.riders[before.currentRider].x);
    EXPECT_EQ(race.stepsTaken, before.stepsTaken);
    EXPECT_EQ(fakeHost.pendingMs, pending);
    resizeScreen(1280, 1024);
    EXPECT_TRUE(screenshot() == here);
}

// Minimised, or dragged to nothing.
TEST(Reshape, NoSizeAtAllIsSurvived)
{
    startProgram(640, 512);
    const Image menu = screenshot();
    onReshape(640, 0);
    onReshape(0, 0);
    resizeScreen(640, 512);
    EXPECT_TRUE(screenshot() == menu);
}
