#include "observed_turns.h"

#include "ai/route_walk.h"
#include "beside_floor.h"
#include "board/course.h"
#include "support/races.h"

static std::vector<ObservedTurn>* observed = nullptr;

// The linker sends every call of playComputerTurn here.
extern "C" void __real__Z16playComputerTurnv();
extern "C" void __wrap__Z16playComputerTurnv();

extern "C" void __wrap__Z16playComputerTurnv()
{
    if (!observed) {
        __real__Z16playComputerTurnv();
        return;
    }
    ObservedTurn turn;
    turn.seconds = secondsOf(__real__Z16playComputerTurnv, passedSeconds);
    const Rider& rider = race.riders[race.currentRider];
    turn.rider = race.currentRider;
    turn.from = {rider.row, rider.lane};
    turn.budget = race.movesTotal + squareAt(rider.row, rider.lane);
    turn.floorSeconds = secondsOf([&turn] { walkSquaresInReach(turn); }, passedSeconds);
    observed->push_back(turn);
}

std::vector<ObservedTurn> observeTurns(unsigned seed)
{
    std::vector<ObservedTurn> turns;
    startSeededRace(OBSERVED_COURSE, seed);
    observed = &turns;
    runComputerRace();
    observed = nullptr;
    return turns;
}

void walkSquaresInReach(const ObservedTurn& turn)
{
    RouteBest best;
    walkRoutes(turn.from, turn.budget, {.rider = turn.rider}, best, nullptr);
    benchmark::DoNotOptimize(best);
}
