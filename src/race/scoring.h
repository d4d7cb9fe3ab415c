#pragma once

#include "app/table.h"
#include "race/race_state.h"

// Places at sprints and finish, and the points worked out from them whenever they are shown.

// clang-format off
//  sprint places 1 to 3, for each of three sprints, then finish places 1 to 16
constexpr Table<int, RESULT_SLOT_COUNT> placePoints = {
    10, 5, 3,   10, 5, 3,   10, 5, 3,
    50, 40, 35, 32, 30, 28, 26, 24, 22, 20, 18, 16, 14, 12, 10, 8};
// clang-format on

// A rider has moved from one row to another: gives him the first free place of each line crossed.
// A rider on a line's row has not crossed it yet.
void recordCrossing(int fromRow, int toRow, int rider);

struct StagePoints {
    Table<int, RIDER_COUNT> sprint{};                             // sprint points
    Table<int, RIDER_COUNT> place = filled<int, RIDER_COUNT>(-1); // finish place from 0, or -1
    Table<int, RIDER_COUNT> total = filled<int, RIDER_COUNT>(-1); // -1 without a finish place
    Table<int, TEAM_COUNT> team{};
};

// The result of one stage. Sprint points count only for a rider who has finished; while the stage
// is running they are shown for everyone.
StagePoints stagePoints(const Table<int, RESULT_SLOT_COUNT>& slots, bool running);

// Whether all four riders of a team have a finish place.
bool wholeTeamIn(const StagePoints& points, int team);

struct GeneralPoints {
    Table<int, RIDER_COUNT> rider{};
    Table<int, TEAM_COUNT> team{};
};

// The sums over all finished stages of the race.
GeneralPoints generalPoints();

// The teams by their sums, highest first; on equal sums the lower index stands higher.
Table<int, TEAM_COUNT> teamOrder(const Table<int, TEAM_COUNT>& sums);
