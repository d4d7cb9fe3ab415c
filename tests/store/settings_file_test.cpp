#include "store/settings_file.h"

#include "app/bytes.h"
#include "app/settings.h"
#include "race/race_state.h"
#include "store/golden_files.h"
#include "support/own_folder.h"

#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>

namespace
{

using Bytes = std::vector<std::uint8_t>;

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

// Reads the known file with these bytes in the place of its own.
void readWith(std::size_t at, const Bytes& bytes)
{
    std::string known = goldenBytes("settings");
    known.replace(at, bytes.size(), reinterpret_cast<const char*>(bytes.data()), bytes.size());
    putBytes("settings", known);
    readSettings();
}

template <typename Value> Bytes bytesWith(void (*put)(Bytes&, Value), Value value)
{
    Bytes bytes;
    put(bytes, value);
    return bytes;
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
}

TEST_F(SettingsFile, ValuesOutOfRangeGetTheirStartValues)
{
    for (const int language : {4, 0xFF}) {
        readWith(0, {static_cast<std::uint8_t>(language), 2});
        EXPECT_EQ(settings, (Settings{LANGUAGE_ENGLISH, 1, 999, 12.5f, 7, 4.0, 3.0}));
    }
    for (const int number : {1000, -1}) {
        readWith(2, bytesWith<std::int32_t>(putInt32, number));
        EXPECT_EQ(settings.stepTime, 0);
        readWith(10, bytesWith<std::int32_t>(putInt32, number));
        EXPECT_EQ(settings, (Settings{LANGUAGE_FRENCH, 0, 999, 12.5f, 200, 4.0, 3.0}));
    }
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const float distance : {999.5f, 1000.0f, -0.5f, HUGE_VALF, nan}) {
        readWith(6, bytesWith(putFloat, distance));
        EXPECT_EQ(settings.stepDistance, 10.0f) << distance;
    }
    for (const double width : {5.0, 0.0, -4.0, HUGE_VAL, static_cast<double>(nan)}) {
        readWith(14, bytesWith(putDouble, width));
        EXPECT_EQ(settings, (Settings{LANGUAGE_FRENCH, 0, 999, 12.5f, 7, -1.0, -1.0})) << width;
    }
}

TEST_F(SettingsFile, NamesEndAfterTwelveCharactersAndHoldNoControlCharacters)
{
    const std::string names = "ABCDEFGHIJKLMNOPQRSTUVWXYZ" +
                              std::string("A\nB\x9B\xE9\0junk..", 13) + std::string(13, '\x01');
    readWith(30, Bytes(names.begin(), names.end()));
    EXPECT_EQ(raceSetup.teamName,
              (Table<std::string, TEAM_COUNT>{"ABCDEFGHIJKL", "NOPQRSTUVWXY", "AB\xE9", ""}));
}

TEST_F(SettingsFile, ShortFilesKeepWhatTheyHold)
{
    const std::string whole = goldenBytes("settings");
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        putBytes("settings", whole.substr(0, size));
        readSettings();
        EXPECT_EQ(settings.language, size >= 1 ? LANGUAGE_FRENCH : LANGUAGE_ENGLISH) << size;
        EXPECT_EQ(settings.smoothMovement, size < 2 ? 1 : 0) << size;
        EXPECT_EQ(settings.stepTime, size >= 4 ? 999 : size == 3 ? 999 % 256 : 0) << size;
        EXPECT_EQ(settings.stepDelay, size >= 11 ? 7 : 0) << size;
        EXPECT_EQ(settings.ratioW, size >= 30 ? 4.0 : -1.0) << size;
        EXPECT_EQ(raceSetup.teamName[0],
                  std::string("Twelve chars").substr(0, size < 30 ? 0 : size - 30));
    }
}

TEST_F(SettingsFile, WhatIsNoFileCountsAsMissing)
{
    const auto readAnew = [] {
        settings.language = LANGUAGE_DUTCH;
        settings.ratioW = 5.0;
        raceSetup.teamName[0] = "Old";
        readSettings();
        EXPECT_EQ(settings, (Settings{LANGUAGE_ENGLISH, 1, 0, 10.0f, 200, -1.0, -1.0}));
        EXPECT_EQ(raceSetup.teamName[0], "");
    };
    readAnew();
    EXPECT_TRUE(std::filesystem::is_empty(".")); // nor left behind
    std::filesystem::create_directory("settings");
    readAnew();
    std::filesystem::remove("settings");
    ASSERT_EQ(mkfifo("settings", 0600), 0);
    readAnew();
}

} // namespace
