#include "race/crashes.h"

#include "support/races.h"

#include <gtest/gtest.h>

using Riders = std::vector<int>;

// Who lies on the road after the first of these riders has caused a crash.
static Riders crashOf(const std::vector<Placed>& placed, std::string_view text = ONE_LAP)
{
    setUpRace(text, placed);
    crashChain(placed[0].row, placed[0].lane, placed[0].row);
    Riders down;
    for (int rider = 0; rider < RIDER_COUNT; ++rider) {
        EXPECT_EQ(race.riders[rider].pendingHandIn != 0, race.riders[rider].skipTurns == 1);
        if (race.riders[rider].pendingHandIn)
            down.push_back(rider);
    }
    return down;
}

TEST(Crash, ReachesOneRowBackButNotTheHigherLaneOfTheRowWhereItBegan)
{
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 7, 1}, {2, 7, 3}}), (Riders{0, 1}));
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 5, 2}, {2, 6, 1}, {3, 6, 3}, {4, 8, 2}, {5, 8, 1}}),
              Riders{0})
        << "side lanes are looked at beside the rider, not diagonally behind";
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 6, 2}, {2, 6, 3}, {3, 6, 4}}), (Riders{0, 1, 2, 3}));
    // Lane 1 has no square on row 12: straight behind row 13 lies row 11, and so far goes the side.
    EXPECT_EQ(crashOf({{0, 13, 1}, {1, 11, 1}}), (Riders{0, 1}));
    EXPECT_EQ(crashOf({{0, 13, 1}, {1, 12, 2}, {2, 13, 2}}), (Riders{0, 1}));
    // Back in the row where it began the rule holds for whoever stands there.
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 7, 1}, {2, 6, 1}, {3, 6, 2}, {4, 5, 2}, {5, 5, 3}}),
              (Riders{0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(crashOf({{0, 1, 1}, {1, 0, 1}, {2, 0, 0}, {3, 0, 2}}), (Riders{0, 1, 2, 3}));
}

TEST(Crash, TakesWhoeverStandsThereButThoseWhoAreDownAlready)
{
    // Team-mates, opponents, who has moved; a rider of the second lap on the squares behind.
    EXPECT_EQ(crashOf({{0, 7, 2}, {1, 6, 2, MOVED}, {8, 5, 2}, {12, 4, 2, MOVED}}),
              (Riders{0, 1, 8, 12}));
    EXPECT_EQ(crashOf({{0, 15, 2}, {1, 14 + ROWS_PER_LAP, 2 + LANES_PER_LAP}}, TWO_LAPS),
              (Riders{0, 1}));
    setUpRace(ONE_LAP, {{0, 7, 2}, {1, 6, 2}, {2, 5, 2}});
    race.riders[1].skipTurns = 2;
    crashChain(7, 2, 7);
    EXPECT_EQ(race.riders[1].skipTurns, 2);
    EXPECT_EQ(race.riders[1].pendingHandIn, 0);
    EXPECT_EQ(race.riders[2].skipTurns, 0);
}

// From row 9 to 13 there are walls between lanes 0 and 1, and 2 and 3, and from row 34 on.
TEST(Crash, AWallHoldsItFromItsFirstRowToItsLast)
{
    EXPECT_EQ(crashOf({{0, 13, 3}, {1, 13, 2}}), Riders{0});
    EXPECT_EQ(crashOf({{0, 15, 3}, {1, 15, 2}}), (Riders{0, 1}));
    EXPECT_EQ(crashOf({{0, 34, 2}, {1, 34, 1}}), Riders{0});
    EXPECT_EQ(crashOf({{0, 33, 2}, {1, 33, 1}}), (Riders{0, 1}));
    // From the lower lane to the higher one, one row behind the start of the crash.
    EXPECT_EQ(crashOf({{0, 14, 2}, {1, 13, 2}, {2, 13, 3}}), (Riders{0, 1}));
    EXPECT_EQ(crashOf({{0, 16, 2}, {1, 15, 2}, {2, 15, 3}}), (Riders{0, 1, 2}));
}
