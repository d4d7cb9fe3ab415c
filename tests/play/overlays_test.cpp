#include "play/overlays.h"

#include "app/settings.h"
#include "support/races.h"

#include <gtest/gtest.h>

TEST(Overlays, OpenOnTheRunningStageAndLeadBack)
{
    putPersonOnTurn(0, FLAT);
    raceSetup.raceStages.resize(2);
    view.scorecardGeneral = true; // as it was closed
    openScorecard();
    EXPECT_EQ(gameState, STATE_SCORECARD);
    EXPECT_FALSE(view.scorecardGeneral);
    EXPECT_EQ(view.scorecardStage, 2);
    closeOverlay();
    EXPECT_EQ(onTurn(), (OnTurn{0, STATE_TURN}));
    openPositions();
    EXPECT_EQ(gameState, STATE_POSITIONS);
    settings.stepDelay = 7;
    openSettings();
    EXPECT_EQ(settingsBackup.stepDelay, 7);
    race.sprintWinner = 4;
    toMainMenu();
    EXPECT_EQ(race.sprintWinner, -1); // nobody is yellow in the team setup
}
