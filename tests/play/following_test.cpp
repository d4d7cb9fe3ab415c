#include "play/following.h"

#include "app/game_state.h"
#include "app/view.h"
#include "board/course.h"
#include "play/movement.h"
#include "support/races.h"

#include <gtest/gtest.h>

namespace
{

constexpr std::string_view ONE_LAP = "01S23S4S5F12";
constexpr std::string_view TWO_LAPS = "01234512345F12";
constexpr bool MOVED = true;
constexpr int WORTH = 50;

// A person's rider moves and stops, with these moves to spare.
void lead(int rider, std::string_view letters, int unused = 0)
{
    beginPersonsMove(rider, static_cast<int>(letters.size()) + unused);
    steer(letters);
    ASSERT_EQ(race.stepsTaken, static_cast<int>(letters.size()));
    endHumanMove();
}

bool asked(int rider)
{
    return gameState == STATE_FOLLOW_PROMPT && race.followerRider == rider;
}

// Rider 4 becomes a computer's, to whom every square is worth the same.
void letComputerJudge()
{
    race.riders[4].isHuman = 0;
    course.reach12 = gridOf(WORTH);
    course.reach11 = gridOf(WORTH - 1);
}

void makeRowWorth(int row, int worth)
{
    for (int& reach : course.reach12[row])
        reach = worth;
}

} // namespace

TEST(Following, TheWholeLineComesAlongInTheLeadersLane)
{
    // In lane 5 row 101 has no square of its own.
    setUpPersonsRace(ONE_LAP, {{0, 104, 5}, {4, 103, 5}, {9, 102, 5}, {12, 100, 5}});
    lead(0, "MMRM");
    ASSERT_TRUE(asked(4));
    EXPECT_EQ(view.shownTeam, 1);
    followYes();
    ASSERT_TRUE(asked(9));
    EXPECT_EQ(race.currentRider, 0); // the question names the leader
    followYes();
    ASSERT_TRUE(asked(12));
    followYes();
    EXPECT_EQ(squareOfRider(0), (Square{108, 6}));
    EXPECT_EQ(squareOfRider(4), (Square{107, 6}));
    EXPECT_EQ(squareOfRider(9), (Square{106, 6}));
    EXPECT_EQ(occupant(105, 6), 12);
    EXPECT_EQ(occupant(103, 5), -1);
    EXPECT_EQ(race.roundNumber, 3); // all four have had their turn
}

TEST(Following, BehindTheEndTooRowsWithoutASquareAreSkipped)
{
    setUpPersonsRace(ONE_LAP, {{0, 10, 0}, {4, 8, 0}});
    lead(0, "M"); // to 13, 0: rows 12, 11 and 9 have no squares in this lane
    ASSERT_TRUE(asked(4));
    followYes();
    EXPECT_EQ(squareOfRider(4), (Square{10, 0})); // where the leader stood
}

TEST(Following, ANoEndsTheChain)
{
    setUpPersonsRace(ONE_LAP, {{0, 104, 5}, {4, 103, 5}, {9, 102, 5}, {12, 103, 7}});
    lead(0, "MMM");
    followNo();
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(race.currentRider, 12);
    EXPECT_EQ(occupant(103, 5), 4);
    EXPECT_EQ(race.riders[4].hasMoved, 0);
    followYes(); // no question stands any more
    EXPECT_EQ(occupant(103, 5), 4);
}

TEST(Following, OnlyWhoStandsDirectlyBehindAndHasNotMoved)
{
    setUpPersonsRace(ONE_LAP, {{0, 104, 5}, {4, 102, 5}, {9, 103, 6}});
    lead(0, "MMM");
    EXPECT_EQ(gameState, STATE_TURN);

    setUpPersonsRace(ONE_LAP, {{0, 104, 5}, {4, 103, 5, MOVED}, {9, 102, 5}});
    lead(0, "MMM");
    EXPECT_EQ(gameState, STATE_TURN);
}

TEST(Following, OnlyFromTheTerrainOfTheSquareInFront)
{
    setUpPersonsRace(ONE_LAP, {{0, 20, 4}, {4, 19, 4}}); // a climb begins on row 20
    lead(0, "MM");
    EXPECT_EQ(gameState, STATE_TURN);

    setUpPersonsRace(ONE_LAP, {{0, 19, 4}, {4, 18, 4}}); // where the leader goes doesn't matter
    lead(0, "MMM");
    EXPECT_TRUE(asked(4));
}

TEST(Following, ATakenSquareEndsTheChain)
{
    setUpPersonsRace(ONE_LAP, {{0, 104, 5}, {4, 103, 5}, {9, 107, 6, MOVED}, {12, 103, 7}});
    lead(0, "MMMR");
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(occupant(103, 5), 4);
}

TEST(Following, TheWayMayCostTheMovesThatTheLeaderMade)
{
    // From 8, 3 to 13, 4 it takes three steps.
    setUpPersonsRace(ONE_LAP, {{0, 10, 3}, {4, 8, 3}});
    lead(0, "MR", 7);
    EXPECT_EQ(gameState, STATE_TURN);

    setUpPersonsRace(ONE_LAP, {{0, 13, 3}, {4, 10, 3}, {9, 8, 3}});
    lead(0, "MR", 7);
    ASSERT_TRUE(asked(4));
    followYes(); // behind a person's yes the chain has all the leader's moves
    ASSERT_TRUE(asked(9));
    followYes();
    EXPECT_EQ(squareOfRider(9), (Square{13, 4}));

    setUpPersonsRace(ONE_LAP, {{0, 13, 3}, {4, 10, 3}, {9, 8, 3}});
    letComputerJudge();
    lead(0, "MR", 7);
    EXPECT_EQ(squareOfRider(4), (Square{14, 4}));
    EXPECT_EQ(gameState, STATE_TURN); // behind a computer rider's it hasn't

    // Behind a computer leader the moves of his route count, not his throw.
    setUpPersonsRace(ONE_LAP, {{0, 10, 3}, {4, 8, 3}});
    beginPersonsMove(0, 2);
    steer("MR");
    race.movesTotal = 9;
    endComputerMove();
    EXPECT_EQ(gameState, STATE_TURN);
}

TEST(Following, ARiderALapAheadFollowsOnHisOwnLap)
{
    setUpPersonsRace(TWO_LAPS, {{0, 104, 5}, {4, 103 + 109, 5 + 3}, {9, 102, 5}, {12, 60, 4}});
    lead(0, "MMM");
    ASSERT_TRUE(asked(4));
    followYes();
    EXPECT_EQ(squareOfRider(4), (Square{106 + 109, 5 + 3}));
    EXPECT_EQ(race.riderLapCount[4], 2);
    ASSERT_TRUE(asked(9)); // the line goes on a lap behind
    followYes();
    EXPECT_EQ(squareOfRider(9), (Square{105, 5}));
    EXPECT_EQ(occupant(106, 5), -1);
}

TEST(Following, NobodyStandsBehindTheFirstRowButOnALaterLap)
{
    setUpPersonsRace(TWO_LAPS, {{0, 0, 2}, {4, 108, 5}, {9, 0, 4}});
    lead(0, "MM");
    ASSERT_TRUE(asked(4));
    followYes();
    EXPECT_EQ(squareOfRider(4), (Square{110, 5}));
    EXPECT_EQ(race.currentRider, 9);
}

TEST(Following, FollowersCrossTheFinishBehindTheLeader)
{
    setUpPersonsRace(ONE_LAP, {{0, 113, 5}, {4, 112, 5}, {9, 111, 5}, {12, 60, 4}});
    lead(0, "MMM");
    followYes();
    ASSERT_TRUE(asked(9));
    followYes(); // he comes to stand on the line
    EXPECT_EQ(race.resultSlots[FINISH_SLOT + 1], 4);
    EXPECT_EQ(race.resultSlots[FINISH_SLOT + 2], -1);
    EXPECT_EQ(race.sprintWinner, 0);
    EXPECT_TRUE(race.riders[0].finished && race.riders[4].finished);
    EXPECT_FALSE(race.riders[9].finished);
}

TEST(ComputerFollower, ComesToASquareAsGoodAsHisOwnTurnPromises)
{
    setUpPersonsRace(ONE_LAP, {{0, 104, 5}, {4, 103, 5}, {9, 102, 5}});
    letComputerJudge();
    lead(0, "MMM");
    EXPECT_EQ(squareOfRider(4), (Square{106, 5}));
    EXPECT_TRUE(asked(9));

    setUpPersonsRace(ONE_LAP, {{0, 104, 5}, {4, 103, 5}, {9, 102, 5}, {12, 103, 7}});
    letComputerJudge();
    course.reach12[106][5] = WORTH - 1;
    lead(0, "MMM");
    EXPECT_EQ(occupant(103, 5), 4);
    EXPECT_EQ(occupant(102, 5), 9); // the chain has ended
    EXPECT_EQ(race.currentRider, 12);
}

TEST(ComputerFollower, TakesHisOwnTurnForASevenOnHisSquare)
{
    for (const int ahead : {7, 8}) {
        setUpPersonsRace(ONE_LAP, {{0, 104, 5}, {4, 103, 5}, {12, 102, 7}});
        letComputerJudge();
        makeRowWorth(103 + ahead, WORTH + 10);
        lead(0, "MMM");
        EXPECT_EQ(race.riders[4].hasMoved, ahead == 8) << ahead; // out of a seven's reach
    }
    setUpPersonsRace(ONE_LAP, {{0, 48, 3}, {4, 47, 3}, {12, 20, 4}}); // a descent adds 4
    letComputerJudge();
    makeRowWorth(47 + 11, WORTH + 10);
    lead(0, "MM");
    EXPECT_EQ(race.riders[4].hasMoved, 0);
}

TEST(ComputerFollower, AlwaysComesAlongAcrossTheFinish)
{
    setUpPersonsRace(ONE_LAP, {{0, 113, 5}, {4, 112, 5}, {12, 60, 4}});
    letComputerJudge();
    course.reach12[115][5] = 1;
    lead(0, "MMM");
    EXPECT_EQ(race.resultSlots[FINISH_SLOT + 1], 4);
    EXPECT_EQ(race.riders[4].finished, 1);

    // The line itself lies before the finish.
    setUpPersonsRace(ONE_LAP, {{0, 112, 5}, {4, 111, 5}, {12, 60, 4}});
    letComputerJudge();
    course.reach12[course.finishRow][5] = 1;
    lead(0, "MMM");
    EXPECT_EQ(race.currentRider, 4); // he declines and takes his own turn
}
