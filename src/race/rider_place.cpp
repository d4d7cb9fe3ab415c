#include "race/rider_place.h"

#include "board/course.h"
#include "board/geometry.h"
#include "race/race_state.h"

int terrainOf(int rider)
{
    return terrainAt(race.riders[rider].row, race.riders[rider].lane);
}

void leaveSquare(int rider)
{
    int& occupant = course.courseOccupant[race.riders[rider].row][race.riders[rider].lane];
    if (occupant == rider)
        occupant = -1;
}

void updateRiderLap(int rider)
{
    int laps = 0;
    for (int i = 0; i < course.lapEndCount; ++i)
        laps += course.lapEndRows[i] < race.riders[rider].row;
    race.riderLapCount[rider] = laps;
}

void placeOnBoard(int rider)
{
    Rider& record = race.riders[rider];
    const BoardPoint at = boardPointOfSquare(record.row, record.lane, record.heading);
    record.x = at.x;
    record.y = at.y;
}
