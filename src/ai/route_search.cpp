#include "ai/route_search.h"

#include "ai/square_judgement.h"
#include "board/course.h"

#include <algorithm>

void findRoute(Square from, int budget, const RouteQuestion& question, RouteBest& best)
{
    walkRoutes(from, budget, question, best, judgeSquare);
}

namespace
{

constexpr int REACH_BUDGETS = PATH_LETTERS_MAX;     // 0 to 17: a throw of 12 on a +5
constexpr int SEARCHED_ROWS = COURSE_MAX_ROWS - 20; // no course comes near the rows behind

// The furthest row from each lane of one row, by the moves left. Other riders don't count, so that
// it follows from the row ahead alone.
using ReachRow = Table2<int, COURSE_LANES, REACH_BUDGETS>;

// The best of a lane's budgets ahead also counts for this square, a move later.
void reachThrough(Table<int, REACH_BUDGETS>& reach, const Table<int, REACH_BUDGETS>& ahead)
{
    for (int budget = 1; budget < REACH_BUDGETS; ++budget)
        reach[budget] = std::max(reach[budget], ahead[budget - 1]);
}

ReachRow reachOfRow(int row, const ReachRow& ahead)
{
    ReachRow reach;
    for (int lane = 0; lane < COURSE_LANES; ++lane) {
        if (course.moveModifier[row][lane] == PASS_THROUGH) {
            reach[lane] = ahead[lane];
            continue;
        }
        reach[lane] = filled<int, REACH_BUDGETS>(row);
        for (int step = 0; step < STEP_COUNT; ++step)
            if (course.stepRows[row][lane][step] != STEP_REFUSED)
                reachThrough(reach[lane], ahead[lane + STEP_LANES[step]]);
    }
    return reach;
}

} // namespace

void fillReachTables()
{
    ReachRow reach = filled2<int, COURSE_LANES, REACH_BUDGETS>(-1);
    for (int row = std::min(course.courseRowCount, COURSE_MAX_ROWS - 1); row >= 0; --row) {
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
