#include "play/following.h"

#include "play/movement.h"
#include "support/races.h"

#include <gtest/gtest.h>

static constexpr int WORTH = 50;

// A person's rider moves and stops, with these moves to spare.
static void lead(int rider, std::string_view letters, int unused = 0)
{
    beginPersonsMove(rider, static_cast<int>(letters.size()) + unused);
    steer(letters);
    ASSERT_EQ(race.stepsTaken, static_cast<int>(letters.size()));
    endHumanMove();
}

static void expectYes(int rider)
{
    EXPECT_EQ(gameState, STATE_FOLLOW_PROMPT);
    EXPECT_EQ(race.followerRider, rider);
    EXPECT_EQ(view.shownTeam, riderTeam(rider));
    EXPECT_EQ(race.currentRider, 0); // the question names the leader
    followYes();
}

// Whether rider 4, who may follow rider 0, is asked.
static bool asksRider4(const std::vector<Placed>& placed, std::string_view letters, int unused = 0)
{
    setUpPersonsRace(ONE_LAP, placed);
    lead(0, letters, unused);
    EXPECT_EQ(gameState == STATE_TURN, gameState != STATE_FOLLOW_PROMPT);
    return gameState == STATE_FOLLOW_PROMPT && race.followerRider == 4;
}

// Rider 4 becomes a computer's, to whom every square is worth the same.
static void letComputerJudge()
{
    race.riders[4].isHuman = 0;
    course.reach12 = gridOf(WORTH);
    course.reach11 = gridOf(WORTH - 1);
}

// Rider 0 moves from this square with rider 4, the computer's, in his wake, and a person's
// behind. The squares of one row are worth something else. With a no the chain ends.
static bool computerFollows(Square from, std::string_view letters, int otherRow, int worth)
{
    setUpPersonsRace(
        ONE_LAP,
        {{0, from.row, from.lane}, {4, from.row - 1, from.lane}, {9, from.row - 2, from.lane}});
    letComputerJudge();
    course.reach12[otherRow] = filled<int, COURSE_LANES>(worth);
    lead(0, letters);
    const bool follows = race.riders[4].hasMoved != 0;
    EXPECT_EQ(onTurn(), follows ? (OnTurn{0, STATE_FOLLOW_PROMPT}) : (OnTurn{4, STATE_ANIMATE}));
    return follows;
}

TEST(Following, TheWholeLineComesAlongInTheLeadersLane)
{
    // In lane 5 row 101 has no square of its own.
    setUpPersonsRace(ONE_LAP, {{0, 104, 5}, {4, 103, 5}, {9, 102, 5}, {12, 100, 5}});
    lead(0, "MMRM");
    for (const int follower : {4, 9, 12})
        expectYes(follower);
    EXPECT_EQ(squareOfRider(0), (Square{108, 6}));
    EXPECT_EQ(squareOfRider(4), (Square{107, 6}));
    EXPECT_EQ(squareOfRider(9), (Square{106, 6}));
    EXPECT_EQ(occupant(105, 6), 12);
    EXPECT_EQ(occupant(103, 5), -1);
    EXPECT_EQ(race.roundNumber, 3); // all four have had their turn
}

TEST(Following, ANoEndsTheChain)
{
    ASSERT_TRUE(asksRider4({{0, 104, 5}, {4, 103, 5}, {9, 102, 5}, {12, 103, 7}}, "MMM"));
    followNo();
    EXPECT_EQ(onTurn(), (OnTurn{12, STATE_TURN}));
    EXPECT_EQ(occupant(103, 5), 4);
    EXPECT_EQ(race.riders[4].hasMoved, 0);
}

TEST(Following, OnlyWhoIsDirectlyBehindOnTheSameTerrainAndHasNotMoved)
{
    EXPECT_TRUE(asksRider4({{0, 104, 5}, {4, 103, 5}}, "MMM"));
    EXPECT_FALSE(asksRider4({{0, 104, 5}, {4, 102, 5}, {9, 103, 6}}, "MMM"));
    EXPECT_FALSE(asksRider4({{0, 104, 5}, {4, 103, 5, MOVED}, {9, 102, 5}}, "MMM"));
    EXPECT_FALSE(asksRider4({{0, 20, 4}, {4, 19, 4}}, "MM")); // a climb begins on row 20
    EXPECT_TRUE(asksRider4({{0, 19, 4}, {4, 18, 4}}, "MMM")); // it lies before the leader only
    EXPECT_FALSE(asksRider4({{0, 104, 5}, {4, 103, 5}, {9, 107, 6, MOVED}, {12, 103, 7}}, "MMMR"))
        << "where he would come to stand there is somebody";
    EXPECT_EQ(occupant(103, 5), 4);

    setUpPersonsRace(ONE_LAP, {{0, 104, 5}, {4, 103, 5}});
    race.breakaway = 1;
    lead(0, "MMM");
    EXPECT_EQ(onTurn(), (OnTurn{4, STATE_TURN}));
    EXPECT_EQ(occupant(107, 5), 0);
}

// From 8, 3 to 13, 4 it takes three steps.
TEST(Following, TheWayMayCostTheMovesThatTheLeaderMade)
{
    EXPECT_FALSE(asksRider4({{0, 10, 3}, {4, 8, 3}}, "MR", 7));

    ASSERT_TRUE(asksRider4({{0, 13, 3}, {4, 10, 3}, {9, 8, 3}}, "MR", 7));
    followYes(); // behind a person's yes the chain has all the leader's moves
    expectYes(9);
    EXPECT_EQ(squareOfRider(9), (Square{13, 4}));

    setUpPersonsRace(ONE_LAP, {{0, 13, 3}, {4, 10, 3}, {9, 8, 3}});
    letComputerJudge();
    lead(0, "MR", 7);
    EXPECT_EQ(squareOfRider(4), (Square{14, 4}));
    EXPECT_EQ(gameState, STATE_TURN); // behind a computer rider's it hasn't
}

TEST(Following, ARiderALapAheadFollowsOnHisOwnLap)
{
    setUpPersonsRace(TWO_LAPS, {{0, 104, 5}, {4, 103 + 109, 5 + 3}, {9, 102, 5}, {12, 60, 4}});
    lead(0, "MMM");
    expectYes(4);
    EXPECT_EQ(squareOfRider(4), (Square{106 + 109, 5 + 3}));
    EXPECT_EQ(race.riderLapCount[4], 2);
    expectYes(9); // the line goes on a lap behind
    EXPECT_EQ(squareOfRider(9), (Square{105, 5}));
    EXPECT_EQ(occupant(106, 5), -1);
}

TEST(ComputerFollower, ComesToASquareAsGoodAsHisOwnTurnPromises)
{
    EXPECT_TRUE(computerFollows({104, 5}, "MMM", 106, WORTH));
    EXPECT_EQ(squareOfRider(4), (Square{106, 5}));
    EXPECT_FALSE(computerFollows({104, 5}, "MMM", 106, WORTH - 1));
    // With a seven of his own he would do better, but not beyond it. A descent adds 4.
    EXPECT_FALSE(computerFollows({104, 5}, "MMM", 103 + 7, WORTH + 10));
    EXPECT_TRUE(computerFollows({104, 5}, "MMM", 103 + 8, WORTH + 10));
    EXPECT_FALSE(computerFollows({48, 3}, "MM", 47 + 11, WORTH + 10));
    // Across the finish he comes always; the line itself lies before it.
    EXPECT_FALSE(computerFollows({112, 5}, "MMM", 114, 1));
    EXPECT_TRUE(computerFollows({113, 5}, "MMM", 115, 1));
    EXPECT_EQ(race.resultSlots[FINISH_SLOT + 1], 4);
}
