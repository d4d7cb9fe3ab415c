#include "ai/route_search.h"

#include "ai/square_judgement.h"
#include "board/course.h"
#include "race/step_rule.h"

#include <algorithm>

void findRoute(Square from, int budget, const RouteQuestion& question, RouteBest& best)
{
    walkRoutes(from, budget, question, best, judgeSquare);
}

namespace
{

constexpr int REACH_BUDGETS = PATH_LETTERS_MAX;      // 0 to 17: a throw of 12 on a +5
constexpr int SEARCHED_ROWS = COURSE_MAX_ROWS - 20;  // no course comes near the rows behind

// The furthest row from each lane of one row, by the moves left. Other riders don't count, so that
// it follows from the row ahead alone.
using ReachRow = Table2<int, COURSE_LANES, REACH_BUDGETS>;

int furthestRow(int row, int lane, int budget, const ReachRow& ahead)
{
    int furthest = row;
    if (budget == 0)
        return furthest;
    for (const char letter : STEP_LETTERS)
        if (stepTarget(row, lane, letter, true) != NO_STEP)
            furthest = std::max(furthest, ahead[stepEntry(row, lane, letter).lane][budget - 1]);
    return furthest;
}

ReachRow reachOfRow(int row, const ReachRow& ahead)
{
    ReachRow reach;
    for (int lane = 0; lane < COURSE_LANES; ++lane) {
        if (course.moveModifier[row][lane] == PASS_THROUGH) {
            reach[lane] = ahead[lane];
            continue;
        }
        for (int budget = 0; budget < REACH_BUDGETS; ++budget)
            reach[lane][budget] = furthestRow(row, lane, budget, ahead);
    }
    return reach;
}

} // namespace

void fillReachTables()
{
    ReachRow reach = filled2<int, COURSE_LANES, REACH_BUDGETS>(-1);
    for (int row = COURSE_MAX_ROWS - 1; row >= 0; --row) {
        reach = reachOfRow(row, reach);
        for (int lane = 0; lane < COURSE_LANES; ++lane) {
            const int modifier = course.moveModifier[row][lane];
            if (!isRealSquare(modifier))
                continue;
            const bool searched = row < SEARCHED_ROWS;
            course.reach12[row][lane] = searched ? reach[lane][12 + modifier] : row + 18;
            course.reach11[row][lane] = searched ? reach[lane][11 + modifier] : row + 17;
        }
    }
}
