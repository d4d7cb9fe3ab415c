#include "app/game_state.h"
#include "app/host.h"
#include "app/settings.h"
#include "app/view.h"
#include "race/race_state.h"
#include "screen/support/drawn_texts.h"
#include "screen/support/player.h"
#include "store/race_file.h"
#include "support/fake_host.h"
#include "support/own_folder.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/places.h"
#include "ui/race_list.h"
#include "ui/team_setup.h"
#include "ui/texts.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace
{

using Messages = std::vector<std::string>;

// The main menu, in a folder of its own.
class RaceListTest : public testing::Test
{
protected:
    void SetUp() override { startProgram(1280, 1024); }

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

    // From the team setup over the last course to the end of the stage, of computers alone.
    void raceAStage()
    {
        settings.stepDistance = 999.0f;
        host.redraw = nullptr; // nobody looks
        std::srand(1);
        player.hover(coursePicture(3));
        player.click(coursePicture(3));
        while (gameState != STATE_FINAL_SCORECARD) {
            if (gameState == STATE_ANIMATE)
                ASSERT_TRUE(runTick());
            else
                player.key(gameState == STATE_ORDER_RESULT ? 'n' : 'o');
        }
        host.redraw = drawFrame;
        player.click(CONTROL_SHEET_QUIT);
    }

    OwnFolder here;
    Player player;
};

} // namespace

// The results of a race are its own: neither those of the race last looked at, nor lost.
TEST_F(RaceListTest, ANewRaceKeepsNothingOfTheOneLookedAtLast)
{
    writeRaceOf("Tour.race", 2, 3);
    player.click(CONTROL_CONTINUE);
    choose("Tour.race");
    player.click({CONTROL_LIST_SCORECARD, CONTROL_SHEET_OK, CONTROL_LIST_BACK, CONTROL_START});
    player.click(raceNameBox());
    player.type("Giro");
    player.click(CONTROL_TEAM_OK);
    raceAStage();
    ASSERT_TRUE(readRace("Giro.race"));
    EXPECT_EQ(raceSetup.raceStages.size(), 1u);
    ASSERT_TRUE(readRace("Tour.race"));
    EXPECT_EQ(raceSetup.raceStages.size(), 3u);
}

TEST_F(RaceListTest, ARaceThatGoesOnBehindASingleStageIsSaved)
{
    writeRaceOf("Tour.race", 2, 3);
    player.click({CONTROL_START, CONTROL_SINGLE_STAGE, CONTROL_TEAM_OK});
    raceAStage();
    player.click(CONTROL_CONTINUE);
    choose("Tour.race");
    player.click(CONTROL_LIST_OK);
    raceAStage();
    raceSetup.raceStages.clear();
    ASSERT_TRUE(readRace("Tour.race"));
    ASSERT_EQ(raceSetup.raceStages.size(), 4u);
    EXPECT_EQ(raceSetup.raceStages[2].slots[FINISH_SLOT], 8);
    EXPECT_EQ(raceSetup.raceStages[3].slots, race.resultSlots);
}

TEST_F(RaceListTest, ColumnsAreTurnedAsLongAsThereAreMore)
{
    writeRace("R0.race");
    for (int i = 1; i < raceListRows * raceListCols; ++i)
        std::filesystem::copy_file("R0.race", "R" + std::to_string(i) + ".race");
    player.click({CONTROL_CONTINUE, CONTROL_LIST_NEXT});
    EXPECT_EQ(raceList.raceListPage, 0) << "all of them are on view";

    std::filesystem::copy_file("R0.race", "One more.race");
    drawFrame();
    EXPECT_EQ(raceList.raceFileList.size(), 81u) << "a new file shows up by itself";
    player.click({CONTROL_LIST_NEXT, CONTROL_LIST_NEXT});
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
}

TEST_F(RaceListTest, TheRaceChosenIsYellowAndOpensAsItWasLeft)
{
    raceSetup.teamName[2] = "Rockets";
    race.riders[11].isHuman = race.riders[8].isHuman = 1;
    writeRaceOf("Tour.race", 2, 3);
    writeRaceOf("Giro.race", 0, 1);
    startProgram(1280, 1024);
    player.click({CONTROL_CONTINUE, CONTROL_LIST_OK, CONTROL_LIST_SCORECARD});
    EXPECT_EQ(gameState, STATE_RACE_FILES) << "no race is chosen";
    choose("Tour.race");
    for (const DrawnText& text : drawnTexts())
        if (raceListFrame().contains(text.place.x, text.place.y)) {
            EXPECT_EQ(text.colour == pixelOf(YELLOW), text.words == "Tour") << text.words;
        }
    EXPECT_EQ(raceSetup.standingsFileName, "Tour.csv");
    EXPECT_EQ(racePreview.teamName[2], "Rockets");
    EXPECT_EQ(raceSetup.teamName[2], "Germany") << "not yet";

    view.scorecardStage = 7;
    player.click(CONTROL_LIST_SCORECARD);
    EXPECT_EQ(view.scorecardStage, 2);
    player.click(CONTROL_SHEET_OK);
    choose("Giro.race");
    EXPECT_EQ(view.scorecardStage, 0);

    choose("Tour.race");
    player.click(CONTROL_LIST_OK);
    EXPECT_EQ(gameState, STATE_COURSE_SELECT);
    EXPECT_EQ(raceSetup.teamName[2], "Rockets");
    EXPECT_EQ(race.riders[11].isHuman, 1);
    EXPECT_EQ(raceSetup.raceStages.size(), 3u);
    player.click(CONTROL_COURSE_BACK);
    EXPECT_EQ(gameState, STATE_RACE_FILES);
    EXPECT_EQ(raceSetup.raceFileName, "Tour.race");
    player.click({CONTROL_LIST_BACK, CONTROL_CONTINUE});
    EXPECT_EQ(raceSetup.raceFileName, "") << "chosen anew each time";
}

// Bytes that are no text at all, a name as long as the disk allows, and a race of no bytes.
TEST_F(RaceListTest, AnyFileIsListedAndMayBeChosen)
{
    const std::string names[] = {"Z\xC3\xBCrich.race", "Bad\xFF\xFE\n\x1b[2J.race",
                                 std::string(250, 'W') + ".race", "\"\"\"\"\"\"\"\"\"\"\".race"};
    for (const std::string& name : names)
        std::ofstream(name) << "";
    player.click(CONTROL_CONTINUE);
    for (const std::string& name : names) {
        choose(name);
        player.click({CONTROL_LIST_SCORECARD, CONTROL_SHEET_OK});
        EXPECT_EQ(gameState, STATE_RACE_FILES);
        EXPECT_EQ(view.scorecardStage, 0);
    }
    // The long name ends within its column.
    const Rect frame = raceListFrame();
    for (const DrawnText& text : drawnTexts())
        if (frame.contains(text.place.x, text.place.y)) {
            EXPECT_LT(text.place.x + text.place.w, frame.x + layout.raceListColW) << text.words;
        }
    EXPECT_EQ(shownFileName("Z\xC3\xBCrich"), "Z\xFCrich");
    EXPECT_EQ(shownFileName("Z\xFCrich"), "Z\xFCrich") << "no UTF-8: each byte a letter";
    EXPECT_EQ(shownFileName("a\nb\xC2\x85\x7F"), "a?b??");
    EXPECT_EQ(shownFileName("\xE2\x82\xAC \xED"), "\xE2?\xAC \xED");
}

// To go on without its stages would overwrite them.
TEST_F(RaceListTest, ARaceThatCantBeReadStaysOnTheList)
{
    writeRaceOf("Tour.race", 0, 2);
    player.click(CONTROL_CONTINUE);
    choose("Tour.race");
    std::filesystem::rename("Tour.race", "away");
    player.click(CONTROL_LIST_OK);
    EXPECT_EQ(gameState, STATE_RACE_FILES);
    EXPECT_EQ(raceList.raceFileList.size(), 0u);
    std::filesystem::rename("away", "Tour.race");
    player.click(CONTROL_LIST_OK);
    EXPECT_EQ(raceSetup.raceStages.size(), 2u);
}

TEST_F(RaceListTest, ANewRaceNeedsANameThatIsNotTaken)
{
    writeRaceOf("Tour 1.race", 0, 1);
    player.click({CONTROL_START, CONTROL_TEAM_OK});
    ASSERT_EQ(gameState, STATE_SETUP_MESSAGE);
    EXPECT_EQ(teamSetup.setupMessages, Messages{"Enter a race name"});
    player.click(CONTROL_SETUP_MESSAGE_OK);
    player.click(raceNameBox());
    player.type("Tour 1");
    player.click(CONTROL_TEAM_OK);
    EXPECT_EQ(teamSetup.setupMessages, Messages{"Race name \"Tour 1\" already exists"});
    player.type("o\xFC");
    std::filesystem::create_symlink("nowhere", "Tour 1\xC3\xBC.race");
    player.click(CONTROL_TEAM_OK);
    EXPECT_EQ(gameState, STATE_SETUP_MESSAGE) << "a link of that name is in the way, too";
    std::filesystem::remove("Tour 1\xC3\xBC.race");
    player.click({CONTROL_SETUP_MESSAGE_OK, CONTROL_EVENT_CARDS, CONTROL_TEAM_OK});
    EXPECT_FALSE(raceSetup.eventCardsOn);
    EXPECT_EQ(gameState, STATE_COURSE_SELECT);
    EXPECT_EQ(raceSetup.raceFileName, "Tour 1\xC3\xBC.race") << "file names are UTF-8";
    EXPECT_EQ(raceSetup.standingsFileName, "Tour 1\xC3\xBC.csv");
    EXPECT_FALSE(std::filesystem::exists(raceSetup.raceFileName)) << "before its first stage";

    player.click({CONTROL_COURSE_BACK, CONTROL_SINGLE_STAGE, CONTROL_TEAM_OK});
    EXPECT_EQ(raceSetup.raceFileName, "");
    EXPECT_EQ(raceSetup.standingsFileName, "standings.csv");
}

TEST_F(RaceListTest, TheFieldsOfTheTeamSetupAreGoneThroughBothWays)
{
    player.click(CONTROL_START);
    for (const auto& [key, held, field] : {std::tuple{'\t', GLUT_ACTIVE_SHIFT, 4},
                                           {'\t', GLUT_ACTIVE_SHIFT, 3},
                                           {'\t', 0, 4},
                                           {'\r', 0, 0}}) {
        player.held = held;
        player.key(key);
        EXPECT_EQ(teamSetup.teamActiveField, field);
    }
    player.click(raceNameBox());
    player.click(CONTROL_SINGLE_STAGE);
    EXPECT_EQ(teamSetup.teamActiveField, 3) << "the race has no name any more";
}

// The cursor stood behind a longer default name when the language was changed.
TEST_F(RaceListTest, TheCursorStaysInAShorterName)
{
    player.click(CONTROL_START);
    teamSetup.teamActiveField = 1;
    player.special(GLUT_KEY_END);
    ASSERT_EQ(teamSetup.teamCursor, 11);
    player.click(CONTROL_TEAM_BACK);
    settings.language = LANGUAGE_FRENCH;
    loadTexts();
    player.click(CONTROL_START);
    EXPECT_EQ(teamSetup.teamCursor, 8);
    player.type("!-");
    EXPECT_EQ(raceSetup.teamName[1], "Pays-Bas-");
}
