#include "app/game_state.h"
#include "app/settings.h"
#include "app/view.h"
#include "play/overlays.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "support/fake_host.h"
#include "support/own_folder.h"
#include "support/races.h"
#include "screen/support/old_places.h"
#include "ui/texts.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace
{

constexpr char ENTER = 13;

// Behind two stages, in the move of a computer rider, the scorecard opened over it.
void openOverMove()
{
    startProgram(640, 512);
    startSeededRace("01S23S4S5F12", 5);
    raceSetup.multiStage = true;
    raceSetup.standingsFileName = "standings.csv";
    StageRecord stage;
    stage.slots = filled<int, RESULT_SLOT_COUNT>(-1);
    raceSetup.raceStages = {stage, stage};
    gameState = STATE_ANIMATE;
    openScorecard();
}

} // namespace

TEST(ScorecardInput, PagesTurnAsFarAsThereAreStages)
{
    openOverMove();
    Player player;
    player.special(GLUT_KEY_RIGHT);
    EXPECT_EQ(view.scorecardStage, 2);
    for (int i = 0; i < 3; ++i)
        player.special(GLUT_KEY_LEFT);
    EXPECT_EQ(view.scorecardStage, 0);
    player.click(nextStageButton());
    EXPECT_EQ(view.scorecardStage, 1);
    gameState = STATE_FINAL_SCORECARD;
    player.click(nextStageButton());
    EXPECT_EQ(view.scorecardStage, 1);
    player.click(prevStageButton());
    EXPECT_EQ(view.scorecardStage, 0);
}

TEST(ScorecardInput, StageComesBackWithTheLastOneThereIs)
{
    openOverMove();
    Player player;
    player.click(prevStageButton());
    player.click(generalViewButton());
    EXPECT_TRUE(view.scorecardGeneral);
    player.special(GLUT_KEY_LEFT);
    player.click(prevStageButton());
    EXPECT_EQ(view.scorecardStage, 1) << "no arrows on the general page";
    player.key('s');
    EXPECT_FALSE(view.scorecardGeneral);
    EXPECT_EQ(view.scorecardStage, 2);

    gameState = STATE_RACE_STANDINGS;
    player.key('g');
    EXPECT_TRUE(view.scorecardGeneral);
    player.click(stageViewButton());
    EXPECT_EQ(view.scorecardStage, 1);

    raceSetup.raceStages.clear();
    player.click(generalViewButton());
    EXPECT_FALSE(view.scorecardGeneral);
}

TEST(ScorecardInput, DutchGeneralHasTheLetterOfQuitWhereThereIsNone)
{
    openOverMove();
    settings.language = LANGUAGE_DUTCH;
    loadTexts();
    Player player;
    player.key('t');
    EXPECT_EQ(gameState, STATE_SCORECARD);
    EXPECT_TRUE(view.scorecardGeneral);
    view.scorecardGeneral = false;
    gameState = STATE_FINAL_SCORECARD;
    player.key('t');
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    EXPECT_FALSE(view.scorecardGeneral);
    settings = {};
    loadTexts();
}

TEST(ScorecardInput, OkForgetsTheMessageAndLetsTheMoveGoOn)
{
    const OwnFolder folder;
    openOverMove();
    Player player;
    player.key('x');
    EXPECT_EQ(view.exportStatus, EXPORT_WRITTEN);
    EXPECT_TRUE(std::filesystem::exists("standings.csv"));
    fakeHost.pendingMs = -1;
    player.click(scorecardOkButton());
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(view.exportStatus, EXPORT_NONE);
    EXPECT_EQ(fakeHost.pendingMs, 0);
}

TEST(ScorecardInput, OnlyQuitLeavesTheFinalScorecard)
{
    openOverMove();
    gameState = STATE_FINAL_SCORECARD;
    view.exportStatus = EXPORT_FAILED;
    race.sprintWinner = 4;
    Player player;
    player.key(ENTER);
    player.key('o');
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    player.key('q');
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    EXPECT_EQ(view.exportStatus, EXPORT_NONE);
    EXPECT_EQ(race.sprintWinner, -1);
}

TEST(PositionsInput, OkGoesBackByKeyAndClick)
{
    openOverMove();
    Player player;
    gameState = STATE_TURN;
    openPositions();
    player.click(positionsOkButton());
    EXPECT_EQ(gameState, STATE_TURN);
    openPositions();
    player.key(ENTER);
    EXPECT_EQ(gameState, STATE_TURN);
}
