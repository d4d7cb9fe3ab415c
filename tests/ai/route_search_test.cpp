#include "ai/route_search.h"

#include "board/designer.h"
#include "race/step_rule.h"
#include "support/races.h"

#include <gtest/gtest.h>

#include <set>

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

// What decides a route is told by whole races. A search for a target finds a way exactly where
// trying all ways does, also past riders and walls.
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
