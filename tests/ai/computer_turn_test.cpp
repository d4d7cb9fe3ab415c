#include "ai/computer_turn.h"

#include "play/turn_cycle.h"
#include "support/races.h"
#include "support/scripted_rand.h"

#include <gtest/gtest.h>

TEST(ComputerTurn, PlaysNoCardsInTheFirstRound)
{
    for (const int round : {1, 2}) {
        setUpRace(ONE_LAP, {{0, 106, 5}});
        race.roundNumber = round;
        nextTurn();
        EXPECT_EQ(race.playedCards, (round == 1 ? Pair{-1, -1} : Pair{0, 1}));
    }
}

TEST(ComputerTurn, BreaksAwayUnlessAQuarterOfThoseBehindAreTeamMates)
{
    const auto breaksAway = [](const std::vector<Placed>& placed) {
        setUpRace(ONE_LAP, placed);
        nextTurn();
        return race.breakaway == 1;
    };
    EXPECT_TRUE(breaksAway({{0, 106, 5}}));
    EXPECT_FALSE(breaksAway({{0, 106, 5}, {4, 105, 5}, {1, 104, 5}, {8, 103, 5}, {12, 102, 5}}));
    EXPECT_TRUE(breaksAway(
        {{0, 106, 5}, {4, 105, 5}, {1, 104, 5}, {8, 103, 5}, {12, 102, 5}, {5, 100, 5}}));
    EXPECT_TRUE(breaksAway({{0, 106, 5}, {4, 105, 5, MOVED}, {1, 104, 5}}));
}

TEST(ComputerTurn, EndsWhereTeamMatesCanFollow)
{
    setUpRace(ONE_LAP, {{0, 16, 2}, {1, 15, 2}, {2, 14, 2}});
    beginPersonsTurn(0);
    race.movesTotal = 8;
    planComputerMove(8, {});
    EXPECT_EQ(race.pathSquares[race.moveBudget].lane, 1.0f); // alone he would take lane 2
}

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
