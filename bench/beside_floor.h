#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <vector>

#undef PATH_MAX // the system's; the race has one of its own

// Work is measured by turns with its floor, the least that could do, so that whatever else the
// machine is doing falls on both.

// The time that passes. For what is shared out among threads and processes, and for what is over
// before another process can come between.
inline double passedSeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// The time that this process has had a processor for.
inline double processorSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

template <typename Work> double secondsOf(Work work, double (*clock)())
{
    const double start = clock();
    work();
    return clock() - start;
}

// The value that so large a part of the others, 0 to 1, lies below. 0 without any.
inline double quantile(std::vector<double> values, double part)
{
    if (values.empty())
        return 0.0;
    const auto last = static_cast<double>(values.size() - 1);
    const auto nth = values.begin() + static_cast<std::ptrdiff_t>(part * last);
    std::ranges::nth_element(values, nth);
    return *nth;
}

// Counters in seconds; timesFloor compares the two medians.
inline void report(benchmark::State& state, const std::vector<double>& work,
                   const std::vector<double>& floor)
{
    state.counters["least"] = quantile(work, 0.0);
    state.counters["median"] = quantile(work, 0.5);
    state.counters["floor"] = quantile(floor, 0.5);
    state.counters["timesFloor"] = quantile(work, 0.5) / quantile(floor, 0.5);
}

template <typename Work, typename Floor>
void measureBesideFloor(benchmark::State& state, Work work, Floor floor,
                        double (*clock)() = processorSeconds)
{
    std::vector<double> workTimes;
    std::vector<double> floorTimes;
    for (auto _ : state) {
        floorTimes.push_back(secondsOf(floor, clock));
        workTimes.push_back(secondsOf(work, clock));
        state.SetIterationTime(workTimes.back());
    }
    report(state, workTimes, floorTimes);
}
