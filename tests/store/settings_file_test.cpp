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

// A sound file whose fields a test changes before it is read.
struct Fields {
    int language = 3;
    int smooth = 0;
    std::int32_t stepTime = 12;
    float stepDistance = 7.5f;
    std::int32_t stepDelay = 345;
    double ratioW = 16.0;
    double ratioH = 10.0;
    std::string names = std::string("Lions\0\0\0\0\0\0\0\0", 13) + std::string(39, '\0');
};

Bytes bytesOf(const Fields& fields)
{
    Bytes bytes;
    putByte(bytes, fields.language);
    putByte(bytes, fields.smooth);
    putInt32(bytes, fields.stepTime);
    putFloat(bytes, fields.stepDistance);
    putInt32(bytes, fields.stepDelay);
    putDouble(bytes, fields.ratioW);
    putDouble(bytes, fields.ratioH);
    bytes.insert(bytes.end(), fields.names.begin(), fields.names.end());
    return bytes;
}

void readBytes(const Bytes& bytes)
{
    putBytes("settings", std::string(bytes.begin(), bytes.end()));
    readSettings();
}

void expectStartValues()
{
    EXPECT_EQ(settings, (Settings{LANGUAGE_ENGLISH, 1, 0, 10.0f, 200, -1.0, -1.0}));
    EXPECT_EQ(raceSetup.teamName, (Table<std::string, TEAM_COUNT>{}));
}

TEST_F(SettingsFile, IsOf82BytesAndKeepsEveryFieldInItsPlace)
{
    const Settings written = {LANGUAGE_FRENCH, 0, 999, 12.5f, 7, 4.0, 3.0};
    const Table<std::string, TEAM_COUNT> names = {"Twelve chars", "Z\xFCrich", "", "D"};
    settings = written;
    raceSetup.teamName = names;
    ASSERT_TRUE(writeSettings());
    EXPECT_EQ(bytesOfFile("settings"), goldenBytes("settings"));
    settings = {};
    raceSetup = {};
    readSettings();
    EXPECT_EQ(settings, written);
    EXPECT_EQ(raceSetup.teamName, names);
}

TEST_F(SettingsFile, ValuesOutOfRangeGetTheirStartValues)
{
    readBytes(bytesOf({.language = 4, .smooth = 2, .stepTime = 1000, .stepDelay = 1000}));
    EXPECT_EQ(settings, (Settings{.stepDistance = 7.5f, .ratioW = 16.0, .ratioH = 10.0}));
    EXPECT_EQ(raceSetup.teamName[0], "Lions");
    readBytes(bytesOf({.language = 0xFF, .smooth = 1, .stepTime = -1, .stepDelay = -1}));
    EXPECT_EQ(settings, (Settings{.stepDistance = 7.5f, .ratioW = 16.0, .ratioH = 10.0}));

    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const float distance : {999.5f, 1000.0f, -0.5f, HUGE_VALF, nan}) {
        readBytes(bytesOf({.stepDistance = distance}));
        EXPECT_EQ(settings.stepDistance, 10.0f) << distance;
    }
    for (const double width : {4.0, 0.0, -16.0, HUGE_VAL, static_cast<double>(nan)}) {
        readBytes(bytesOf({.ratioW = width}));
        EXPECT_EQ(settings.ratioW, -1.0) << width;
        EXPECT_EQ(settings.ratioH, -1.0) << width;
    }
}

TEST_F(SettingsFile, NamesEndAfterTwelveCharactersAndHoldNoControlCharacters)
{
    const std::string names = "ABCDEFGHIJKLMNOPQRSTUVWXYZ" +
                              std::string("A\nB\x9B\xE9\0junk..", 13) + std::string(13, '\x01');
    readBytes(bytesOf({.names = names}));
    EXPECT_EQ(raceSetup.teamName[0], "ABCDEFGHIJKL");
    EXPECT_EQ(raceSetup.teamName[1], "NOPQRSTUVWXY");
    EXPECT_EQ(raceSetup.teamName[2], "AB\xE9");
    EXPECT_EQ(raceSetup.teamName[3], "");
}

TEST_F(SettingsFile, ShortFilesKeepWhatTheyHold)
{
    readBytes({});
    EXPECT_EQ(settings.language, LANGUAGE_ENGLISH);
    EXPECT_EQ(settings.smoothMovement, 1);
    EXPECT_EQ(settings.stepDelay, 0);
    const Bytes whole = bytesOf({});
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        readBytes(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
        EXPECT_EQ(settings.language, size >= 1 ? LANGUAGE_DUTCH : LANGUAGE_ENGLISH) << size;
        EXPECT_EQ(settings.stepDelay, size >= 12 ? 345 : size == 11 ? 345 % 256 : 0) << size;
        EXPECT_EQ(settings.ratioW, size >= 30 ? 16.0 : -1.0) << size;
        EXPECT_EQ(raceSetup.teamName[0], std::string("Lions").substr(0, size < 30 ? 0 : size - 30));
    }
}

TEST_F(SettingsFile, WhatIsNoFileCountsAsMissingAndIsNotWritten)
{
    const auto readAnew = [] {
        settings.language = LANGUAGE_DUTCH;
        settings.ratioW = 5.0;
        raceSetup.teamName[0] = "Old";
        readSettings();
        expectStartValues();
    };
    readAnew();
    EXPECT_TRUE(std::filesystem::is_empty(".")); // nor left behind
    std::filesystem::create_directory("settings");
    readAnew();
    EXPECT_FALSE(writeSettings());
    std::filesystem::remove("settings");
    ASSERT_EQ(mkfifo("settings", 0600), 0);
    readAnew();
    EXPECT_FALSE(writeSettings());
}

} // namespace
