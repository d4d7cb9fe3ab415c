#include "play/animation.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/settings.h"
#include "board/geometry.h"
#include "board/rider_motion.h"
#include "play/movement.h"
#include "race/race_state.h"
#include "race/rider_place.h"

#include <algorithm>
#include <cmath>

static float wayLeft()
{
    return motion.way.empty() ? 0.0f : motion.way.back().distance - motion.wayDone;
}

static Square squareOnPath(int index)
{
    return {static_cast<int>(race.pathSquares[index].row),
            static_cast<int>(race.pathSquares[index].lane)};
}

// How far this tick carries the rider. Stepwise a tick is a square. On the last step the ticks are
// evened out, so that the rider doesn't arrive with a hop.
static float distanceOfTick()
{
    if (motion.way.empty() || !settings.smoothMovement)
        return wayLeft();
    if (race.stepsTaken < race.moveBudget)
        return tickDistance();
    return wayLeft() / std::max(1.0f, std::round(wayLeft() / tickDistance()));
}

static void standOnSquare(Square square)
{
    Rider& rider = race.riders[race.currentRider];
    if (!rider.offBoard) {
        rider.row = square.row;
        rider.lane = square.lane;
    }
    const BoardPoint at = boardPointOfSquare(square.row, square.lane, rider.heading);
    rider.x = at.x;
    rider.y = at.y;
    updateRiderLap(race.currentRider);
}

// Standing on the square that he was heading for, he sets out for the next one of his route.
static void headForNextSquare()
{
    ++race.stepsTaken;
    motion.way = wayBetween(squareOnPath(race.stepsTaken - 1), squareOnPath(race.stepsTaken));
    motion.wayDone = 0.0f;
}

static void placeOnWay()
{
    const auto next = std::ranges::lower_bound(motion.way, motion.wayDone, {}, &WayPoint::distance);
    const WayPoint& to = next == motion.way.end() ? motion.way.back() : *next;
    const WayPoint& from = next == motion.way.begin() ? to : *std::prev(next);
    const float length = to.distance - from.distance;
    const float part = length > 0.0f ? (motion.wayDone - from.distance) / length : 0.0f;
    Rider& rider = race.riders[race.currentRider];
    rider.x = from.at.x + part * (to.at.x - from.at.x);
    rider.y = from.at.y + part * (to.at.y - from.at.y);
    rider.heading = to.heading;
}

void onMoveTimer(int value)
{
    moveTimerFired();
    if (value != 0 || gameState != STATE_ANIMATE)
        return;
    // What is left of a tick at a square carries the rider on beyond it, so that his pace is even.
    float distance = distanceOfTick();
    while (distance >= wayLeft()) {
        distance -= wayLeft();
        standOnSquare(squareOnPath(race.stepsTaken));
        if (race.stepsTaken == race.moveBudget) {
            redrawNow();
            restMotion();
            endComputerMove();
            return;
        }
        headForNextSquare();
        if (!settings.smoothMovement)
            break;
    }
    motion.wayDone += distance;
    placeOnWay();
    redrawNow();
    armMoveTimer((settings.smoothMovement ? settings.stepTime : settings.stepDelay) + 1);
}
