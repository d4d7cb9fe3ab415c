#include "ai/route_search.h"

#include "board/designer.h"
#include "race/step_rule.h"
#include "support/races.h"

#include <gtest/gtest.h>

#include <set>

// The best route of rider 0 with a throw of so many.
static RouteBest search(Square from, int thrown, bool simulateFollowers)
{
    race.currentRider = 0;
    race.movesTotal = thrown;
    race.moveStartRow = static_cast<float>(from.row);
    race.moveStartLane = static_cast<float>(from.lane);
    RouteBest best;
    findRoute(from, thrown + squareAt(from.row, from.lane),
              {.rider = 0, .simulateFollowers = simulateFollowers}, best);
    return best;
}

// Every square within a number of moves, by trying all ways.
static void collect(Square at, int moves, std::set<std::pair<int, int>>& reached)
{
    reached.insert({at.row, at.lane});
    if (moves == 0)
        return;
    for (const char letter : {'R', 'L', 'M'})
        if (const Square to = stepTarget(at.row, at.lane, letter, false); to != NO_STEP)
            collect(to, moves - 1, reached);
}

// All else that decides a route is told by whole races.
TEST(RouteSearch, WeighsSquaresSprintsAndFollowers)
{
    const struct {
        Square from;
        int thrown;
        bool withFollowers;
        std::vector<Placed> others;
        const char* path;
    } cases[] = {
        {{7, 2}, 8, false, {}, "MRMMMMMM"},
        {{7, 2}, 8, false, {{1, 14, 3, MOVED}}, "MRMLMMMR"},
        {{27, 4}, 6, false, {}, "MMMM"}, // over a sprint
        {{2, 2}, 6, false, {{1, 3, 1}, {2, 3, 2}, {3, 3, 3}}, ""},
        {{104, 5}, 8, true, {{1, 103, 5}, {4, 102, 5}, {8, 101, 5}}, "MMMMMMRR"},
    };
    for (const auto& known : cases) {
        setUpRace(ONE_LAP, known.others);
        EXPECT_EQ(search(known.from, known.thrown, known.withFollowers).path.text(), known.path);
    }
    EXPECT_EQ(race.followerPlan[1], 126);
    EXPECT_EQ(race.followerPlan[4], 125);
    EXPECT_EQ(race.followerPlan[8], -1);
}

// A search for a target finds a way exactly where trying all ways does, also past riders and walls.
TEST(RouteSearch, ReachesWhatTryingAllWaysReaches)
{
    for (const std::string_view text : fixedCourses) {
        setUpRace(text, {{1, 8, 5}, {2, 9, 6}, {3, 12, 3}, {4, 14, 2}, {5, 31, 3}, {6, 33, 2}});
        for (const int row : {2, 5, 7, 11, 16, 27, 29, 45, 54})
            for (int lane = 0; lane < COURSE_LANES; ++lane) {
                if (!isRealSquare(squareAt(row, lane)))
                    continue;
                std::set<std::pair<int, int>> reached;
                collect({row, lane}, 5, reached);
                for (int to = row + 1; to < row + 12; ++to)
                    for (int toLane = 0; toLane < COURSE_LANES; ++toLane) {
                        const bool real = isRealSquare(squareAt(to, toLane));
                        ASSERT_EQ(real && reachesSquare(0, {row, lane}, {to, toLane}, 5),
                                  reached.contains({to, toLane}))
                            << text << ' ' << row << ',' << lane << " to " << to << ',' << toLane;
                    }
            }
    }
}
