#include "race/crashes.h"

#include "board/course.h"
#include "support/races.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

// Rows 9 to 13 of section "Start 1": the walls stand between lanes 0 and 1, and 2 and 3, and the
// squares there are of different lengths.
constexpr std::string_view ONE_LAP = "01S23S4S5F12";
constexpr std::string_view TWO_LAPS = "012345812345F812";

using Riders = std::vector<int>;

// Who lies on the road after the rider on this square has caused a crash.
Riders crashAt(Square square)
{
    crashChain(square.row, square.lane, square.row);
    Riders down;
    for (int rider = 0; rider < RIDER_COUNT; ++rider) {
        EXPECT_EQ(race.riders[rider].pendingHandIn != 0, race.riders[rider].skipTurns == 1);
        if (race.riders[rider].pendingHandIn)
            down.push_back(rider);
    }
    return down;
}

Riders crashOf(std::initializer_list<Placed> placed, std::string_view course = ONE_LAP)
{
    setUpRace(course, placed);
    return crashAt({placed.begin()->row, placed.begin()->lane});
}

} // namespace

TEST(Crash, ReachesOneRowBackButNotTheHigherLaneOfItsOwnRow)
{
    EXPECT_EQ(crashOf({{0, 7, 2}}), Riders{0});
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 7, 1}}), (Riders{0, 1}));
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 7, 3}}), Riders{0});
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 6, 2}}), (Riders{0, 1}));
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 6, 1}, {2, 6, 3}, {3, 8, 2}, {4, 8, 1}}), Riders{0})
        << "side lanes are looked at beside the rider, not diagonally behind";
}

TEST(Crash, SpreadsToTheHigherLaneInEveryOtherRow)
{
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 6, 2}, {2, 6, 3}, {3, 6, 4}}), (Riders{0, 1, 2, 3}));
    // Back in the row where it began the rule holds for whoever stands there.
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 7, 1}, {2, 7, 0}, {3, 7, 3}}), (Riders{0, 1, 2}));
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 7, 1}, {2, 6, 1}, {3, 6, 2}, {4, 5, 2}, {5, 5, 3}}),
              (Riders{0, 1, 2, 3, 4, 5}));
}

TEST(Crash, TakesTeamMatesOpponentsAndThoseWhoHaveMoved)
{
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 6, 2, true}, {8, 5, 2}, {12, 4, 2, true}}),
              (Riders{0, 1, 8, 12}));
}

TEST(Crash, AGapEndsItAndSoDoesWhoeverIsDownAlready)
{
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 5, 2}}), Riders{0});
    setUpRace(ONE_LAP, {{0, 7, 2}, {1, 6, 2}, {2, 5, 2}});
    race.riders[1].skipTurns = 2;
    crashChain(7, 2, 7);
    EXPECT_EQ(race.riders[1].skipTurns, 2);
    EXPECT_EQ(race.riders[1].pendingHandIn, 0);
    EXPECT_EQ(race.riders[2].skipTurns, 0);
}

TEST(Crash, AWallHoldsItFromItsFirstRowToItsLast)
{
    for (const int row : {13, 15}) { // the last row of the wall; free road
        const bool walled = row == 13;
        SCOPED_TRACE(row);
        EXPECT_EQ(crashOf({{0, row, 1}, {1, row, 0}}), walled ? Riders{0} : (Riders{0, 1}));
        EXPECT_EQ(crashOf({{0, row, 3}, {1, row, 2}}), walled ? Riders{0} : (Riders{0, 1}));
    }
    // Its first row, behind which the road is free.
    EXPECT_EQ(crashOf({{0, 34, 2}, {1, 34, 1}}), Riders{0});
    EXPECT_EQ(crashOf({{0, 33, 2}, {1, 33, 1}}), (Riders{0, 1}));
    // From the lower lane to the higher one, one row behind the start of the crash.
    EXPECT_EQ(crashOf({{0, 14, 2}, {1, 13, 2}, {2, 13, 3}}), (Riders{0, 1}));
    EXPECT_EQ(crashOf({{0, 16, 2}, {1, 15, 2}, {2, 15, 3}}), (Riders{0, 1, 2}));
    // Whoever stands in front of the wall reaches along it.
    EXPECT_EQ(crashOf({{0, 14, 1}, {1, 13, 1}, {2, 13, 0}}), (Riders{0, 1}));
}

TEST(Crash, LongSquaresReachFurtherBack)
{
    // Lane 1 has no square on rows 12 and 10: straight behind row 13 lies row 11.
    EXPECT_EQ(crashOf({{0, 13, 1}, {1, 11, 1}}), (Riders{0, 1}));
    // Lane 3 from row 13 back to row 10: beside it, no wall between 3 and 4, rows 13 and 12.
    EXPECT_EQ(crashOf({{0, 14, 3}, {1, 13, 3}, {2, 12, 4}}), (Riders{0, 1, 2}));
    // Row 10 itself belongs to the rider who stands there in lane 3.
    EXPECT_EQ(crashOf({{0, 14, 3}, {1, 13, 3}, {2, 10, 4}}), (Riders{0, 1}));
    EXPECT_EQ(crashOf({{0, 14, 3}, {1, 13, 3}, {2, 10, 4}, {3, 10, 3}}), (Riders{0, 1, 2, 3}));
}

TEST(Crash, ALongSquareBesideTheRiderHoldsItOnThatSide)
{
    for (const int side : {1, 3}) {
        setUpRace(ONE_LAP, {{0, 8, 2}, {1, 7, 2}, {2, 6, side}});
        course.moveModifier[6][2] = PASS_THROUGH;
        EXPECT_EQ(crashAt({8, 2}), (Riders{0, 1, 2}));
        setUpRace(ONE_LAP, {{0, 8, 2}, {1, 7, 2}, {2, 6, side}});
        course.moveModifier[6][2] = course.moveModifier[7][side] = PASS_THROUGH;
        EXPECT_EQ(crashAt({8, 2}), (Riders{0, 1}));
    }
}

TEST(Crash, AtTheEdgesOfTheCourseOnlyTheRoadIsLookedAt)
{
    EXPECT_EQ(crashOf({{0, 0, 1}, {1, 0, 0}, {2, 0, 2}}), (Riders{0, 1}));
    EXPECT_EQ(crashOf({{0, 1, 1}, {1, 0, 1}, {2, 0, 0}, {3, 0, 2}}), (Riders{0, 1, 2, 3}));
}

TEST(Crash, FindsWhoeverStandsOnThePrintedSquareOnAnotherLap)
{
    // A rider of the second lap on the very squares behind the first.
    EXPECT_EQ(crashOf({{0, 15, 2}, {1, 14 + ROWS_PER_LAP, 2 + LANES_PER_LAP}}, TWO_LAPS),
              (Riders{0, 1}));
}
