#include "screen/support/drawn_texts.h"
#include "screen/support/player.h"
#include "store/race_file.h"
#include "ui/frame.h"
#include "ui/race_list.h"
#include "ui/team_setup.h"

#include <algorithm>
#include <fstream>

namespace
{

using Messages = std::vector<std::string>;
using TeamSetupTest = ScreenTest;

class RaceListTest : public ScreenTest
{
protected:
    static void writeRaceOf(const std::string& fileName, std::size_t stages)
    {
        raceSetup.raceStages.resize(stages);
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
        player.click(place(static_cast<int>(std::ranges::find(files, fileName) - files.begin())));
        ASSERT_EQ(raceSetup.raceFileName, fileName);
    }
};

} // namespace

TEST_F(RaceListTest, ColumnsAreTurnedAsLongAsThereAreMore)
{
    writeRace("R0.race");
    for (int i = 1; i < raceListRows * raceListCols; ++i)
        std::filesystem::copy_file("R0.race", "R" + std::to_string(i) + ".race");
    std::filesystem::last_write_time(".", std::filesystem::last_write_time(SOURCE_DIR)); // long ago
    player.click(CONTROL_CONTINUE);
    EXPECT_FALSE(isLive(CONTROL_LIST_NEXT)) << "all of them are on view";

    std::filesystem::copy_file("R0.race", "One more.race");
    drawFrame();
    EXPECT_EQ(raceList.raceFileList.size(), 81u) << "a new file shows up by itself";
    player.click({CONTROL_LIST_NEXT, CONTROL_LIST_NEXT});
    EXPECT_EQ(raceList.raceListPage, 1);
    player.click(place(79));
    EXPECT_EQ(raceSetup.raceFileName, "") << "nothing stands there";
    for (const int entry : {60, 2}) {
        player.click(place(entry));
        EXPECT_EQ(raceSetup.raceFileName,
                  raceList.raceFileList[static_cast<std::size_t>(entry + raceListRows)]);
    }

    for (const auto& entry : std::filesystem::directory_iterator("."))
        if (entry.path() != "./R0.race")
            std::filesystem::remove(entry.path());
    drawFrame();
    EXPECT_EQ(raceList.raceListPage, 0) << "the only race left is on view";
}

TEST_F(RaceListTest, TheRaceChosenIsYellowAndOpensAsItWasLeft)
{
    raceSetup.teamName[2] = "Rockets";
    makeHuman(2);
    writeRaceOf("Tour.race", 3);
    writeRaceOf("Giro.race", 1);
    startProgram(1280, 1024);
    raceSetup.multiStage = false; // raced last
    player.click(CONTROL_CONTINUE);
    choose("Tour.race");
    for (const DrawnText& text : textsAt(raceListFrame()))
        EXPECT_EQ(text.colour == pixelOf(YELLOW), text.words == "Tour") << text.words;
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
    EXPECT_EQ(raceSetup.teamName[2], "Rockets");
    EXPECT_EQ(race.riders[11].isHuman, 1);
    EXPECT_TRUE(raceSetup.multiStage);
    EXPECT_EQ(raceSetup.raceStages.size(), 3u);
    player.click(CONTROL_COURSE_BACK);
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
        EXPECT_EQ(view.scorecardStage, 0);
    }
    const Rect frame = raceListFrame();
    for (const DrawnText& text : textsAt(frame))
        EXPECT_LT(text.place.x + text.place.w, frame.x + layout.raceListColW) << "in its column";
    EXPECT_EQ(shownFileName("Z\xC3\xBCrich"), "Z\xFCrich");
    EXPECT_EQ(shownFileName("Z\xFCrich"), "Z\xFCrich") << "no UTF-8: each byte a letter";
    EXPECT_EQ(shownFileName("a\nb\xC2\x85\x7F"), "a?b??");
    EXPECT_EQ(shownFileName("\xE2\x82\xAC \xED"), "\xE2?\xAC \xED");
}

// To go on without its stages would overwrite them.
TEST_F(RaceListTest, ARaceThatCantBeReadStaysOnTheList)
{
    writeRaceOf("Tour.race", 2);
    player.click(CONTROL_CONTINUE);
    choose("Tour.race");
    std::filesystem::rename("Tour.race", "away");
    player.click(CONTROL_LIST_OK);
    EXPECT_EQ(gameState, STATE_RACE_FILES);
}

TEST_F(TeamSetupTest, ANewRaceNeedsANameThatIsNotTaken)
{
    writeRace("Tour 1.race");
    player.click({CONTROL_START, CONTROL_TEAM_OK});
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
    raceSetup.raceStages.resize(3); // of a race looked at on the list
    player.click({CONTROL_SETUP_MESSAGE_OK, CONTROL_EVENT_CARDS, CONTROL_TEAM_OK});
    EXPECT_FALSE(raceSetup.eventCardsOn);
    EXPECT_TRUE(raceSetup.raceStages.empty());
    EXPECT_EQ(gameState, STATE_COURSE_SELECT);
    EXPECT_EQ(raceSetup.raceFileName, "Tour 1\xC3\xBC.race") << "file names are UTF-8";
    EXPECT_EQ(raceSetup.standingsFileName, "Tour 1\xC3\xBC.csv");
    EXPECT_FALSE(std::filesystem::exists(raceSetup.raceFileName)) << "before its first stage";

    player.click({CONTROL_COURSE_BACK, CONTROL_SINGLE_STAGE, CONTROL_TEAM_OK});
    EXPECT_EQ(raceSetup.raceFileName, "");
    EXPECT_EQ(raceSetup.standingsFileName, "standings.csv");
}

TEST_F(TeamSetupTest, FieldsAndBoxesAreGoneThroughBothWays)
{
    player.click(CONTROL_START);
    const auto fieldAfter = [&](char key, int held) {
        player.held = held;
        player.key(key);
        return teamSetup.teamActiveField;
    };
    EXPECT_EQ(fieldAfter('\t', GLUT_ACTIVE_SHIFT), 4);
    EXPECT_EQ(fieldAfter('\t', GLUT_ACTIVE_SHIFT), 3);
    EXPECT_EQ(fieldAfter('\t', 0), 4);
    EXPECT_EQ(fieldAfter('\r', 0), 0);
    for (int team = 0; team < TEAM_COUNT; ++team)
        for (const int human : {1, 0}) {
            player.click(static_cast<Control>(CONTROL_COMPUTER_1 + team));
            EXPECT_EQ(race.riders[team * RIDERS_PER_TEAM].isHuman, human);
        }
    player.click(raceNameBox());
    player.click(CONTROL_SINGLE_STAGE);
    EXPECT_EQ(teamSetup.teamActiveField, 3) << "the race has no name any more";
}

// A box is twelve characters wide.
TEST_F(TeamSetupTest, ANameIsTypedAtTheCursorAndLosesWhatIsTooLong)
{
    player.click(CONTROL_START);
    const std::string& name = raceSetup.teamName[0];
    const auto expectAfter = [&](std::string_view keys, int special, const char* text, int cursor) {
        player.type(keys);
        player.special(special);
        EXPECT_EQ(name, text) << keys;
        EXPECT_EQ(teamSetup.teamCursor, cursor) << name;
    };
    constexpr int NO_KEY = GLUT_KEY_F1;
    expectAfter("\177\177\177\177\177\177\177\177\b", NO_KEY, "", 0);
    expectAfter("Rockets", GLUT_KEY_HOME, "Rockets", 0);
    expectAfter("The -!", NO_KEY, "The -Rockets", 5);
    expectAfter("x", GLUT_KEY_END, "The -xRocket", 11);
    expectAfter("abc", NO_KEY, "The -xRockec", 11); // on the last place each overwrites
    expectAfter("\b\177\177", GLUT_KEY_LEFT, "The -xRock", 9);
    expectAfter("\b\177", GLUT_KEY_RIGHT, "The -xRo", 8);
    for (const auto& [index, cursor] : {std::pair{2.5f, 2}, {9.5f, 0}}) {
        const Rect box = teamNameBox(0);
        player.click(Spot(box.x + index * box.w / 12.0f, box.y + 5.0f));
        expectAfter("", NO_KEY, "The -xRo", cursor);
    }
}

// The cursor stood behind a longer default name when the language was changed.
TEST_F(TeamSetupTest, TheCursorStaysInAShorterName)
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
