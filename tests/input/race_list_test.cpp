#include "app/game_state.h"
#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "store/race_file.h"
#include "support/own_folder.h"
#include "screen/support/old_places.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/race_list.h"
#include "ui/team_setup.h"
#include "ui/texts.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace
{

constexpr char TAB = 9;

// The main menu, in a folder of its own.
class RaceListTest : public testing::Test
{
protected:
    void SetUp() override { startProgram(1280, 1024); }

    static void writeEmptyRaces(int count)
    {
        writeRace("R0.race");
        for (int i = 1; i < count; ++i)
            std::filesystem::copy_file("R0.race",
                                       std::string("R").append(std::to_string(i)).append(".race"));
    }

    // A race of so many stages, each won by the team's first rider.
    static void writeRaceOf(const std::string& fileName, int team, int stages)
    {
        StageRecord record;
        record.slots = filled<int, RESULT_SLOT_COUNT>(-1);
        record.slots[FINISH_SLOT] = team * RIDERS_PER_TEAM;
        raceSetup.raceStages.assign(static_cast<std::size_t>(stages), record);
        writeRace(fileName);
        raceSetup.raceStages.clear();
    }

    // The place of an entry that is on view, counted from the first one shown.
    static Rect place(int index)
    {
        const Rect names = raceListNames();
        const float column = static_cast<float>(index / raceListRows);
        const float row = static_cast<float>(index % raceListRows);
        return {names.x + column * layout.raceListColW, names.y + row * layout.raceListRowH, 80.0f,
                layout.raceListRowH};
    }

    void choose(const std::string& fileName)
    {
        const auto& files = raceList.raceFileList;
        const auto found = std::ranges::find(files, fileName);
        ASSERT_NE(found, files.end()) << fileName;
        player.click(place(static_cast<int>(found - files.begin())));
        ASSERT_EQ(raceSetup.raceFileName, fileName);
    }

    void type(std::string_view keys)
    {
        for (const char key : keys)
            player.key(key);
    }

    OwnFolder here;
    Player player;
};

} // namespace

TEST_F(RaceListTest, ColumnsAreTurnedAsLongAsThereAreMore)
{
    writeEmptyRaces(raceListRows * raceListCols);
    player.click("Continue");
    ASSERT_EQ(gameState, STATE_RACE_FILES);
    player.click(listNextButton());
    EXPECT_EQ(raceList.raceListPage, 0) << "all of them are on view";

    std::filesystem::copy_file("R0.race", "One more.race");
    drawFrame();
    EXPECT_EQ(raceList.raceFileList.size(), 81u) << "a new file shows up by itself";
    player.click(listNextButton());
    player.click(listNextButton());
    EXPECT_EQ(raceList.raceListPage, 1);
    player.click(place(79));
    EXPECT_EQ(raceSetup.raceFileName, "") << "nothing stands there";
    player.click(place(60));
    EXPECT_EQ(raceSetup.raceFileName, raceList.raceFileList[80]);
    player.click(place(2));
    EXPECT_EQ(raceSetup.raceFileName, raceList.raceFileList[22]);

    for (const auto& entry : std::filesystem::directory_iterator("."))
        if (entry.path() != "./R0.race")
            std::filesystem::remove(entry.path());
    drawFrame();
    EXPECT_EQ(raceList.raceListPage, 0) << "the only race left is on view";
    player.click("Back");
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
}

TEST_F(RaceListTest, TheRaceChosenIsYellowAndOpensAsItWasLeft)
{
    raceSetup.teamName[2] = "Rockets";
    for (int rider = 8; rider < 12; ++rider)
        race.riders[rider].isHuman = 1;
    writeRaceOf("Tour.race", 2, 3);
    writeRaceOf("Giro.race", 0, 1);
    startProgram(1280, 1024);
    player.click("Continue");
    player.key('o');
    player.click("OK");
    player.key('s');
    EXPECT_EQ(gameState, STATE_RACE_FILES) << "no race is chosen";
    choose("Tour.race");
    EXPECT_GT(countPixels(screenshot(), raceListFrame(), pixelOf(YELLOW)), 20);
    EXPECT_EQ(raceSetup.standingsFileName, "Tour.csv");
    EXPECT_EQ(racePreview.teamName[2], "Rockets");
    EXPECT_EQ(raceSetup.teamName[2], "Germany") << "not yet";

    view.scorecardStage = 7;
    player.key('s');
    ASSERT_EQ(gameState, STATE_RACE_STANDINGS);
    EXPECT_EQ(view.scorecardStage, 2);
    player.key('o');
    EXPECT_EQ(gameState, STATE_RACE_FILES);
    choose("Giro.race");
    EXPECT_EQ(view.scorecardStage, 0);

    choose("Tour.race");
    player.click("OK");
    EXPECT_EQ(gameState, STATE_COURSE_SELECT);
    EXPECT_EQ(raceSetup.teamName[2], "Rockets");
    EXPECT_EQ(race.riders[11].isHuman, 1);
    EXPECT_EQ(raceSetup.raceStages.size(), 3u);
    player.click("Back");
    EXPECT_EQ(gameState, STATE_RACE_FILES);
    EXPECT_EQ(raceSetup.raceFileName, "Tour.race");
    player.click("Back");
    player.click("Continue");
    EXPECT_EQ(raceSetup.raceFileName, "") << "chosen anew each time";
}

// Bytes that are no text at all, a name as long as the disk allows, and a race of no bytes.
TEST_F(RaceListTest, AnyFileIsListedAndMayBeChosen)
{
    const std::string names[] = {"Z\xC3\xBCrich.race", "Bad\xFF\xFE\n\x1b[2J.race",
                                 std::string(250, 'W') + ".race", "\"\"\"\"\"\"\"\"\"\"\".race"};
    for (const std::string& name : names)
        std::ofstream(name) << "";
    player.click("Continue");
    for (const std::string& name : names) {
        choose(name);
        player.click("Scorecard");
        EXPECT_EQ(gameState, STATE_RACE_STANDINGS);
        drawFrame();
        player.click("OK");
        EXPECT_EQ(view.scorecardStage, 0);
    }
    // The long name ends within the frame.
    const Rect frame = raceListFrame();
    const Image image = screenshot();
    for (float y = frame.y; y < frame.y + frame.h; y += 1.0f)
        EXPECT_TRUE(closeTo(image.at(frame.x + layout.raceListColW, y), pixelOf(panelBlue), 1) ||
                    closeTo(image.at(frame.x + layout.raceListColW, y), pixelOf(WHITE), 1));
    EXPECT_EQ(shownFileName("Z\xC3\xBCrich"), "Z\xFCrich");
    EXPECT_EQ(shownFileName("Z\xFCrich"), "Z\xFCrich") << "no UTF-8: each byte a letter";
    EXPECT_EQ(shownFileName("a\nb\xC2\x85\x7F"), "a?b??");
    EXPECT_EQ(shownFileName("\xE2\x82\xAC \xED"), "\xE2?\xAC \xED");
}

// To go on without its stages would overwrite them.
TEST_F(RaceListTest, ARaceThatCantBeReadStaysOnTheList)
{
    writeRaceOf("Tour.race", 0, 2);
    player.click("Continue");
    choose("Tour.race");
    std::filesystem::rename("Tour.race", "away");
    player.click("OK");
    EXPECT_EQ(gameState, STATE_RACE_FILES);
    EXPECT_EQ(raceList.raceFileList.size(), 0u);
    std::filesystem::rename("away", "Tour.race");
    player.click("OK");
    EXPECT_EQ(gameState, STATE_COURSE_SELECT);
    EXPECT_EQ(raceSetup.raceStages.size(), 2u);
}

TEST_F(RaceListTest, ANewRaceNeedsANameThatIsNotTaken)
{
    writeRaceOf("Tour 1.race", 0, 1);
    player.click("Start");
    ASSERT_TRUE(raceSetup.multiStage);
    player.click("OK");
    ASSERT_EQ(gameState, STATE_SETUP_MESSAGE);
    EXPECT_EQ(teamSetup.setupMessages, std::vector<std::string>{"Enter a race name"});
    player.click("OK");
    player.click(raceNameBox());
    type("Tour 1");
    player.click("OK");
    ASSERT_EQ(gameState, STATE_SETUP_MESSAGE);
    EXPECT_EQ(teamSetup.setupMessages,
              std::vector<std::string>{"Race name \"Tour 1\" already exists"});
    player.key('o');
    type("\xFC");
    std::filesystem::create_symlink("nowhere", "Tour 1\xC3\xBC.race");
    player.click("OK");
    EXPECT_EQ(gameState, STATE_SETUP_MESSAGE)
        << "a link or a folder of that name is in the way, too";
    std::filesystem::remove("Tour 1\xC3\xBC.race");
    player.key('o');
    player.click(eventCardsBox());
    EXPECT_FALSE(raceSetup.eventCardsOn);
    player.click("OK");
    EXPECT_EQ(gameState, STATE_COURSE_SELECT);
    EXPECT_EQ(raceSetup.raceFileName, "Tour 1\xC3\xBC.race") << "file names are UTF-8";
    EXPECT_EQ(raceSetup.standingsFileName, "Tour 1\xC3\xBC.csv");
    EXPECT_FALSE(std::filesystem::exists(raceSetup.raceFileName)) << "before its first stage";

    player.click("Back");
    player.click("Single stage");
    player.click("OK");
    EXPECT_EQ(gameState, STATE_COURSE_SELECT);
    EXPECT_EQ(raceSetup.raceFileName, "");
    EXPECT_EQ(raceSetup.standingsFileName, "standings.csv");
}

TEST_F(RaceListTest, ShiftAndTabGoBackThroughTheFields)
{
    player.click("Start");
    player.held = GLUT_ACTIVE_SHIFT;
    player.key(TAB);
    EXPECT_EQ(teamSetup.teamActiveField, 4);
    player.key(TAB);
    EXPECT_EQ(teamSetup.teamActiveField, 3);
    player.held = 0;
    player.key(TAB);
    player.key(TAB);
    EXPECT_EQ(teamSetup.teamActiveField, 0);
}

// The cursor stood behind a longer default name when the language was changed.
TEST_F(RaceListTest, TheCursorStaysInAShorterName)
{
    player.click("Start");
    teamSetup.teamActiveField = 1;
    player.special(GLUT_KEY_END);
    ASSERT_EQ(teamSetup.teamCursor, 11);
    player.click("Back");
    settings.language = LANGUAGE_FRENCH;
    loadTexts();
    player.click("Start");
    EXPECT_EQ(teamSetup.teamCursor, 8);
    type("!");
    type("-");
    EXPECT_EQ(raceSetup.teamName[1], "Pays-Bas-");
    settings.language = LANGUAGE_ENGLISH;
    loadTexts();
}
