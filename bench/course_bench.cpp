#include "ai/route_search.h"
#include "beside_floor.h"
#include "board/course.h"

// A course and both of its reach tables. Its floor: filling its tables once.
static void assemble(benchmark::State& state, const char* text)
{
    static const CourseGrid EMPTY;
    static CourseGrid copy;
    courseText = text;
    const auto work = [] {
        assembleCourse();
        fillReachTables();
        benchmark::DoNotOptimize(course.reach11);
    };
    const auto floor = [] {
        copy = EMPTY;
        benchmark::DoNotOptimize(copy);
    };
    measureBesideFloor(state, work, floor);
}

BENCHMARK_CAPTURE(assemble, longest, "012345123451234512345F12")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(assemble, longestByTheOtherWay, "678123781237812378123F78")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(assemble, shortest, "67S8F12")->UseManualTime()->Unit(benchmark::kMillisecond);
