#include "race/turn_cycle.h"

#include "app/game_state.h"
#include "app/view.h"
#include "board/course.h"
#include "support/races.h"

#include <gtest/gtest.h>

namespace
{

constexpr std::string_view ONE_LAP = "01S23S4S5F12"; // finish row 114
constexpr std::string_view TWO_LAPS = "01234512345F12";
constexpr bool MOVED = true;

// Lifts a rider off the board where he stands; he plays again from the next round end on.
void liftOff(int rider, int skipTurns = 0)
{
    liftOffBoard(rider);
    race.riders[rider].skipTurns = skipTurns;
}

} // namespace

TEST(NextTurn, FrontMostOfThoseLeftPlays)
{
    setUpPersonsRace(ONE_LAP, {{3, 7, 2}, {6, 7, 4}, {9, 6, 4}, {14, 8, 0, MOVED}});
    nextTurn();
    EXPECT_EQ(race.currentRider, 6); // of those in row 7 the one further right
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(view.shownTeam, 1);
    EXPECT_EQ(race.moveStartRow, 7.0f);
    EXPECT_EQ(race.moveStartLane, 4.0f);
    EXPECT_EQ(occupant(7, 4), -1); // his own square is in nobody's way
    EXPECT_EQ(occupant(7, 2), 3);
    EXPECT_EQ(race.roundNumber, 2);
}

TEST(NextTurn, TheValuesOfTheTurnBeforeAreGone)
{
    setUpPersonsRace(ONE_LAP, {{3, 7, 2}, {6, 7, 4}});
    race.playedCards = {2, DOPING_CARD};
    race.dice = {5, 6};
    race.handInCards = {0, 1};
    race.breakaway = race.extraMoves = race.stepsTaken = race.eventRider = race.followerRider = 4;
    race.followerPlan[5] = 60;
    nextTurn();
    EXPECT_EQ(race.playedCards, (Table<int, 2>{-1, -1}));
    EXPECT_EQ(race.dice, (Table<int, 2>{-1, -1}));
    EXPECT_EQ(race.handInCards, (Table<int, 2>{-1, -1}));
    EXPECT_EQ(race.breakaway, 0);
    EXPECT_EQ(race.extraMoves, 0);
    EXPECT_EQ(race.stepsTaken, 0);
    EXPECT_EQ(race.moveBudget, -1);
    EXPECT_EQ(race.eventRider, -1);
    EXPECT_EQ(race.followerRider, -1);
    EXPECT_EQ(race.followerPlan[5], -1);
}

TEST(NextTurn, AnExtraDieOutlastsABonusByOneTurn)
{
    setUpPersonsRace(ONE_LAP, {{3, 7, 2}, {6, 7, 4}});
    race.extraDie = 3;
    race.bonusMoves = BLUE_CARD;
    nextTurn();
    EXPECT_EQ(race.extraDie, 3);
    EXPECT_EQ(race.bonusMoves, 0);
    nextTurn();
    EXPECT_EQ(race.extraDie, -1);
}

TEST(Finishers, TheLineDirectlyBehindLeavesWithTheLeader)
{
    // In lane 4 row 119 has no square of its own, and nobody stands on row 116.
    setUpPersonsRace(ONE_LAP, {{0, 120, 4, MOVED},
                               {1, 118, 4, MOVED},
                               {2, 117, 4, MOVED},
                               {3, 115, 4, MOVED},
                               {7, 117, 5, MOVED},
                               {8, 50, 3}});
    race.currentRider = 0;
    nextTurn();
    EXPECT_TRUE(race.riders[0].finished && race.riders[1].finished && race.riders[2].finished);
    EXPECT_EQ(occupant(120, 4), -1);
    EXPECT_EQ(occupant(117, 4), -1);
    EXPECT_FALSE(race.riders[3].finished); // behind the gap
    EXPECT_EQ(occupant(115, 4), 3);
    EXPECT_FALSE(race.riders[7].finished); // in another lane
}

TEST(Finishers, WhoStandsOnTheLineHasNotFinished)
{
    setUpPersonsRace(ONE_LAP, {{0, 116, 4, MOVED}, {1, 115, 4, MOVED}, {2, 114, 4, MOVED}});
    race.currentRider = 0;
    nextTurn();
    EXPECT_TRUE(race.riders[1].finished);
    EXPECT_FALSE(race.riders[2].finished);
    EXPECT_EQ(race.currentRider, 2);
}

TEST(Finishers, ALappedRiderOnTheSamePrintedSquareStaysInTheRace)
{
    setUpPersonsRace(ONE_LAP, {{0, 117, 4, MOVED}, {5, 7, 1}, {1, 115, 4, MOVED}});
    race.currentRider = 0;
    nextTurn(); // 7, 1 is the same printed square as 116, 4: the line has no gap
    EXPECT_FALSE(race.riders[5].finished);
    EXPECT_TRUE(race.riders[1].finished);
    EXPECT_EQ(race.currentRider, 5);
}

TEST(RoundEnd, WhoMissesATurnHoldsNobodyUp)
{
    setUpPersonsRace(ONE_LAP, {{0, 7, 2, MOVED}, {5, 8, 2}});
    race.riders[5].skipTurns = 1;
    nextTurn();
    EXPECT_EQ(race.roundNumber, 3);
    EXPECT_EQ(race.currentRider, 0);
    EXPECT_EQ(race.riders[5].skipTurns, 0);
    EXPECT_EQ(race.riders[5].hasMoved, 1);
}

TEST(RoundEnd, TwoMissedTurnsKeepARiderAwayForTwoRoundEnds)
{
    setUpPersonsRace(ONE_LAP, {{0, 7, 2, MOVED}, {5, 8, 2}});
    liftOff(5, 1); // one of two turns is missed
    nextTurn();
    EXPECT_EQ(race.riders[5].offBoard, 1);
    EXPECT_EQ(race.currentRider, 0);
    race.riders[0].hasMoved = 1;
    course.courseOccupant[7][2] = 0;
    nextTurn();
    EXPECT_EQ(race.roundNumber, 4);
    EXPECT_EQ(race.riders[5].offBoard, 0);
    EXPECT_EQ(race.currentRider, 5); // the front-most again
}

TEST(RoundEnd, RoundsWithoutAPlayerPassAtOnce)
{
    setUpPersonsRace(ONE_LAP, {{5, 8, 2}});
    liftOff(5, 2);
    nextTurn();
    EXPECT_EQ(race.roundNumber, 5);
    EXPECT_EQ(race.currentRider, 5);
    EXPECT_EQ(squareOfRider(5), (Square{8, 2}));
    EXPECT_EQ(race.riders[5].skipTurns, 0);
}

TEST(SetBack, OnHisOwnSquareIfItIsFree)
{
    setUpPersonsRace(ONE_LAP, {{5, 7, 2}, {12, 60, 4, MOVED}});
    race.currentRider = 5;
    race.moveBudget = -2;
    gameState = STATE_NO_MOVE;
    leaveRound();
    EXPECT_EQ(race.roundNumber, 3);
    EXPECT_EQ(squareOfRider(5), (Square{7, 2}));
    EXPECT_EQ(occupant(7, 2), 5);
    EXPECT_EQ(race.riders[5].offBoard, 0);
    EXPECT_EQ(race.currentRider, 12);
}

TEST(SetBack, FirstToTheLeftThenFromTheRightOfTheRowBehind)
{
    setUpPersonsRace(ONE_LAP, {{5, 7, 2}, {6, 8, 1}, {7, 12, 4}});
    liftOff(5);
    liftOff(6);
    liftOff(7);
    race.riders[0] = {.row = 7, .lane = 2, .hasMoved = 1}; // on the square of rider 5
    course.courseOccupant[7][2] = 0;
    for (int lane = 0; lane < 2; ++lane) {
        race.riders[1 + lane] = {.row = 8, .lane = lane, .hasMoved = 1};
        course.courseOccupant[8][lane] = 1 + lane;
    }
    race.riders[3] = {.row = 12, .lane = 4, .hasMoved = 1};
    course.courseOccupant[12][4] = 3;
    nextTurn();
    EXPECT_EQ(squareOfRider(7), (Square{11, 2})); // row 12 has no other square, row 11 lanes 1, 2
    EXPECT_EQ(squareOfRider(6), (Square{7, 4}));  // lanes 0 and 1 of row 8 are taken
    EXPECT_EQ(squareOfRider(5), (Square{7, 1}));  // not 7, 3
    EXPECT_EQ(occupant(7, 1), 5);
}

TEST(SetBack, FrontMostFirst)
{
    setUpPersonsRace(ONE_LAP, {{0, 7, 4}, {5, 8, 0}, {12, 8, 0, MOVED}});
    liftOff(0);
    race.riders[5].offBoard = race.riders[5].hasMoved = 1; // 12 has come onto his square since
    nextTurn();
    EXPECT_EQ(squareOfRider(5), (Square{7, 4}));
    EXPECT_EQ(squareOfRider(0), (Square{7, 3}));
}

TEST(SetBack, OfTwoOnOneSquareTheLowerIndexFirst)
{
    setUpPersonsRace(ONE_LAP, {{9, 7, 2}, {4, 7, 2}});
    race.riders[9].offBoard = race.riders[9].hasMoved = 1;
    liftOff(4);
    nextTurn();
    EXPECT_EQ(squareOfRider(4), (Square{7, 2}));
    EXPECT_EQ(squareOfRider(9), (Square{7, 1}));
}

TEST(SetBack, APrintedSquareIsTakenOnEveryLap)
{
    setUpPersonsRace(TWO_LAPS, {{5, 7, 2}, {0, 116, 5, MOVED}});
    liftOff(5);
    nextTurn();
    EXPECT_EQ(squareOfRider(5), (Square{7, 1}));
}

TEST(SetBack, WithoutASquareHeIsPassedOver)
{
    setUpPersonsRace(ONE_LAP, {{5, 0, 0}, {0, 0, 0, MOVED}, {6, 40, 1}, {7, 60, 4, MOVED}});
    race.riders[5].offBoard = race.riders[5].hasMoved = 1;
    liftOff(6);
    nextTurn();
    EXPECT_EQ(race.riders[5].offBoard, 1);
    EXPECT_EQ(race.riders[6].offBoard, 0);
    EXPECT_EQ(race.currentRider, 7);
}

TEST(StageEnd, ComesWithTheLastFinisher)
{
    setUpPersonsRace(ONE_LAP, {{0, 116, 4, MOVED}});
    race.currentRider = 0;
    nextTurn();
    EXPECT_EQ(race.currentRider, -1);
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(returnState, STATE_RACE_CLOSED);
}

TEST(StageEnd, NobodyLeftToPlayEndsItToo)
{
    setUpPersonsRace(ONE_LAP, {{0, 116, 4, MOVED}, {1, 116, 6, MOVED}});
    race.currentRider = 0;
    nextTurn();
    EXPECT_FALSE(race.riders[1].finished);
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
}
