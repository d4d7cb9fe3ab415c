#include "race/soundness.h"

#include "board/course.h"
#include "race/race_state.h"

static std::string about(int rider, const char* fault)
{
    return "rider " + std::to_string(riderNumber(rider)) + ' ' + fault;
}

static bool onBoard(int rider)
{
    const Rider& record = race.riders[rider];
    return record.row != -1 && !record.offBoard && !record.finished;
}

// The rider on turn is off the grid while he moves, a follower while he thinks, and whoever drew a
// crash while its victims answer.
static bool mayBeLifted(int rider)
{
    return rider == race.currentRider || rider == race.followerRider || rider == race.eventRider;
}

static std::string riderFault(int rider)
{
    const Rider& record = race.riders[rider];
    if (record.isHuman != race.riders[riderTeam(rider) * RIDERS_PER_TEAM].isHuman)
        return about(rider, "is not played by whom his team is");
    if (record.skipTurns < 0 || record.skipTurns > 2)
        return about(rider, "misses an impossible number of turns");
    if (!onBoard(rider))
        return {};
    if (!isRealSquare(squareAt(record.row, record.lane)))
        return about(rider, "stands where no square is");
    if (course.courseOccupant[record.row][record.lane] != rider && !mayBeLifted(rider))
        return about(rider, "is not on the square where he stands");
    return {};
}

static std::string gridFault()
{
    for (int row = 0; row < course.courseRowCount; ++row) {
        for (int lane = 0; lane < COURSE_LANES; ++lane) {
            const int rider = course.courseOccupant[row][lane];
            if (rider == -1)
                continue;
            if (rider < 0 || rider >= RIDER_COUNT || !onBoard(rider))
                return "a square holds somebody who is not on the board";
            if (race.riders[rider].row != row || race.riders[rider].lane != lane)
                return about(rider, "stands on two squares");
            if (occupantAt(row, lane) != rider)
                return about(rider, "shares a printed square");
        }
    }
    return {};
}

// Behind a sprint a rider may be set back, cross it again and take a second place there. Who is in
// leaves the board.
static std::string placesFault(int line, int places)
{
    Table<bool, RIDER_COUNT> seen{};
    bool gap = false;
    for (int place = 0; place < places; ++place) {
        const int rider = race.resultSlots[line * SPRINT_PLACES + place];
        if (rider == -1) {
            gap = true;
            continue;
        }
        if (rider < 0 || rider >= RIDER_COUNT)
            return "a place holds nobody";
        if (line == SPRINT_COUNT && seen[rider])
            return about(rider, "came in twice");
        if (gap && !race.anyDoping)
            return about(rider, "took a place behind an empty one");
        seen[rider] = true;
    }
    return {};
}

static std::string cardsFault()
{
    for (int team = 0; team < TEAM_COUNT; ++team)
        for (int slot = 0; slot < CARD_SLOT_COUNT; ++slot) {
            const int used = race.cardUsed[team][slot];
            const int least = slot < SET_CARD_COUNT ? CARD_AVAILABLE : CARD_NONE;
            if (used < least || used > CARD_SPENT)
                return "a card is neither available nor spent";
        }
    return {};
}

std::string raceFault()
{
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        if (std::string fault = riderFault(rider); !fault.empty())
            return fault;
    if (std::string fault = gridFault(); !fault.empty())
        return fault;
    for (int line = 0; line < LINE_COUNT; ++line)
        if (std::string fault =
                placesFault(line, line < SPRINT_COUNT ? SPRINT_PLACES : RIDER_COUNT);
            !fault.empty())
            return fault;
    return cardsFault();
}
