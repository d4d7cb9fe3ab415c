#include "ai/computer_choices.h"

#include "ai/route_search.h"
#include "board/course.h"
#include "race/card_rules.h"
#include "race/rider_place.h"
#include "race/start_grid.h"

static constexpr int AVERAGE_THROW = 7;

Square chooseStartSquare(int rider)
{
    constexpr Table<int, START_ROWS> rowsInOrder = {2, 3, 1, 0};
    for (const int row : rowsInOrder)
        for (int lane = endStartLane() - 1; lane >= firstStartLane(); --lane)
            if (mayPlaceOn(row, lane, rider))
                return {row, lane};
    return {};
}

bool computerFollows(int rider, Square target)
{
    if (target.row > course.finishRow)
        return true;
    const Square own = {race.riders[rider].row, race.riders[rider].lane};
    RouteBest best;
    findRoute(own, squareAt(own.row, own.lane) + AVERAGE_THROW, {.rider = rider}, best);
    return course.reach12[target.row][target.lane] >= course.reach12[best.row][best.lane];
}

void payForLostTurns(int rider)
{
    const int most = terrainOf(rider) == TERRAIN_COBBLES ? 1 : SET_CARD_COUNT;
    int paid = 0;
    for (int slot = 0; slot < SET_CARD_COUNT; ++slot) {
        if (race.riders[rider].skipTurns <= 0 || paid == most)
            return;
        if (!mayHandIn(rider, slot))
            continue;
        race.cardUsed[riderTeam(rider)][slot] = CARD_SPENT;
        --race.riders[rider].skipTurns;
        ++paid;
    }
}
