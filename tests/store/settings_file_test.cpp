#include "store/settings_file.h"

#include "app/settings.h"
#include "race/race_state.h"
#include "store/golden_files.h"
#include "support/own_folder.h"

#include <cmath>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>

namespace
{

constexpr Settings KNOWN = {LANGUAGE_FRENCH, 0, 999, 12.5f, 7, 4.0, 3.0};

// Reads the known file with this value in the place of its own.
template <typename Value> void readWith(std::size_t at, Value value)
{
    std::string bytes = goldenBytes("settings");
    std::memcpy(&bytes[at], &value, sizeof value);
    putBytes("settings", bytes);
    readSettings();
}

TEST(SettingsFile, IsOf82BytesAndKeepsEveryFieldInItsPlace)
{
    const OwnFolder folder;
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

TEST(SettingsFile, ValuesOutOfRangeGetTheirStartValues)
{
    const OwnFolder folder;
    readWith(0, '\4');
    EXPECT_EQ(settings, (Settings{LANGUAGE_ENGLISH, 0, 999, 12.5f, 7, 4.0, 3.0}));
    readWith(1, '\2');
    EXPECT_EQ(settings, (Settings{LANGUAGE_FRENCH, 1, 999, 12.5f, 7, 4.0, 3.0}));
    for (const std::int32_t number : {1000, -1}) {
        readWith(2, number);
        EXPECT_EQ(settings.stepTime, 0);
        readWith(10, number);
        EXPECT_EQ(settings, (Settings{LANGUAGE_FRENCH, 0, 999, 12.5f, 200, 4.0, 3.0}));
    }
    for (const float distance : {999.5f, -0.5f, HUGE_VALF, NAN}) {
        readWith(6, distance);
        EXPECT_EQ(settings.stepDistance, 10.0f) << distance;
    }
    for (const double width : {5.0, 0.0, static_cast<double>(NAN)}) {
        readWith(14, width);
        EXPECT_EQ(settings, (Settings{LANGUAGE_FRENCH, 0, 999, 12.5f, 7, -1.0, -1.0})) << width;
    }
}

TEST(SettingsFile, ShortFilesKeepWhatTheyHold)
{
    const OwnFolder folder;
    const std::string whole = goldenBytes("settings");
    putBytes("settings", whole.substr(0, 34));
    readSettings();
    EXPECT_EQ(settings, KNOWN);
    EXPECT_EQ(raceSetup.teamName[0], "Twel");
    putBytes("settings", whole.substr(0, 3));
    readSettings();
    EXPECT_EQ(settings, (Settings{LANGUAGE_FRENCH, 0, 999 % 256, 0.0f, 0, -1.0, -1.0}));
}

} // namespace
