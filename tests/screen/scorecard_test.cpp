#include "app/game_state.h"
#include "app/settings.h"
#include "app/view.h"
#include "play/overlays.h"
#include "race/race_state.h"
#include "screen/support/drawn_texts.h"
#include "screen/support/player.h"
#include "support/fake_host.h"
#include "support/own_folder.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/places.h"
#include "ui/score_pages.h"
#include "ui/texts.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

#include <filesystem>

// What the score sheet shows, and how it is turned over.

namespace
{

using Slots = Table<int, RESULT_SLOT_COUNT>;

// The first sprint and the first places of the finish; nobody else has come in.
Slots places(int sprintWinner, std::initializer_list<int> finish)
{
    Slots slots = filled<int, RESULT_SLOT_COUNT>(-1);
    slots[0] = sprintWinner;
    int next = FINISH_SLOT;
    for (const int rider : finish)
        slots[next++] = rider;
    return slots;
}

// In the third stage of a race, on its scorecard. Rider 3 has won a sprint and is on his way.
void openThirdStage(GameState from = STATE_TURN)
{
    startProgram(1280, 1024);
    raceSetup.raceStages = {{{}, places(0, {0, 1, 2})}, {{}, places(4, {4, 5, 6, 7})}};
    raceSetup.standingsFileName = "Twelve chars.csv";
    race.resultSlots = places(3, {0, 1, 2, 8, 9, 10, 11});
    view.scorecardGeneral = true; // looked at last
    gameState = from;
    openScorecard();
}

float sheetX(float u)
{
    return layout.scorecardX + u * layout.scorecardW / 1072.0f;
}
float sheetY(float v)
{
    return layout.scorecardY + v * layout.scorecardPicH / 1419.0f;
}

// What stands on a part of the sheet, in the units of the paper.
std::string wordsOnSheet(float left, float top, float right, float bottom)
{
    return wordsAt(
        {sheetX(left), sheetY(top), sheetX(right) - sheetX(left), sheetY(bottom) - sheetY(top)});
}

// Of the table of the four teams, a line for each rider and one of the sums.
std::string teamTable()
{
    return wordsOnSheet(450.0f, 950.0f, 1072.0f, 1330.0f);
}

bool hasWord(const std::string& word)
{
    for (const DrawnText& text : drawnTexts())
        if (text.words == word)
            return true;
    return false;
}

} // namespace

TEST(Scorecard, AStageInProgressKeepsSilentOnWhoIsStillToCome)
{
    openThirdStage();
    EXPECT_TRUE(hasWord("Standings stage 3")) << "not the general classification";
    EXPECT_EQ(teamTable(), "50|40|35||||||32|30|28|26|||||||116|");
    view.scorecardStage = 0;
    EXPECT_TRUE(hasWord("Result stage 1"));
    EXPECT_EQ(wordsOnSheet(270.0f, 370.0f, 410.0f, 480.0f), "10|60|0|40");
    EXPECT_EQ(teamTable(), "60|40|35|0|0|0|0|0|0|0|0|0|0|0|0|0|135|0|0|0");
}

TEST(Scorecard, TheResultOfASingleStageGivesADisqualifiedRiderNothing)
{
    openThirdStage();
    raceSetup.multiStage = false;
    raceSetup.raceStages.clear();
    race.resultSlots = places(0, {0, 1, 2});
    race.riders[3].disqualified = 1;
    view.scorecardGeneral = true; // left over from another race
    gameState = STATE_FINAL_SCORECARD;
    EXPECT_EQ(teamTable(), "60|40|35|0|||||||||||||135|0|0|0");
    EXPECT_EQ(scorePageTitle(), "");
    EXPECT_FALSE(mayShowGeneral() || mayTurnBack() || mayTurnOn() || mayShowStage());
}

TEST(Scorecard, AShorterRaceIsShownByItsLastStageAndOneWithoutByAnEmptyPage)
{
    openThirdStage();
    gameState = STATE_RACE_STANDINGS;
    view.scorecardGeneral = false;
    view.scorecardStage = 7;
    EXPECT_EQ(scorePageTitle(), "Result stage 2");
    EXPECT_EQ(shownSlots()[0], 4);
    raceSetup.raceStages.clear();
    EXPECT_TRUE(hasWord("Result stage 1"));
    EXPECT_EQ(shownSlots(), places(-1, {})) << "the race in memory is another one";
    Player().click(CONTROL_GENERAL);
    EXPECT_FALSE(view.scorecardGeneral);
}

TEST(Scorecard, TheGeneralPageSumsUpTheStages)
{
    openThirdStage();
    Player().click(CONTROL_GENERAL);
    EXPECT_TRUE(hasWord("General classification after stage 2"));
    EXPECT_EQ(
        wordsOnSheet(260.0f, 180.0f, 830.0f, 420.0f),
        "1|Netherlands|(31-34)|167|2|Belgium|(21-24)|135|3|Germany|(41-44)|0|4|France|(51-54)|0");
}

TEST(Scorecard, PagesTurnAsFarAsThereAreStages)
{
    openThirdStage();
    Player player;
    const auto at = [](int stage) { return view.scorecardStage == stage; };
    player.special(GLUT_KEY_RIGHT);
    EXPECT_TRUE(at(2));
    player.special({GLUT_KEY_LEFT, GLUT_KEY_LEFT, GLUT_KEY_LEFT});
    EXPECT_TRUE(at(0));
    player.click(CONTROL_NEXT_STAGE);
    EXPECT_TRUE(at(1));
    gameState = STATE_FINAL_SCORECARD;
    player.click(CONTROL_NEXT_STAGE);
    EXPECT_TRUE(at(1)) << "the stage that ran is the last record now";
    player.click({CONTROL_PREVIOUS_STAGE, CONTROL_GENERAL});
    player.special(GLUT_KEY_RIGHT);
    EXPECT_TRUE(at(0)) << "no arrows on the general page";
    player.click(CONTROL_STAGE);
    EXPECT_TRUE(!view.scorecardGeneral && at(1)) << "the last one there is";
}

TEST(Scorecard, DutchGeneralHasTheLetterOfQuitWhereThereIsNone)
{
    openThirdStage();
    settings.language = LANGUAGE_DUTCH;
    loadTexts();
    Player player;
    player.key('t');
    EXPECT_EQ(gameState, STATE_SCORECARD);
    EXPECT_TRUE(view.scorecardGeneral);
    view.scorecardGeneral = false;
    gameState = STATE_FINAL_SCORECARD;
    player.key('t');
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    EXPECT_FALSE(view.scorecardGeneral);
    settings = {};
    loadTexts();
}

TEST(Scorecard, OkForgetsTheMessageAndLetsTheMoveGoOn)
{
    const OwnFolder folder;
    openThirdStage(STATE_ANIMATE);
    Player player;
    player.key('x');
    EXPECT_TRUE(hasWord("Standings written to \"Twelve chars.csv\"."));
    EXPECT_TRUE(std::filesystem::exists("Twelve chars.csv"));
    fakeHost.pendingMs = -1;
    player.click(CONTROL_SHEET_OK);
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(view.exportStatus, EXPORT_NONE);
    EXPECT_EQ(fakeHost.pendingMs, 0);
}

TEST(Scorecard, SprintPawnsOfAFinishedStageAreThoseOfFinishers)
{
    openThirdStage();
    raceSetup.raceStages[0].slots = race.resultSlots;
    const auto sprintPawn = [] {
        drawFrame();
        return screenshot().at(sheetX(690.0f), sheetY(614.0f) - 8.0f);
    };
    EXPECT_EQ(sprintPawn(), pixelOf(teamColour[0]));
    view.scorecardStage = 0;
    EXPECT_NE(sprintPawn(), pixelOf(teamColour[0]));
}

TEST(Scorecard, TheMessageOfTheExportCoversNoResultAndNoButton)
{
    openThirdStage();
    for (const auto& [width, height] : {std::pair{1280, 1024}, {1920, 1080}, {1024, 768}})
        for (const bool general : {false, true}) {
            resizeScreen(width, height);
            view.scorecardGeneral = general;
            view.exportStatus = EXPORT_FAILED;
            int lines = 0;
            for (const DrawnText& text : drawnTexts())
                if (text.colour == pixelOf(FAILURE_RED)) {
                    ++lines;
                    EXPECT_GT(text.place.y, sheetY(general ? 1010.0f : 1324.0f)) << width;
                    EXPECT_LT(text.place.y + text.place.h, placeOf(CONTROL_EXPORT).y) << width;
                }
            EXPECT_EQ(lines, 2);
        }
}
