#include "ai/square_judgement.h"

#include "board/course.h"
#include "race/race_state.h"

#include <algorithm>

namespace
{

constexpr int BIG_THROW = 7; // from here on the riders who would follow are worth a thought
constexpr double SHARE_UNKNOWN = 0.25;
constexpr int BEYOND_FINISH = LINE_COUNT;

using FollowerPlan = Table<int, RIDER_COUNT>;
constexpr FollowerPlan NOBODY_FOLLOWS = filled<int, RIDER_COUNT>(-1);

// What a square is worth beside its reach.
struct Worth {
    int nextSprint = 0; // 0 to 2 a sprint lies next, 3 the finish, 4 nothing
    int sprintCmp = 0;  // 1 a line further than the best square, -1 a line short of it
    int own = 0;
    int oppAhead = 0;
    int oppBehind = 0;
    int near = 99;
    double share = SHARE_UNKNOWN;
    int followCmp = 0; // 1 the followers gain more than with the best square, -1 less
    FollowerPlan gain = NOBODY_FOLLOWS;
};

// The furthest row from a square with a throw of 12, and of 11; -1 outside the grid.
struct Reach {
    int with12 = -1;
    int with11 = -1;
};

Reach reachFrom(int row, int lane)
{
    if (!onGrid(row, lane))
        return {};
    return {.with12 = course.reach12[row][lane], .with11 = course.reach11[row][lane]};
}

Reach reachOf(const Candidate& candidate)
{
    return reachFrom(candidate.at.row, candidate.at.lane);
}

Reach reachOf(const RouteBest& best)
{
    return reachFrom(best.row, best.lane);
}

bool isBigThrow()
{
    return race.movesTotal >= BIG_THROW;
}

int unmovedOccupant(Square at)
{
    const int rider = occupantAt(at.row, at.lane);
    return rider != -1 && race.riders[rider].hasMoved == 0 ? rider : -1;
}

// Being past a line counts as long as its last place is open. A sprint that the course doesn't have
// never fills, so that it counts as open too.
int compareSprints(int nextSprint, const RouteBest& best)
{
    if (nextSprint == 0)
        return 0;
    const int lastPlace =
        nextSprint == BEYOND_FINISH ? RESULT_SLOT_COUNT - 1 : nextSprint * SPRINT_PLACES - 1;
    if (race.resultSlots[lastPlace] != -1)
        return 0;
    return (nextSprint > best.sprint) - (nextSprint < best.sprint);
}

// Counts the riders who stand next to the square in its lane and have moved already: they will
// still be there after the move.
void countChain(const Candidate& candidate, int direction, int& opponents, Worth& worth)
{
    const int lane = candidate.at.lane;
    const int terrain = terrainAt(candidate.at.row, lane);
    int steps = 0;
    for (int row = candidate.at.row + direction;; row += direction) {
        ++steps;
        row = skipPassThrough(row, lane, direction);
        if (!onGrid(row, lane) || course.terrain[row][lane] != terrain)
            return;
        const int rider = occupantAt(row, lane);
        if (rider == -1 || race.riders[rider].hasMoved == 0)
            return;
        if (riderTeam(rider) == riderTeam(candidate.question.rider)) {
            ++worth.own;
            worth.near = std::min(worth.near, steps);
        } else {
            ++opponents;
        }
    }
}

// Walks back from the mover's start and from the candidate in step: who stands behind the one may
// come to stand behind the other. A rider whose place is taken is passed over.
void simulateFollowers(const Candidate& candidate, Worth& worth)
{
    const Square start = {static_cast<int>(race.moveStartRow),
                          static_cast<int>(race.moveStartLane)};
    const int terrain = terrainAt(start.row, start.lane);
    const int movesMade = race.movesTotal + squareAt(start.row, start.lane) - candidate.budget;
    int own = 0;
    int all = 0;
    Square from = start;
    Square to = candidate.at;
    while (from.row == start.row || (from.row > 0 && unmovedOccupant(from) != -1)) {
        from.row = skipPassThrough(from.row - 1, from.lane, -1);
        to.row = skipPassThrough(to.row - 1, to.lane, -1);
        if (from.row < 0 || course.terrain[from.row][from.lane] != terrain)
            break;
        const int rider = unmovedOccupant(from);
        if (rider == -1 || occupantAt(to.row, to.lane) != -1)
            continue;
        if (!reachesSquare(rider, from, to, movesMade))
            break;
        ++all;
        own += riderTeam(rider) == riderTeam(race.currentRider);
        worth.gain[rider] = reachFrom(to.row, to.lane).with12;
    }
    if (all > 0)
        worth.share = static_cast<double>(own) / all;
}

int gainOf(int rider, const Worth& worth)
{
    const int gain = worth.gain[rider];
    const int plan = race.followerPlan[rider];
    const int averageWay = race.movesTotal - 6;
    if (gain != -1 && plan != -1)
        return gain - plan;
    return gain != -1 ? averageWay : plan != -1 ? -averageWay : 0;
}

int compareFollowers(const Candidate& candidate, const Worth& worth, const RouteBest& best)
{
    int ownGain = 0;
    int oppGain = 0;
    for (int rider = 0; rider < RIDER_COUNT; ++rider) {
        const bool own = riderTeam(rider) == riderTeam(race.currentRider);
        (own ? ownGain : oppGain) += gainOf(rider, worth);
    }
    if (ownGain == 0 && oppGain == 0)
        return 0;
    const int value = 3 * (reachOf(candidate).with12 - reachOf(best).with12 + ownGain);
    return (value > oppGain) - (value < oppGain);
}

// No rule below could hold: spares most squares the count of riders around them.
bool isHopeless(const Candidate& candidate, int sprintCmp, const RouteBest& best)
{
    if (best.row == -1 || sprintCmp == 1)
        return false;
    const Reach own = reachOf(candidate);
    const Reach other = reachOf(best);
    return sprintCmp == -1 ||
           (own.with11 <= other.with12 && own.with12 < other.with12 && own.with12 < other.with11);
}

bool isBetterCompany(const Worth& worth, const RouteBest& best)
{
    if (worth.own != best.own)
        return worth.own > best.own;
    if (worth.near != best.near)
        return worth.near < best.near;
    return worth.oppBehind < best.oppBehind || worth.oppAhead > best.oppAhead;
}

// Equal reach: a big throw looks at the followers first, a small one at the company alone.
bool winsEqualReach(const Worth& worth, const RouteBest& best)
{
    if (!isBigThrow())
        return isBetterCompany(worth, best);
    if (worth.share != best.share)
        return worth.share > best.share;
    return isBetterCompany(worth, best) || (worth.own >= best.own && worth.followCmp == 1);
}

bool winsByPlace(const Candidate& candidate, const Worth& worth, const RouteBest& best)
{
    if (worth.own < best.own || worth.oppBehind > best.oppBehind)
        return false;
    if (isBigThrow() && (worth.share < best.share || worth.followCmp == -1))
        return false;
    return candidate.at.row > best.row ||
           (candidate.at.row == best.row && candidate.at.lane > best.lane);
}

bool isBetter(const Candidate& candidate, const Worth& worth, const RouteBest& best)
{
    if (best.row == -1 || worth.sprintCmp == 1)
        return true;
    const Reach own = reachOf(candidate);
    const Reach other = reachOf(best);
    if (own.with11 > other.with12)
        return true;
    if (own.with12 > other.with12 && worth.own >= best.own && worth.followCmp != -1)
        return true;
    const bool equal = own.with12 == other.with12;
    if (equal && winsEqualReach(worth, best))
        return true;
    if (own.with12 >= other.with11 && worth.own > best.own &&
        (worth.near <= best.near || worth.own > best.own + 1))
        return true;
    return equal && winsByPlace(candidate, worth, best);
}

void accept(const Candidate& candidate, const Worth& worth, const RoutePath& path, RouteBest& best)
{
    best.sprint = worth.nextSprint;
    best.row = candidate.at.row;
    best.lane = candidate.at.lane;
    best.own = worth.own;
    best.oppAhead = worth.oppAhead;
    best.oppBehind = worth.oppBehind;
    best.near = worth.near;
    best.share = worth.share;
    best.path = path;
    if (candidate.question.simulateFollowers)
        race.followerPlan = worth.gain;
}

void judgeClosely(const Candidate& candidate, int nextSprint, int sprintCmp, const RoutePath& path,
                  RouteBest& best)
{
    Worth worth{.nextSprint = nextSprint, .sprintCmp = sprintCmp};
    countChain(candidate, -1, worth.oppBehind, worth);
    countChain(candidate, 1, worth.oppAhead, worth);
    if (isBigThrow() && candidate.question.simulateFollowers && !race.breakaway) {
        simulateFollowers(candidate, worth);
        worth.followCmp = compareFollowers(candidate, worth, best);
    }
    if (isBetter(candidate, worth, best))
        accept(candidate, worth, path, best);
}

} // namespace

void judgeSquare(const Candidate& candidate, const RoutePath& path, RouteBest& best)
{
    const int nextSprint = nextLine(candidate.at.row);
    const int sprintCmp = compareSprints(nextSprint, best);
    if (!isHopeless(candidate, sprintCmp, best))
        judgeClosely(candidate, nextSprint, sprintCmp, path, best);
}
