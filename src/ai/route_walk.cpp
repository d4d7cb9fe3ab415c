#include "ai/route_walk.h"

#include "board/course.h"
#include "race/step_rule.h"

#include <algorithm>
#include <limits>

namespace
{

// The largest budget with which a search has been on each square. Entries carry the number of their
// search, so that a new one starts without clearing the table.
struct Memo {
    static constexpr int BUDGETS = 64; // more than any budget of a walk
    Table2<int, COURSE_MAX_ROWS, COURSE_LANES> seen{};
    int search = 0;

    void begin()
    {
        if (search > std::numeric_limits<int>::max() - 2 * BUDGETS) {
            seen = {};
            search = 0;
        }
        search += BUDGETS;
    }

    // Whether the square has been seen with at least this budget, or is closed.
    bool knows(Square at, int budget) const { return seen[at.row][at.lane] > search + budget; }

    bool isNew(Square at) const { return seen[at.row][at.lane] <= search; }

    void note(Square at, int budget) { seen[at.row][at.lane] = search + budget + 1; }

    // No step of this search ends there.
    void close(Square at) { note(at, BUDGETS - 1); }
};

struct Walk {
    const RouteQuestion& question;
    RouteBest& best;
    Memo& memo;
    Judge judge;
    RoutePath path;
};

bool seeksTarget(const RouteQuestion& question)
{
    return question.target.row != -1;
}

void visit(Walk& walk, Square at, int budget);

// Whether a step of this walk may end on a square that it doesn't know with as many moves. Riders
// stand still while it lasts, so that each square is asked once.
bool mayEndOn(Walk& walk, Square at)
{
    if (walk.question.reachOnly || !walk.memo.isNew(at) || isFree(at.row, at.lane))
        return true;
    walk.memo.close(at);
    return false;
}

// True as soon as a target is found: the search is over.
bool trySteps(Walk& walk, Square at, int budget)
{
    const StepRows& ends = course.stepRows[at.row][at.lane];
    for (int step = 0; step < STEP_COUNT; ++step) {
        const Square end = {ends[step], at.lane + STEP_LANES[step]};
        if (end.row == STEP_REFUSED || end.row >= COURSE_MAX_ROWS ||
            walk.memo.knows(end, budget - 1) || !mayEndOn(walk, end))
            continue;
        walk.path.letters[walk.path.length++] = STEP_LETTERS[step];
        visit(walk, end, budget - 1);
        if (seeksTarget(walk.question) && !walk.best.path.empty())
            return true;
        --walk.path.length;
    }
    return false;
}

void takeFurthest(RouteBest& best, Square at)
{
    if (at.row > best.row || (at.row == best.row && at.lane > best.lane)) {
        best.row = at.row;
        best.lane = at.lane;
    }
}

// Squares at the end of the walk are judged first, the start square last. The comparison is no
// strict order, so that this order of visiting decides the result.
void visit(Walk& walk, Square at, int budget)
{
    const RouteQuestion& question = walk.question;
    if (seeksTarget(question) && at == question.target) {
        walk.best.path = walk.path;
        return;
    }
    walk.memo.note(at, budget);
    if (budget > 0 && trySteps(walk, at, budget))
        return;
    if (question.reachOnly)
        takeFurthest(walk.best, at);
    else if (!seeksTarget(question) && walk.judge)
        walk.judge({.at = at, .budget = budget, .question = question}, walk.path, walk.best);
}

} // namespace

void walkRoutes(Square from, int budget, const RouteQuestion& question, RouteBest& best,
                Judge judge)
{
    // A walk to a target runs inside the judgement of squares and so has a table of its own.
    static Memo judging;
    static Memo seeking;
    Memo& memo = seeksTarget(question) ? seeking : judging;
    memo.begin();
    if (budget < 0 || !onGrid(from.row, from.lane))
        return;
    Walk walk{.question = question, .best = best, .memo = memo, .judge = judge, .path = {}};
    visit(walk, from, std::min(budget, PATH_LETTERS_MAX));
}

bool reachesSquare(int rider, Square from, Square target, int moves)
{
    if (!onGrid(target.row, target.lane))
        return false;
    RouteBest best;
    walkRoutes(from, moves, {.rider = rider, .target = target}, best, nullptr);
    return !best.path.empty();
}
