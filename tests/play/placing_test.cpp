#include "play/placing.h"

#include "support/races.h"
#include "support/scripted_rand.h"

#include <algorithm>
#include <gtest/gtest.h>

using Teams = std::vector<int>;

// A race of persons that waits for the throw of the first team.
static void waitForOrderThrow()
{
    setUpPersonsRace(ONE_LAP, {});
    race.currentRider = 0;
    race.teamThrow = filled<int, TEAM_COUNT>(-1);
    gameState = STATE_ORDER_THROW;
}

// Throws these sums one after the other, each confirmed. The teams that were asked, in order.
static Teams teamsAskedFor(std::initializer_list<int> sums)
{
    Teams asked;
    for (const int sum : sums) {
        asked.push_back(riderTeam(race.currentRider));
        const int first = std::min(6, sum - 1);
        const ScriptedRand script{36 + (first - 1) * 6 + sum - first - 1}; // one number for both
        throwForOrder();
        throwForOrder(); // a throw stands
        EXPECT_EQ(race.dice, (Pair{first, sum - first}));
        afterOrderThrow();
        EXPECT_EQ(race.dice, (Pair{-1, -1})); // none lies there for the next team
    }
    return asked;
}

// This team of persons has won the throw.
static void waitForPlacing(int team, std::string_view text = ONE_LAP)
{
    startSeededRace(text, 1);
    for (Rider& rider : race.riders)
        rider.isHuman = 1;
    race.teamThrow = {2, 2, 2, 2};
    race.teamThrow[team] = 12;
    afterOrderThrow();
}

static void placeOn(int row, int lane)
{
    race.placingRow = row;
    race.placingLane = lane;
    placeHumanRider();
}

TEST(OrderThrow, OnlyTheTiedThrowAgain)
{
    waitForOrderThrow();
    EXPECT_EQ(teamsAskedFor({9, 4, 9, 9, /* team 1 is out */ 6, 8, 8, /* so is team 0 */ 3, 11}),
              (Teams{0, 1, 2, 3, 0, 2, 3, 2, 3}));
    EXPECT_EQ(race.firstPlacer, 12);

    waitForOrderThrow();
    EXPECT_EQ(teamsAskedFor({5, 5, 5, 5, /* all again */ 8, 12, 3, 12, /* 1 and 3 */ 4, 2}),
              (Teams{0, 1, 2, 3, 0, 1, 2, 3, 1, 3}));
    EXPECT_EQ(race.firstPlacer, 4); // though he didn't throw last
    EXPECT_EQ(onTurn(), (OnTurn{4, STATE_PLACE_HUMAN}));
}

TEST(Placing, TheTeamThatWonLeadsEachCycle)
{
    waitForPlacing(2);
    std::vector<int> placed;
    while (gameState == STATE_PLACE_HUMAN && placed.size() < RIDER_COUNT) {
        placed.push_back(race.currentRider);
        placeOn(riderTeam(race.currentRider), riderPlace(race.currentRider));
    }
    EXPECT_EQ(placed, (std::vector{8, 12, 0, 4, 9, 13, 1, 5, 10, 14, 2, 6, 11, 15, 3, 7}));
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(race.roundNumber, 1);
}

TEST(Placing, OneOfATeamInALane)
{
    waitForPlacing(0);
    placeOn(4, 2); // behind the start rows
    placeOn(0, 5); // beside the road
    EXPECT_EQ(race.currentRider, 0);
    placeOn(2, 3);
    EXPECT_EQ(occupant(2, 3), 0);
    EXPECT_EQ(squareOfRider(0), (Square{2, 3}));
    EXPECT_EQ(race.placingRow, 0); // the cursor is back
    EXPECT_EQ(race.placingLane, 0);
    placeOn(2, 3); // taken
    EXPECT_EQ(race.currentRider, 4);
    placeOn(3, 3);
    placeOn(0, 2);
    placeOn(0, 1);
    placeOn(1, 3); // behind a team-mate
    placeOn(0, 3);
    EXPECT_EQ(race.currentRider, 1);
    placeOn(1, 2);
    EXPECT_EQ(race.currentRider, 5);
}

TEST(Placing, TheCursorStaysOnTheRoad)
{
    for (const bool start2 : {false, true}) {
        waitForPlacing(0, start2 ? FROM_START_2 : ONE_LAP);
        const int right = start2 ? 4 : 0;
        EXPECT_EQ(race.placingLane, right);
        movePlacingCursor(-1, -1);
        EXPECT_EQ((Square{race.placingRow, race.placingLane}), (Square{0, right}));
        movePlacingCursor(9, 9);
        EXPECT_EQ((Square{race.placingRow, race.placingLane}), (Square{3, start2 ? 7 : 4}));
    }
}
