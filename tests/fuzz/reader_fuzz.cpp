#include "app/game_state.h"
#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "board/pictures.h"
#include "store/courses_file.h"
#include "store/race_file.h"
#include "store/settings_file.h"
#include "store/standings_export.h"
#include "support/own_folder.h"

#include <algorithm>
#include <cstdio>
#include <string_view>
#include <unistd.h>

// A reader of files is given whatever bytes the fuzzer thinks of, one reader a program: READER is
// its name. The seeds of each lie in corpus/; a file that once did harm joins them.

static void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

// What was read is in range and comes back the same once it is written.
static void settingsReader()
{
    readSettings();
    require(settings.language >= 0 && settings.language < LANGUAGE_COUNT);
    for (const float number : {static_cast<float>(settings.stepTime), settings.stepDistance,
                               static_cast<float>(settings.stepDelay)})
        require(number >= 0.0f && number <= SETTINGS_NUMBER_MAX);
    const Settings read = settings;
    const auto names = raceSetup.teamName;
    require(writeSettings());
    readSettings();
    require(settings == read && raceSetup.teamName == names);
}

// Every record is a course that can be built or none at all, and what lies in the file doesn't keep
// a design from being added.
static void coursesReader()
{
    const int count = countSavedCourses();
    for (int index = 0; index < count; ++index) {
        courseText = readSavedCourse(index);
        assembleCourse();
        require(courseText.empty() || course.finishRow > 0);
    }
    courseText = "67S8F";
    require(saveDesign());
    require(countSavedCourses() == count + 1 && readSavedCourse(count) == courseText);
}

// The standings of whatever was read can be written, and so can the race, which comes back the
// same.
static void raceReader()
{
    raceSetup.standingsFileName = "standings.csv";
    gameState = STATE_FINAL_SCORECARD;
    readRace("race");
    for (const StageRecord& stage : raceSetup.raceStages)
        for (const int rider : stage.slots)
            require(rider >= -1 && rider < RIDER_COUNT);
    exportStandings({});
    require(view.exportStatus == EXPORT_WRITTEN);
    const RaceSetup read = raceSetup;
    require(writeRace("race"));
    readRace("race");
    require(raceSetup.teamName == read.teamName && raceSetup.eventCardsOn == read.eventCardsOn);
    require(std::ranges::equal(raceSetup.raceStages, read.raceStages, {}, &StageRecord::slots,
                               &StageRecord::slots));
}

// A picture is loaded whole or not at all.
static void pictureReader()
{
    Picture picture{.width = RIDER_PICTURE_SIZE, .height = RIDER_PICTURE_SIZE};
    const bool loaded = loadPicture("picture", picture, true);
    const std::size_t pixels = static_cast<std::size_t>(RIDER_PICTURE_SIZE) * RIDER_PICTURE_SIZE;
    require(picture.bytes.size() == (loaded ? 4 * pixels : 0));
}

// By the name of the file that it reads.
struct Reader {
    const char* name;
    void (*tryIt)();
};

constexpr Reader READERS[] = {{"settings", settingsReader},
                              {"courses", coursesReader},
                              {"race", raceReader},
                              {"picture", pictureReader}};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    // In memory, where that can be: thousands of files a second aren't for a disk.
    static const OwnFolder folder(access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp");
    std::FILE* file = std::fopen(READER, "wb");
    std::fwrite(bytes, 1, size, file);
    std::fclose(file);
    for (const Reader& reader : READERS)
        if (std::string_view(reader.name) == READER)
            reader.tryIt();
    return 0;
}
