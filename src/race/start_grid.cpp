#include "race/start_grid.h"

#include "board/course.h"
#include "race/race_state.h"

bool mayPlaceOn(int row, int lane, int rider)
{
    if (row < 0 || row >= START_ROWS || lane < firstStartLane() || lane >= endStartLane())
        return false;
    if (course.courseOccupant[row][lane] != -1)
        return false;
    for (int r = 0; r < START_ROWS; ++r) {
        const int other = course.courseOccupant[r][lane];
        if (other != -1 && riderTeam(other) == riderTeam(rider))
            return false;
    }
    return true;
}
