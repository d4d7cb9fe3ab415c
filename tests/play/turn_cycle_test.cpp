#include "play/turn_cycle.h"

#include "play/movement.h"
#include "race/soundness.h"
#include "support/races.h"
#include "support/scripted_rand.h"

#include <gtest/gtest.h>

namespace
{

// Riders who have been off the board in this round; others may have come onto their squares since.
void waitOffBoard(std::initializer_list<int> riders)
{
    for (const int rider : riders)
        liftOffBoard(rider);
}

bool finished(int rider)
{
    return race.riders[rider].finished != 0;
}

} // namespace

TEST(NextTurn, FrontMostOfThoseLeftPlays)
{
    setUpPersonsRace(ONE_LAP, {{3, 7, 2}, {6, 7, 4}, {9, 6, 4}, {14, 8, 0, MOVED}});
    nextTurn();
    EXPECT_EQ(race.currentRider, 6); // of those in row 7 the one further right
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(view.shownTeam, 1);
    EXPECT_EQ(occupant(7, 4), -1); // his own square is in nobody's way
    EXPECT_EQ(occupant(7, 2), 3);
    EXPECT_EQ(race.roundNumber, 2);
}

// None of it may stand on the panel, or count, when the next one is about to throw.
TEST(NextTurn, ForgetsTheMoveBefore)
{
    setUpPersonsRace(ONE_LAP, {{3, 7, 2}});
    race.moveBudget = 9;
    race.stepsTaken = 4;
    race.dice = race.playedCards = race.handInCards = {3, 1};
    race.extraMoves = race.bonusMoves = race.extraDie = race.dopingCardValue = 5;
    race.breakaway = 1;
    race.followerRider = race.eventRider = 7;
    race.followerPlan[7] = 100;
    nextTurn();
    EXPECT_EQ(race.moveBudget, -1);
    EXPECT_EQ(race.stepsTaken, 0);
    for (const Pair& pair : {race.dice, race.playedCards, race.handInCards})
        EXPECT_EQ(pair, (Pair{-1, -1}));
    EXPECT_FALSE(race.extraMoves || race.bonusMoves || race.breakaway);
    for (const int none : {race.extraDie, race.dopingCardValue, race.followerRider, race.eventRider,
                           race.followerPlan[7]})
        EXPECT_EQ(none, -1);
}

TEST(Finishers, TheLineDirectlyBehindLeavesWithTheLeader)
{
    // In lane 4 row 119 has no square of its own, and nobody stands on row 116.
    setUpPersonsRace(ONE_LAP, {{0, 120, 4, MOVED},
                               {1, 118, 4, MOVED},
                               {2, 117, 4, MOVED},
                               {3, 115, 4, MOVED},
                               {8, 50, 3}});
    race.currentRider = 0;
    nextTurn();
    EXPECT_TRUE(finished(0) && finished(1) && finished(2));
    EXPECT_EQ(occupant(117, 4), -1);
    EXPECT_FALSE(finished(3));
    EXPECT_EQ(occupant(115, 4), 3);
}

TEST(Finishers, NeitherWhoStandsOnTheLineNorALappedRiderIsOne)
{
    // 7, 1 is the same printed square as 116, 4: the line has no gap there.
    setUpPersonsRace(
        ONE_LAP, {{0, 117, 4, MOVED}, {5, 7, 1, MOVED}, {1, 115, 4, MOVED}, {2, 114, 4, MOVED}});
    race.currentRider = 0;
    nextTurn();
    EXPECT_TRUE(finished(1));
    EXPECT_FALSE(finished(5));
    EXPECT_FALSE(finished(2));
    EXPECT_EQ(race.currentRider, 2);
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

TEST(RoundEnd, ATurnStillToMissKeepsARiderAwayForOneMore)
{
    setUpPersonsRace(ONE_LAP, {{0, 7, 2, MOVED}, {5, 8, 2}});
    waitOffBoard({5});
    race.riders[5].skipTurns = 1;
    nextTurn();
    EXPECT_EQ(race.riders[5].offBoard, 1);
    EXPECT_EQ(race.currentRider, 0);
    race.riders[0].hasMoved = 1;
    nextTurn();
    EXPECT_EQ(race.roundNumber, 4);
    EXPECT_EQ(race.currentRider, 5);
}

TEST(RoundEnd, RoundsWithoutAPlayerPassAtOnce)
{
    setUpPersonsRace(ONE_LAP, {{5, 8, 2}});
    waitOffBoard({5});
    race.riders[5].skipTurns = 2;
    nextTurn();
    EXPECT_EQ(race.roundNumber, 5);
    EXPECT_EQ(race.currentRider, 5);
    EXPECT_EQ(race.riders[5].offBoard, 0);
}

TEST(SetBack, OnHisOwnSquareIfItIsFree)
{
    setUpPersonsRace(ONE_LAP, {{5, 7, 2}, {12, 60, 4, MOVED}});
    race.currentRider = 5;
    gameState = STATE_NO_MOVE;
    leaveRound();
    EXPECT_EQ(race.roundNumber, 3);
    EXPECT_EQ(occupant(7, 2), 5);
    EXPECT_EQ(race.currentRider, 12);
}

TEST(SetBack, FirstToTheLeftThenFromTheRightOfTheRowBehind)
{
    setUpPersonsRace(ONE_LAP, {{5, 7, 2}, {6, 8, 1}, {7, 12, 4}});
    waitOffBoard({5, 6, 7});
    course.courseOccupant[7][2] = 0;
    course.courseOccupant[8][1] = 1;
    course.courseOccupant[8][0] = 2;
    course.courseOccupant[12][4] = 3;
    nextTurn();
    EXPECT_EQ(squareOfRider(7), (Square{11, 2})); // row 12 has no other square, row 11 lanes 1, 2
    EXPECT_EQ(squareOfRider(6), (Square{7, 4}));
    EXPECT_EQ(squareOfRider(5), (Square{7, 1})); // not 7, 3
    EXPECT_EQ(occupant(7, 1), 5);
}

TEST(SetBack, FrontMostFirstThenTheLowerIndex)
{
    setUpPersonsRace(ONE_LAP, {{0, 7, 4}, {9, 7, 4}, {4, 8, 0}});
    waitOffBoard({0, 9, 4});
    course.courseOccupant[8][0] = 12;
    nextTurn();
    EXPECT_EQ(squareOfRider(4), (Square{7, 4}));
    EXPECT_EQ(squareOfRider(0), (Square{7, 3}));
    EXPECT_EQ(squareOfRider(9), (Square{7, 2}));
}

TEST(SetBack, OverTheLineOfALapHeIsInTheLapBehindIt)
{
    setUpPersonsRace(ONE_LAP, {{5, 6, 0}});
    race.riderLapCount[5] = 1;
    waitOffBoard({5});
    course.courseOccupant[6][0] = 0;
    nextTurn();
    EXPECT_EQ(squareOfRider(5), (Square{5, 4}));
    EXPECT_EQ(race.currentRider, 5);
    EXPECT_EQ(race.riderLapCount[5], 0);
}

TEST(SetBack, APrintedSquareIsTakenOnEveryLap)
{
    setUpPersonsRace(TWO_LAPS, {{5, 7, 2}, {0, 116, 5, MOVED}});
    waitOffBoard({5});
    nextTurn();
    EXPECT_EQ(squareOfRider(5), (Square{7, 1}));
}

TEST(SetBack, WithoutASquareHeIsPassedOver)
{
    setUpPersonsRace(ONE_LAP, {{5, 40, 0}, {6, 0, 0}, {7, 60, 4, MOVED}});
    waitOffBoard({5, 6});
    course.courseOccupant[0][0] = 0;
    nextTurn();
    EXPECT_EQ(race.riders[6].offBoard, 1);
    EXPECT_EQ(race.riders[5].offBoard, 0);
    EXPECT_EQ(race.currentRider, 7);
}

// At the very back there may be no square for him. He plays all the same, and his first step brings
// him back; whoever stands on his old square stays there.
TEST(SetBack, WhoFoundNoSquareIsBackOnceHeHasMoved)
{
    for (const bool person : {true, false}) {
        setUpRace(
            ONE_LAP,
            {{0, 0, 0}, {1, 0, 1, MOVED}, {2, 0, 2, MOVED}, {3, 0, 3, MOVED}, {4, 0, 4, MOVED}});
        if (person)
            makeHuman(0);
        race.riders[0].offBoard = 1;
        race.riders[5] = {.row = 0, .lane = 0, .hasMoved = 1};
        course.courseOccupant[0][0] = 5;
        nextTurn();
        ASSERT_EQ(race.currentRider, 0);
        EXPECT_EQ(occupant(0, 0), 5);
        if (person) {
            throwNumber(raceThrow(1, 1));
            steer("M");
            EXPECT_EQ(race.riders[0].offBoard, 0); // and is seen there
            steer("M");
            endHumanMove();
        } else {
            while (race.riders[0].hasMoved == 0)
                ASSERT_TRUE(advanceComputerRace());
        }
        EXPECT_EQ(race.riders[0].offBoard, 0);
        EXPECT_GT(race.riders[0].row, 0);
        EXPECT_EQ(occupant(0, 0), 5);
        EXPECT_EQ(raceFault(), "");
    }
}

TEST(StageEnd, ComesWhenNobodyIsLeftToPlay)
{
    setUpPersonsRace(ONE_LAP, {{0, 116, 4, MOVED}});
    race.currentRider = 0;
    nextTurn();
    EXPECT_EQ(gameState, STATE_DOPING_DRAW); // at once, with or without doping
    EXPECT_NE(race.dopingDraw[0], 0);
    EXPECT_EQ(race.currentRider, -1);

    // Past the finish, but never taken off: he can't hold up the stage.
    setUpPersonsRace(ONE_LAP, {{0, 116, 4, MOVED}, {1, 116, 6, MOVED}});
    race.currentRider = 0;
    nextTurn();
    EXPECT_EQ(gameState, STATE_DOPING_DRAW);
}
