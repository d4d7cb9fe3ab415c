#include "store/settings_file.h"

#include "app/settings.h"
#include "race/race_state.h"
#include "store/golden_files.h"
#include "support/own_folder.h"

#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>

namespace
{

// Stands in an empty folder of its own.
class SettingsFile : public testing::Test
{
protected:
    void TearDown() override
    {
        settings = {};
        raceSetup = {};
    }

    OwnFolder folder;
};

constexpr Settings KNOWN = {LANGUAGE_FRENCH, 0, 999, 12.5f, 7, 4.0, 3.0};

// Reads the known file with this in the place of its own.
void readWith(std::size_t at, const std::string& bytes)
{
    putBytes("settings", goldenBytes("settings").replace(at, bytes.size(), bytes));
    readSettings();
}

template <typename Value> void readWithValue(std::size_t at, Value value)
{
    readWith(at, {reinterpret_cast<const char*>(&value), sizeof value});
}

TEST_F(SettingsFile, IsOf82BytesAndKeepsEveryFieldInItsPlace)
{
    const Table<std::string, TEAM_COUNT> names = {"Twelve chars", "Z\xFCrich", "", "D"};
    settings = KNOWN;
    raceSetup.teamName = names;
    ASSERT_TRUE(writeSettings());
    EXPECT_EQ(bytesOfFile("settings"), goldenBytes("settings"));
    settings = {};
    raceSetup = {};
    readSettings();
    EXPECT_EQ(settings, KNOWN);
    EXPECT_EQ(raceSetup.teamName, names);

    std::filesystem::remove("settings");
    readSettings();
    EXPECT_EQ(settings, Settings());
    EXPECT_EQ(raceSetup.teamName[0], "");
}

TEST_F(SettingsFile, ValuesOutOfRangeGetTheirStartValues)
{
    readWith(0, "\4\2");
    EXPECT_EQ(settings, (Settings{LANGUAGE_ENGLISH, 1, 999, 12.5f, 7, 4.0, 3.0}));
    for (const std::int32_t number : {1000, -1}) {
        readWithValue(2, number);
        EXPECT_EQ(settings.stepTime, 0);
        readWithValue(10, number);
        EXPECT_EQ(settings, (Settings{LANGUAGE_FRENCH, 0, 999, 12.5f, 200, 4.0, 3.0}));
    }
    for (const float distance : {999.5f, -0.5f, HUGE_VALF, NAN}) {
        readWithValue(6, distance);
        EXPECT_EQ(settings.stepDistance, 10.0f) << distance;
    }
    for (const double width : {5.0, 0.0, static_cast<double>(NAN)}) {
        readWithValue(14, width);
        EXPECT_EQ(settings, (Settings{LANGUAGE_FRENCH, 0, 999, 12.5f, 7, -1.0, -1.0})) << width;
    }
}

TEST_F(SettingsFile, NamesEndAfterTwelveCharactersAndHoldNoControlCharacters)
{
    readWith(30, "ABCDEFGHIJKLMNOPQRSTUVWXYZ" + std::string("A\nB\x9B\xE9\0junk..", 13) +
                     std::string(13, '\x01'));
    EXPECT_EQ(raceSetup.teamName,
              (Table<std::string, TEAM_COUNT>{"ABCDEFGHIJKL", "NOPQRSTUVWXY", "AB\xE9", ""}));
}

TEST_F(SettingsFile, ShortFilesKeepWhatTheyHold)
{
    const std::string whole = goldenBytes("settings");
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        SCOPED_TRACE(size);
        putBytes("settings", whole.substr(0, size));
        readSettings();
        EXPECT_EQ(settings.language, size >= 1 ? LANGUAGE_FRENCH : LANGUAGE_ENGLISH);
        EXPECT_EQ(settings.smoothMovement, size < 2 ? 1 : 0);
        EXPECT_EQ(settings.stepTime, size >= 4 ? 999 : size == 3 ? 999 % 256 : 0);
        EXPECT_EQ(settings.stepDelay, size >= 11 ? 7 : 0);
        EXPECT_EQ(settings.ratioW, size >= 30 ? 4.0 : -1.0);
        EXPECT_EQ(raceSetup.teamName[0],
                  std::string("Twelve chars").substr(0, size < 30 ? 0 : size - 30));
    }
}

} // namespace
