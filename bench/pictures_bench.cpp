#include "beside_floor.h"
#include "board/designer.h"
#include "board/pictures.h"

static void paintAll()
{
    for (int section = 0; section < SECTION_COUNT; ++section)
        paintSection(section);
    for (int index = 0; index < FIXED_COURSE_COUNT; ++index)
        paintCourse(index, fixedCourses[index]);
}

static void copyTo(Picture& picture)
{
    picture.bytes = boardPicture.bytes;
    benchmark::DoNotOptimize(picture.bytes.data());
    benchmark::ClobberMemory();
}

// The pictures of nine sections and four courses. Their floor: copying the board for each.
static void paintPictures(benchmark::State& state)
{
    if (!loadPicture(SOURCE_DIR "/data/board.dat", boardPicture, false)) {
        state.SkipWithError("no board");
        return;
    }
    Table<Picture, SECTION_COUNT + FIXED_COURSE_COUNT> copies;
    const auto floor = [&copies] {
        for (Picture& copy : copies)
            copyTo(copy);
    };
    measureBesideFloor(state, paintAll, floor);
}

BENCHMARK(paintPictures)->UseManualTime()->Unit(benchmark::kMillisecond);
