#include "race/scoring.h"

#include "app/host.h"
#include "board/course.h"

#include <algorithm>

static constexpr int FINISH_LINE = SPRINT_COUNT;

static void takePlace(int line, int rider)
{
    const int first = line * SPRINT_PLACES;
    const int places = line == FINISH_LINE ? RIDER_COUNT : SPRINT_PLACES;
    for (int place = 0; place < places; ++place) {
        int& slot = race.resultSlots[first + place];
        if (slot != -1)
            continue;
        slot = rider;
        if (place == 0) {
            race.sprintWinner = rider;
            redrawNow();
        }
        return;
    }
}

void recordCrossing(int fromRow, int toRow, int rider)
{
    for (int line = 0; line < LINE_COUNT; ++line)
        if (fromRow <= lineRow(line) && lineRow(line) < toRow)
            takePlace(line, rider);
}

StagePoints stagePoints(const Table<int, RESULT_SLOT_COUNT>& slots, bool running)
{
    StagePoints points;
    for (int place = 0; place < RIDER_COUNT; ++place)
        if (slots[FINISH_SLOT + place] != -1)
            points.place[slots[FINISH_SLOT + place]] = place;
    for (int slot = 0; slot < FINISH_SLOT; ++slot) {
        const int rider = slots[slot];
        if (rider != -1 && (running || points.place[rider] != -1))
            points.sprint[rider] += placePoints[slot];
    }
    for (int rider = 0; rider < RIDER_COUNT; ++rider) {
        if (points.place[rider] == -1)
            continue;
        points.total[rider] = placePoints[FINISH_SLOT + points.place[rider]] + points.sprint[rider];
        points.team[riderTeam(rider)] += points.total[rider];
    }
    return points;
}

bool wholeTeamIn(const StagePoints& points, int team)
{
    const int* first = points.place.begin() + team * RIDERS_PER_TEAM;
    return std::find(first, first + RIDERS_PER_TEAM, -1) == first + RIDERS_PER_TEAM;
}

GeneralPoints generalPoints()
{
    GeneralPoints sums;
    for (const StageRecord& stage : raceSetup.raceStages) {
        const StagePoints points = stagePoints(stage.slots, false);
        for (int rider = 0; rider < RIDER_COUNT; ++rider)
            if (points.place[rider] != -1)
                sums.rider[rider] += points.total[rider];
        for (int team = 0; team < TEAM_COUNT; ++team)
            sums.team[team] += points.team[team];
    }
    return sums;
}

Table<int, TEAM_COUNT> teamOrder(const Table<int, TEAM_COUNT>& sums)
{
    Table<int, TEAM_COUNT> order{};
    Table<bool, TEAM_COUNT> placed{};
    for (int& next : order) {
        next = -1;
        for (int team = 0; team < TEAM_COUNT; ++team)
            if (!placed[team] && (next == -1 || sums[team] > sums[next]))
                next = team;
        placed[next] = true;
    }
    return order;
}
