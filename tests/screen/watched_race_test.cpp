#include "app/game_state.h"
#include "app/settings.h"
#include "board/course.h"
#include "board/designer.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "support/fake_host.h"
#include "screen/support/old_places.h"

#include <gtest/gtest.h>

#include <cstdlib>

// From the first click to the final scorecard and back, with nothing but "Start", "OK", a course,
// "Next", "OK" and "Quit".
TEST(WatchedRace, RunsFromTheMenuToTheScorecardWithClicksAlone)
{
    startProgram(320, 256);
    std::srand(1);
    settings.stepDistance = 999.0f;
    Player player;
    player.click("Start");
    raceSetup.multiStage = false; // on so small a screen its button lies under a name
    player.click("OK");
    player.hover(coursePicture(3));
    player.click(coursePicture(3));

    for (int events = 0; gameState != STATE_FINAL_SCORECARD; ++events) {
        ASSERT_LT(events, 20000) << "the race doesn't end";
        if (gameState == STATE_ORDER_RESULT) {
            player.click("Next");
        } else if (dialogShown()) {
            player.click("OK");
        } else {
            ASSERT_EQ(gameState, STATE_ANIMATE);
            ASSERT_TRUE(runTick());
        }
    }
    EXPECT_EQ(fakeHost.pendingMs, -1);
    for (int place = FINISH_SLOT; place < RESULT_SLOT_COUNT; ++place)
        EXPECT_NE(race.resultSlots[place], -1);

    resizeScreen(1280, 1024);
    const Rect sheet = scorecardBox();
    EXPECT_GT(countPixels(screenshot(), sheet, pixelOf(YELLOW)), 50) << "the winner's pawn";
    player.click("Quit");
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    EXPECT_EQ(race.sprintWinner, -1);
}
