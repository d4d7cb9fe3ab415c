#include "app/settings.h"
#include "beside_floor.h"
#include "observed_turns.h"
#include "support/races.h"

constexpr unsigned RACES = 20; // seeds 1 to 20, one after the other

// From startRace to the scorecard. Its floor: for each of its turns one walk over the squares in
// reach, judging none, on a course without riders. smooth says how riders are carried.
static void wholeRace(benchmark::State& state, bool smooth)
{
    std::vector<std::vector<ObservedTurn>> races;
    for (unsigned seed = 1; seed <= RACES; ++seed)
        races.push_back(observeTurns(seed));
    unsigned next = 0;
    const auto floor = [&races, &next] {
        for (const ObservedTurn& turn : races[next % RACES])
            walkSquaresInReach(turn);
    };
    const auto work = [&next, smooth] {
        startSeededRace(OBSERVED_COURSE, ++next);
        settings.smoothMovement = smooth;
        runComputerRace();
        next %= RACES;
    };
    measureBesideFloor(state, work, floor);
}

BENCHMARK_CAPTURE(wholeRace, smooth, true)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeRace, stepwise, false)->UseManualTime()->Unit(benchmark::kMillisecond);

// One playComputerTurn in the middle of its race. Its floor: one walk over the squares in reach.
static void computerTurn(benchmark::State& state)
{
    std::vector<double> work;
    std::vector<double> floor;
    unsigned seed = 0;
    for (auto _ : state) {
        double sum = 0.0;
        const std::vector<ObservedTurn> turns = observeTurns(seed++ % RACES + 1);
        for (const ObservedTurn& turn : turns) {
            work.push_back(turn.seconds);
            floor.push_back(turn.floorSeconds);
            sum += turn.seconds;
        }
        state.SetIterationTime(sum / static_cast<double>(turns.size()));
    }
    report(state, work, floor);
    state.counters["ninthTenth"] = quantile(work, 0.9);
}

// The time that is told is short, but each iteration is a whole race.
BENCHMARK(computerTurn)->UseManualTime()->Iterations(200)->Unit(benchmark::kMicrosecond);
