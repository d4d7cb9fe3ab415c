#include "play/turn_cycle.h"
#include "support/races.h"
#include "support/scripted_rand.h"

#include <gtest/gtest.h>

// Whoever watches confirms the event card, and that a climb of -6 has taken the whole throw.
TEST(ComputerTurn, WaitsForTheOkThatPersonsGiveToo)
{
    for (const int second : {4, 3}) {
        setUpRace(ONE_LAP, {{0, 43, 2}});
        raceSetup.eventCardsOn = true;
        leaveCards(0, {});
        const ScriptedRand script{raceThrow(3, second)};
        nextTurn();
        EXPECT_EQ(gameState, second == 4 ? STATE_EVENT_CARD : STATE_NO_MOVE);
    }
}
