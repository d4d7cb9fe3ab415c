#include "store/race_file.h"

#include "store/golden_files.h"
#include "support/own_folder.h"
#include "support/races.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <sys/stat.h>

namespace
{

namespace fs = std::filesystem;

constexpr std::size_t HEAD_SIZE = 57;
constexpr std::size_t STAGE_SIZE = 116;

// Each test in an empty folder, with no race in memory.
class RaceFile : public testing::Test
{
protected:
    void SetUp() override { forgetGame(); }

    OwnFolder folder;
    const std::string golden = goldenBytes("two_stages.race");
    const std::string oneStage = golden.substr(0, HEAD_SIZE + STAGE_SIZE);
};

// clang-format off
//                                                       sprints                              finish
constexpr Table<int, RESULT_SLOT_COUNT> FIRST_STAGE  = { 0, 5, 10, 15, -1, 3,  -1, -1, -1,    4, 0, 8, 12, 5, 1, 9, 13, 6, 2, -1, 10, 14, 7, 3, -1};
constexpr Table<int, RESULT_SLOT_COUNT> SECOND_STAGE = {15, 9,  1,  9, 15, 14,  0,  4,  8,   15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0};
// clang-format on

} // namespace

TEST_F(RaceFile, HasAHeadAndARecordForEachStage)
{
    raceSetup.teamName = {"Lions", "Z\xFCrich", "A - 9 z", "Twelve chars"};
    for (const int team : {0, 3})
        race.riders[team * RIDERS_PER_TEAM].isHuman = 1;
    courseText = "01S23S4S5F12";
    race.resultSlots = FIRST_STAGE;
    appendStage();
    courseText = "67S8F12";
    race.resultSlots = SECOND_STAGE;
    race.riders[9].disqualified = 1;
    appendStage();
    ASSERT_TRUE(writeRace("Tour - 1.race"));
    EXPECT_EQ(bytesOfFile("Tour - 1.race"), golden);
}

TEST_F(RaceFile, IsReadIntoTheRaceInMemoryAndAPreviewBesideIt)
{
    putBytes("r.race", golden);
    raceSetup.teamName[0] = "Mine";
    raceSetup.eventCardsOn = false;
    raceSetup.raceStages.resize(7);
    readRacePreview("r.race");
    EXPECT_EQ(raceSetup.teamName[0], "Mine");
    EXPECT_FALSE(raceSetup.eventCardsOn || race.riders[0].isHuman);
    EXPECT_TRUE(racePreview.eventCardsOn);
    EXPECT_EQ(racePreview.teamName[0], "Lions");
    EXPECT_EQ(racePreview.isHuman, (Table<std::uint8_t, TEAM_COUNT>{1, 0, 0, 1}));
    EXPECT_EQ(raceSetup.raceStages.size(), 2u);

    readRace("r.race");
    EXPECT_EQ(race.riders[3].isHuman, 1);
    EXPECT_EQ(race.riders[4].isHuman, 0);
    ASSERT_EQ(raceSetup.raceStages.size(), 2u);
    EXPECT_EQ(raceSetup.raceStages[0].slots, FIRST_STAGE);
    ASSERT_TRUE(writeRace("again.race"));
    EXPECT_EQ(bytesOfFile("again.race"), golden);
}

TEST_F(RaceFile, OddBytesAreMendedAsTheyAreRead)
{
    std::string bytes = golden;
    bytes[0] = '\x80';
    bytes.replace(1, 13, "endless\nname!");
    bytes[14] = 'x';
    const auto putSlots = [&bytes](int first, const std::vector<std::int32_t>& riders) {
        std::memcpy(&bytes[HEAD_SIZE + 16 + 4 * static_cast<std::size_t>(first)], riders.data(),
                    4 * riders.size());
    };
    putSlots(0, {7, 7, 7}); // set back behind a sprint a rider may cross it again
    putSlots(FINISH_SLOT, {3, 16, -2, 3, 0x7FFFFFFF, 256, 0, 15, 0});
    putBytes("r.race", bytes);
    readRace("r.race");
    const auto& slots = raceSetup.raceStages.at(0).slots;
    EXPECT_EQ(std::vector(slots.begin(), slots.begin() + 3), (std::vector{7, 7, 7}));
    EXPECT_EQ(std::vector(slots.begin() + FINISH_SLOT, slots.begin() + FINISH_SLOT + 9),
              (std::vector{3, -1, -1, -1, -1, -1, 0, 15, -1}));
    EXPECT_EQ(raceSetup.teamName[0], "endlessname");
    ASSERT_TRUE(writeRace("r.race"));
    EXPECT_EQ(bytesOfFile("r.race")[0], 1);
    EXPECT_EQ(bytesOfFile("r.race")[14], 1);
}

TEST_F(RaceFile, CutShortItKeepsWhatIsWhole)
{
    putBytes("r.race", golden.substr(0, golden.size() - 1));
    readRace("r.race");
    EXPECT_EQ(raceSetup.raceStages.size(), 1u);

    forgetGame();
    raceSetup.teamName[1] = "Mine";
    putBytes("r.race", golden.substr(0, 20)); // within the second name
    readRace("r.race");
    EXPECT_EQ(raceSetup.teamName[0], "Lions");
    EXPECT_EQ(race.riders[3].isHuman, 1);
    EXPECT_EQ(raceSetup.teamName[1], "Mine");
    EXPECT_TRUE(raceSetup.raceStages.empty());
}

TEST_F(RaceFile, WhatIsNoFileIsNoRace)
{
    fs::create_directory("folder.race");
    ASSERT_EQ(mkfifo("pipe.race", 0600), 0); // which nobody may wait for
    fs::create_symlink("self.race", "self.race");
    raceSetup.teamName[0] = "Mine";
    for (const char* name : {"folder.race", "pipe.race", "self.race", "none.race"}) {
        raceSetup.raceStages.resize(1);
        EXPECT_FALSE(readRace(name)) << name;
        EXPECT_EQ(raceSetup.teamName[0], "Mine") << name;
        EXPECT_TRUE(raceSetup.raceStages.empty()) << name;
    }
    EXPECT_TRUE(listRaceFiles().empty());
}

// Two games may go on with the same race: who comes second hears of it, and overwrites nothing.
TEST_F(RaceFile, AStageThatSomebodyElseAddedIsNotOverwritten)
{
    putBytes("r.race", oneStage);
    ASSERT_TRUE(readRace("r.race"));
    putBytes("r.race", golden); // by the other game
    raceSetup.raceStages.resize(2);
    EXPECT_FALSE(writeRace("r.race"));
    EXPECT_EQ(bytesOfFile("r.race"), golden);
    fs::remove("r.race");
    EXPECT_TRUE(writeRace("r.race")) << "a file that is gone was taken away on purpose";
    raceSetup.raceStages.resize(3);
    EXPECT_TRUE(writeRace("r.race"));

    putBytes("new.race", golden);
    EXPECT_FALSE(writeRace("new.race")) << "a race of this name has begun elsewhere";
}

TEST_F(RaceFile, TheListHoldsFilesWithTheExtension)
{
    for (const char* name :
         {"a.race", "a.race.race", "%n\xFF.race", ".race", ".hidden.race", "a.Race", "race"})
        putBytes(name, "x");
    fs::create_symlink("a.race", "link.race");
    std::vector<std::string> listed = listRaceFiles();
    std::ranges::sort(listed);
    EXPECT_EQ(listed,
              (std::vector<std::string>{"%n\xFF.race", "a.race", "a.race.race", "link.race"}));
}
