#include "race/placing.h"

#include "app/game_state.h"
#include "board/course.h"
#include "support/races.h"
#include "support/scripted_rand.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace
{

constexpr std::string_view FROM_START_1 = "01S23S4S5F12";
constexpr std::string_view FROM_START_2 = "64S5F12";

// A race of persons that waits for the throw of the first team.
void waitForOrderThrow(std::string_view text)
{
    startSeededRace(text, 1);
    for (int team = 0; team < TEAM_COUNT; ++team)
        makeHuman(team);
    race.teamThrow = filled<int, TEAM_COUNT>(-1);
    race.currentRider = 0;
    gameState = STATE_ORDER_THROW;
}

// Throws these sums one after the other, each confirmed. The teams that were asked, in order.
std::vector<int> teamsAskedFor(std::initializer_list<int> sums)
{
    std::vector<int> asked;
    for (const int sum : sums) {
        asked.push_back(riderTeam(race.currentRider));
        const int first = std::min(6, sum - 1);
        const ScriptedRand script{orderThrow(first, sum - first)};
        throwForOrder();
        EXPECT_EQ(race.teamThrow[asked.back()], sum);
        afterOrderThrow();
    }
    return asked;
}

void waitForPlacing(std::string_view text, int team)
{
    waitForOrderThrow(text);
    race.teamThrow = {2, 2, 2, 2};
    race.teamThrow[team] = 12;
    gameState = STATE_ORDER_RESULT;
    afterOrderThrow();
}

void placeOn(int row, int lane)
{
    race.placingRow = row;
    race.placingLane = lane;
    placeHumanRider();
}

void placeOnFirstLegal()
{
    for (int row = 0; row < START_ROWS; ++row)
        for (int lane = firstStartLane(); lane < endStartLane(); ++lane)
            if (mayPlaceOn(row, lane, race.currentRider)) {
                placeOn(row, lane);
                return;
            }
}

} // namespace

TEST(OrderThrow, OneNumberGivesBothDice)
{
    waitForOrderThrow(FROM_START_1);
    const ScriptedRand script{36 + 8};
    throwForOrder();
    EXPECT_EQ(race.dice, (Table<int, 2>{2, 3}));
    EXPECT_EQ(gameState, STATE_ORDER_RESULT);
    EXPECT_EQ(script.calls(), 1);
    throwForOrder(); // his throw stands
    EXPECT_EQ(script.calls(), 1);
}

TEST(OrderThrow, HighestPlacesFirst)
{
    waitForOrderThrow(FROM_START_1);
    EXPECT_EQ(teamsAskedFor({7, 11, 10, 9}), (std::vector{0, 1, 2, 3}));
    EXPECT_EQ(race.firstPlacer, 4);
    EXPECT_EQ(race.currentRider, 4);
    EXPECT_EQ(gameState, STATE_PLACE_HUMAN);
    EXPECT_EQ(race.dice, (Table<int, 2>{-1, -1}));
}

TEST(OrderThrow, OnlyTheTiedThrowAgain)
{
    waitForOrderThrow(FROM_START_1);
    EXPECT_EQ(teamsAskedFor({9, 4, 9, 9, /* team 1 is out */ 6, 8, 8, /* so is team 0 */ 3, 11}),
              (std::vector{0, 1, 2, 3, 0, 2, 3, 2, 3}));
    EXPECT_EQ(race.teamThrow, (Table<int, TEAM_COUNT>{0, 0, 3, 11}));
    EXPECT_EQ(race.firstPlacer, 12);
}

TEST(OrderThrow, ATieIsWonByWhomeverThrowsMoreThen)
{
    waitForOrderThrow(FROM_START_1);
    EXPECT_EQ(teamsAskedFor({5, 5, 5, 5, /* all again */ 8, 12, 3, 12, /* 1 and 3 */ 4, 2}),
              (std::vector{0, 1, 2, 3, 0, 1, 2, 3, 1, 3}));
    EXPECT_EQ(race.firstPlacer, 4);
}

TEST(OrderThrow, ComputerTeamsThrowAtOnceAndWaitForNext)
{
    waitForOrderThrow(FROM_START_1);
    for (int rider = 4; rider < 12; ++rider)
        race.riders[rider].isHuman = 0;
    throwForOrder();
    afterOrderThrow();
    EXPECT_EQ(gameState, STATE_ORDER_RESULT);
    EXPECT_NE(race.teamThrow[1], -1);
    EXPECT_EQ(race.teamThrow[2], -1);
    afterOrderThrow();
    afterOrderThrow();
    EXPECT_EQ(gameState, STATE_ORDER_THROW); // a person again
    EXPECT_EQ(race.currentRider, 12);
}

TEST(Placing, TheTeamThatWonLeadsEachCycle)
{
    waitForPlacing(FROM_START_1, 2);
    std::vector<int> placed;
    while (gameState == STATE_PLACE_HUMAN && placed.size() < RIDER_COUNT) {
        placed.push_back(race.currentRider);
        placeOnFirstLegal();
    }
    EXPECT_EQ(placed, (std::vector{8, 12, 0, 4, 9, 13, 1, 5, 10, 14, 2, 6, 11, 15, 3, 7}));
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(race.placingRow, -1);
    EXPECT_EQ(race.placingLane, -1);
    EXPECT_EQ(race.roundNumber, 1);
}

TEST(Placing, OneOfATeamInALane)
{
    waitForPlacing(FROM_START_1, 0);
    placeOn(START_ROWS, 2); // behind the start rows
    placeOn(0, 5);          // beside the road
    EXPECT_EQ(race.currentRider, 0);
    placeOn(2, 3);
    EXPECT_EQ(squareOfRider(0), (Square{2, 3}));
    EXPECT_EQ(occupant(2, 3), 0);
    EXPECT_EQ(race.placingRow, 0); // the cursor is back
    EXPECT_EQ(race.placingLane, 0);

    placeOn(2, 3);
    EXPECT_EQ(race.currentRider, 4); // taken
    placeOn(3, 3);
    placeOn(0, 3);
    placeOn(1, 3);
    EXPECT_EQ(race.currentRider, 1);
    for (int row = 0; row < START_ROWS; ++row)
        placeOn(row, 3); // full, but for the team-mate ahead and behind
    EXPECT_EQ(race.currentRider, 1);
    placeOn(0, 2);
    EXPECT_EQ(race.currentRider, 5);
}

TEST(Placing, TheCursorKeepsToTheStartGrid)
{
    waitForPlacing(FROM_START_2, 0);
    EXPECT_EQ(race.placingLane, 4);
    movePlacingCursor(-1, -1);
    EXPECT_EQ(race.placingRow, 0);
    EXPECT_EQ(race.placingLane, 4);
    movePlacingCursor(9, 9);
    EXPECT_EQ(race.placingRow, 3);
    EXPECT_EQ(race.placingLane, 7);
}

TEST(Placing, ComputerFillsTheThirdRowFromTheRight)
{
    waitForPlacing(FROM_START_1, 0);
    for (Rider& rider : race.riders)
        rider.isHuman = 0;
    placeComputerRider(); // and all the others after him
    // clang-format off
    // lane             0   1   2   3   4
    constexpr int GRID[START_ROWS][5] = {
                      {-1, -1, -1, -1, 15},
                      {11,  7,  3, 14, 10},
                      { 1, 12,  8,  4,  0},
                      { 6,  2, 13,  9, -1},   // rider 5 has set out from the last
    };
    // clang-format on
    for (int row = 0; row < START_ROWS; ++row)
        for (int lane = 0; lane < 5; ++lane)
            EXPECT_EQ(occupant(row, lane), GRID[row][lane]) << row << ", " << lane;
    EXPECT_EQ(race.currentRider, 5);
    EXPECT_EQ(squareOfRider(5), (Square{3, 4}));
    EXPECT_EQ(gameState, STATE_ANIMATE);
}

TEST(Placing, OnStart2EachTeamHasARiderInEachLane)
{
    waitForPlacing(FROM_START_2, 3);
    for (Rider& rider : race.riders)
        rider.isHuman = 0;
    placeComputerRider();
    for (int team = 0; team < TEAM_COUNT; ++team) {
        int lanes = 0;
        for (int place = 0; place < RIDERS_PER_TEAM; ++place)
            lanes |= 1 << race.riders[team * RIDERS_PER_TEAM + place].lane;
        EXPECT_EQ(lanes, 0xf0) << "team " << team;
    }
}
