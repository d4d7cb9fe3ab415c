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
        const ScriptedRand script{raceThrow(sum - first, first)}; // the other way round
        throwForOrder();
        EXPECT_EQ(race.dice, (Pair{first, sum - first}));
        afterOrderThrow();
        EXPECT_EQ(race.dice, (Pair{-1, -1})); // none lies there for the next team
    }
    return asked;
}

// The first team, of persons as all are, has won the throw.
static void waitForPlacing(std::string_view text = ONE_LAP)
{
    startSeededRace(text, 1);
    for (Rider& rider : race.riders)
        rider.isHuman = 1;
    race.teamThrow = {12, 2, 2, 2};
    afterOrderThrow();
}

// Whether the rider who is to be placed is let onto this square.
static bool placeOn(int row, int lane)
{
    const int rider = race.currentRider;
    race.placingRow = row;
    race.placingLane = lane;
    placeHumanRider();
    return occupant(row, lane) == rider && race.currentRider != rider;
}

TEST(OrderThrow, OnlyTheTiedThrowAgainAndTheWinnersLeadEachCycleOfPlacing)
{
    waitForOrderThrow();
    EXPECT_EQ(teamsAskedFor({9, 4, 9, 9, /* team 1 is out */ 6, 8, 8, /* so is team 0 */ 3, 11}),
              (Teams{0, 1, 2, 3, 0, 2, 3, 2, 3}));
    EXPECT_EQ(race.firstPlacer, 12);

    waitForOrderThrow();
    EXPECT_EQ(teamsAskedFor({5, 5, 5, 5, /* all again */ 8, 3, 12, 12, /* 2 and 3 */ 4, 2}),
              (Teams{0, 1, 2, 3, 0, 1, 2, 3, 2, 3}));
    EXPECT_EQ(onTurn(), (OnTurn{8, STATE_PLACE_HUMAN})); // though team 3 threw last
    std::vector<int> placers = {race.currentRider};
    while (placers.size() < RIDER_COUNT) {
        nextPlacer();
        placers.push_back(race.currentRider);
    }
    EXPECT_EQ(placers, (std::vector{8, 12, 0, 4, 9, 13, 1, 5, 10, 14, 2, 6, 11, 15, 3, 7}));
}

TEST(Placing, OneOfATeamInALane)
{
    waitForPlacing();
    EXPECT_FALSE(placeOn(4, 2)); // behind the start rows
    EXPECT_FALSE(placeOn(0, 5)); // beside the road
    EXPECT_TRUE(placeOn(2, 3));
    EXPECT_EQ(squareOfRider(0), (Square{2, 3}));
    EXPECT_EQ((Square{race.placingRow, race.placingLane}), (Square{0, 0})); // the cursor is back
    EXPECT_FALSE(placeOn(2, 3));                                            // taken
    EXPECT_TRUE(placeOn(3, 3));
    EXPECT_TRUE(placeOn(0, 2));
    EXPECT_TRUE(placeOn(0, 1));
    EXPECT_FALSE(placeOn(1, 3)); // behind a team-mate
    EXPECT_FALSE(placeOn(3, 3));
    EXPECT_TRUE(placeOn(1, 2));
    EXPECT_TRUE(placeOn(2, 2));
    EXPECT_FALSE(placeOn(3, 2)); // in front of a team-mate in the last row
}

TEST(Placing, TheCursorStaysOnTheRoad)
{
    for (const bool start2 : {false, true}) {
        waitForPlacing(start2 ? FROM_START_2 : ONE_LAP);
        const auto cursor = [] { return Square{race.placingRow, race.placingLane}; };
        EXPECT_EQ(cursor(), (Square{0, start2 ? 4 : 0}));
        movePlacingCursor(-1, -1);
        EXPECT_EQ(cursor(), (Square{0, start2 ? 4 : 0}));
        movePlacingCursor(9, 9);
        EXPECT_EQ(cursor(), (Square{3, start2 ? 7 : 4}));
    }
}
