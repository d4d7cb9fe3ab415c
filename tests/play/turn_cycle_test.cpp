#include "play/turn_cycle.h"

#include "play/movement.h"
#include "support/races.h"
#include "support/scripted_rand.h"

#include <gtest/gtest.h>

// The next round, before which these riders were off the board. Somebody stands on these squares.
static void setBack(std::string_view text, const std::vector<Placed>& riders,
                    const std::vector<Square>& taken)
{
    setUpPersonsRace(text, riders);
    race.riderLapCount = filled<int, RIDER_COUNT>(1);
    for (const Placed& one : riders)
        liftOffBoard(one.rider);
    for (const Square& square : taken)
        course.courseOccupant[square.row][square.lane] = 15;
    nextTurn();
}

TEST(NextTurn, FrontMostOfThoseLeftPlays)
{
    setUpPersonsRace(ONE_LAP, {{3, 7, 2}, {6, 7, 4}, {9, 6, 4}, {14, 8, 0, MOVED}});
    nextTurn();
    EXPECT_EQ(onTurn(), (OnTurn{6, STATE_TURN})); // of those in row 7 the one further right
    EXPECT_EQ(view.shownTeam, 1);
    EXPECT_EQ(occupant(7, 4), -1); // his own square is in nobody's way
    EXPECT_EQ(occupant(7, 2), 3);
    EXPECT_EQ(race.roundNumber, 2);
}

// None of it may stand on the panel, or count, when the next one is about to throw.
TEST(NextTurn, ForgetsTheMoveBefore)
{
    setUpPersonsRace(ONE_LAP, {{3, 7, 2}});
    race.dice = race.playedCards = race.handInCards = {3, 1};
    race.moveBudget = race.extraMoves = race.bonusMoves = race.extraDie = 5;
    race.dopingCardValue = race.breakaway = 1;
    nextTurn();
    for (const Pair& pair : {race.dice, race.playedCards, race.handInCards})
        EXPECT_EQ(pair, (Pair{-1, -1}));
    for (const int none : {race.moveBudget, race.extraDie, race.dopingCardValue})
        EXPECT_EQ(none, -1);
    EXPECT_FALSE(race.extraMoves || race.bonusMoves || race.breakaway);
}

// In lane 4 row 119 has no square of its own; the line is row 114. 7, 1 is the same printed square
// as 116, 4: a lapped rider fills a gap.
TEST(Finishers, TheLineDirectlyBehindLeavesWithTheLeader)
{
    for (const bool gap : {false, true}) {
        setUpPersonsRace(ONE_LAP, {{0, 120, 4, MOVED},
                                   {1, 118, 4, MOVED},
                                   {2, 117, 4, MOVED},
                                   {3, 115, 4, MOVED},
                                   {6, 114, 4, MOVED},
                                   {5, 7, 1, MOVED},
                                   {8, 50, 3}});
        if (gap)
            liftOffBoard(5);
        race.currentRider = 0;
        nextTurn();
        for (const int rider : {0, 1, 2, 3, 5, 6})
            EXPECT_EQ(race.riders[rider].finished, rider < (gap ? 3 : 4)) << rider;
        EXPECT_EQ(occupant(115, 4), gap ? 3 : -1);
    }
}

TEST(RoundEnd, WhoMissesTurnsHoldsNobodyUpAndStaysAway)
{
    setUpPersonsRace(ONE_LAP, {{0, 7, 2, MOVED}, {5, 8, 2}});
    liftOffBoard(5);
    race.riders[5].skipTurns = 2;
    for (const int left : {1, 0}) {
        race.riders[0].hasMoved = 1;
        nextTurn();
        EXPECT_EQ(race.currentRider, 0);
        EXPECT_EQ(race.riders[5].skipTurns, left);
        EXPECT_TRUE(race.riders[5].offBoard);
    }
    race.riders[0].hasMoved = 1;
    nextTurn();
    EXPECT_EQ(race.currentRider, 5);
    EXPECT_EQ(squareOfRider(5), (Square{8, 2})); // his own is free
    EXPECT_FALSE(race.riders[5].offBoard);

    setUpPersonsRace(ONE_LAP, {{5, 8, 2}}); // rounds without a player pass at once
    race.riders[5].skipTurns = 2;
    nextTurn();
    EXPECT_EQ(race.roundNumber, 5);
    EXPECT_EQ(race.currentRider, 5);
}

TEST(SetBack, FirstToTheLeftThenFromTheRightOfTheRowBehind)
{
    setBack(ONE_LAP, {{5, 7, 2}, {6, 8, 1}, {7, 12, 4}}, {{7, 2}, {8, 1}, {8, 0}, {12, 4}});
    EXPECT_EQ(squareOfRider(7), (Square{11, 2})); // row 12 has no other square, row 11 lanes 1, 2
    EXPECT_EQ(squareOfRider(6), (Square{7, 4}));
    EXPECT_EQ(squareOfRider(5), (Square{7, 1})); // not 7, 3
    EXPECT_EQ(occupant(7, 1), 5);

    // The front-most first, then the lower index.
    setBack(ONE_LAP, {{0, 7, 4}, {9, 7, 4}, {4, 8, 0}}, {{8, 0}});
    EXPECT_EQ(squareOfRider(4), (Square{7, 4}));
    EXPECT_EQ(squareOfRider(0), (Square{7, 3}));
    EXPECT_EQ(squareOfRider(9), (Square{7, 2}));

    setBack(TWO_LAPS, {{5, 7, 2}}, {{116, 5}}); // the same printed square
    EXPECT_EQ(squareOfRider(5), (Square{7, 1}));

    setBack(ONE_LAP, {{5, 6, 0}}, {{6, 0}}); // over the line of a lap
    EXPECT_EQ(squareOfRider(5), (Square{5, 4}));
    EXPECT_EQ(race.riderLapCount[5], 0);
}

// At the very back there may be no square for him. He plays all the same, and his first step brings
// him back; whoever stands on his old square stays there.
TEST(SetBack, WhoFoundNoSquareIsBackOnceHeHasMoved)
{
    setUpPersonsRace(ONE_LAP, {{5, 0, 0, MOVED}, {1, 0, 1, MOVED}});
    race.riders[0] = {.row = 0, .lane = 0, .offBoard = 1, .isHuman = 1};
    nextTurn();
    throwNumber(raceThrow(1, 1));
    steer("M");
    EXPECT_EQ(race.riders[0].offBoard, 0); // and is seen there
    endHumanMove();
    EXPECT_EQ(squareOfRider(0), (Square{1, 0}));
    EXPECT_EQ(occupant(0, 0), 5);
}
