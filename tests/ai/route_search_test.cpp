#include "ai/route_search.h"

#include "board/designer.h"
#include "race/step_rule.h"
#include "support/races.h"

#include <gtest/gtest.h>

#include <set>

// The best route of rider 0 with a throw of so many.
static RouteBest search(Square from, int thrown, bool simulateFollowers = false)
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

// The furthest row of a rider with so many moves, alone on the road.
static int rowWalkedTo(Square from, int moves)
{
    RouteBest best;
    findRoute(from, moves, {.rider = 0, .reachOnly = true}, best);
    return best.row;
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

// The reach tables come from one pass over the course; the walk must agree square by square.
TEST(RouteSearch, ReachTablesAgreeWithTheWalk)
{
    for (const char* text : {"64S5F12", "67S8F12", "01S23S7S8F12", "012S37812F34"}) {
        setUpRace(text, {});
        for (int row = 0; row < course.courseRowCount; ++row)
            for (int lane = 0; lane < COURSE_LANES; ++lane) {
                const int modifier = squareAt(row, lane);
                const bool real = isRealSquare(modifier);
                ASSERT_EQ(course.reach12[row][lane],
                          real ? rowWalkedTo({row, lane}, 12 + modifier) : -1)
                    << text << row << ',' << lane;
                ASSERT_EQ(course.reach11[row][lane],
                          real ? rowWalkedTo({row, lane}, 11 + modifier) : -1)
                    << text << row << ',' << lane;
            }
    }
}

TEST(RouteSearch, FindsTheKnownRoutes)
{
    const struct {
        Square from;
        int thrown;
        std::vector<Placed> others;
        Square best;
        const char* path;
    } cases[] = {
        {{7, 2}, 8, {}, {18, 3}, "MRMMMMMM"},
        {{7, 2}, 8, {{1, 14, 3, MOVED}}, {18, 3}, "MRMLMMMR"},
        {{27, 4}, 6, {}, {31, 4}, "MMMM"},
        {{100, 5}, 5, {{1, 105, 5, MOVED}, {2, 106, 5, MOVED}}, {106, 7}, "MMMRR"},
    };
    for (const auto& known : cases) {
        setUpRace(ONE_LAP, known.others);
        const RouteBest best = search(known.from, known.thrown);
        EXPECT_EQ((Square{best.row, best.lane}), known.best);
        EXPECT_EQ(best.path.text(), known.path);
    }
}

TEST(RouteSearch, WeighsWhoWouldFollow)
{
    setUpRace(ONE_LAP, {{1, 103, 5}, {4, 102, 5}, {8, 101, 5}});
    const RouteBest best = search({104, 5}, 8, true);
    EXPECT_EQ((Square{best.row, best.lane}), (Square{112, 7}));
    EXPECT_EQ(best.path.text(), "MMMMMMRR");
    EXPECT_EQ(best.share, 0.5);
    EXPECT_EQ(race.followerPlan[1], 126);
    EXPECT_EQ(race.followerPlan[4], 125);
    EXPECT_EQ(race.followerPlan[8], -1);
    setUpRace(ONE_LAP, {});
    race.breakaway = 1;
    EXPECT_EQ(search({104, 5}, 8, true).share, 0.25);
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

// Past a sprint counts as long as its third place is open.
TEST(RouteSearch, AnOpenSprintBeatsAnyReach)
{
    setUpRace(ONE_LAP, {{1, 3, 1}, {2, 3, 2}, {3, 3, 3}});
    EXPECT_TRUE(search({2, 2}, 6).path.empty()); // boxed in
    EXPECT_EQ(search({27, 4}, 6).sprint, 1);
    race.resultSlots[2] = 9;
    const RouteBest taken = search({27, 4}, 6);
    EXPECT_GE(course.reach12[taken.row][taken.lane], course.reach12[31][4]);
}
