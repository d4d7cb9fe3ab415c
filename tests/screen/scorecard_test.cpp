#include "play/overlays.h"
#include "screen/support/drawn_texts.h"
#include "screen/support/player.h"
#include "store/golden_files.h"
#include "ui/frame.h"
#include "ui/score_pages.h"

#include <algorithm>

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
class Scorecard : public ScreenTest
{
protected:
    void SetUp() override
    {
        ScreenTest::SetUp();
        raceSetup.raceStages = {{{}, places(0, {0, 1, 2})}, {{}, places(4, {4, 5, 6, 7})}};
        raceSetup.standingsFileName = "Twelve chars.csv";
        race.resultSlots = places(3, {0, 1, 2, 8, 9, 10, 11});
        view.scorecardGeneral = true; // looked at last
        gameState = STATE_ANIMATE;
        openScorecard();
    }

    // Whether the sheet is turned to this stage, from 0.
    static bool at(int stage) { return !view.scorecardGeneral && view.scorecardStage == stage; }
};

// A part of the sheet, told in the units of the paper.
Rect onSheet(float left, float top, float right, float bottom)
{
    const float x = layout.scorecardW / 1072.0f;
    const float y = layout.scorecardPicH / 1419.0f;
    return {layout.scorecardX + left * x, layout.scorecardY + top * y, (right - left) * x,
            (bottom - top) * y};
}

// The table of the four teams, a line for each rider and one of the sums.
std::string teamTable()
{
    return wordsAt(onSheet(450.0f, 950.0f, 1072.0f, 1330.0f));
}

} // namespace

TEST_F(Scorecard, AStageInProgressKeepsSilentOnWhoIsStillToCome)
{
    EXPECT_TRUE(screenSays("Standings stage 3")) << "not the general classification";
    EXPECT_EQ(teamTable(), "50|40|35||||||32|30|28|26|||||||116|");
    view.scorecardStage = 0;
    EXPECT_TRUE(screenSays("Result stage 1"));
    EXPECT_EQ(wordsAt(onSheet(270.0f, 370.0f, 410.0f, 480.0f)), "10|60|0|40");
    EXPECT_EQ(teamTable(), "60|40|35|0|0|0|0|0|0|0|0|0|0|0|0|0|135|0|0|0");
}

TEST_F(Scorecard, TheResultOfASingleStageGivesADisqualifiedRiderNothing)
{
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

TEST_F(Scorecard, AShorterRaceIsShownByItsLastStageAndOneWithoutByAnEmptyPage)
{
    gameState = STATE_RACE_STANDINGS;
    view.scorecardStage = 7;
    EXPECT_TRUE(screenSays("Result stage 2"));
    EXPECT_EQ(shownSlots()[0], 4);
    raceSetup.raceStages.clear();
    EXPECT_TRUE(screenSays("Result stage 1"));
    EXPECT_EQ(shownSlots(), places(-1, {})) << "the race in memory is another one";
    player.click(CONTROL_GENERAL);
    EXPECT_FALSE(view.scorecardGeneral);
}

TEST_F(Scorecard, TheGeneralPageSumsUpTheStages)
{
    player.click(CONTROL_GENERAL);
    EXPECT_TRUE(screenSays("General classification after stage 2"));
    EXPECT_EQ(
        wordsAt(onSheet(260.0f, 180.0f, 830.0f, 420.0f)),
        "1|Netherlands|(31-34)|167|2|Belgium|(21-24)|135|3|Germany|(41-44)|0|4|France|(51-54)|0");
}

TEST_F(Scorecard, PagesTurnAsFarAsThereAreStages)
{
    player.special(GLUT_KEY_RIGHT);
    EXPECT_TRUE(at(2));
    player.special({GLUT_KEY_LEFT, GLUT_KEY_LEFT, GLUT_KEY_LEFT});
    EXPECT_TRUE(at(0));
    player.click(CONTROL_NEXT_STAGE);
    gameState = STATE_FINAL_SCORECARD;
    player.click(CONTROL_NEXT_STAGE);
    EXPECT_TRUE(at(1)) << "the stage that ran is the last record now";
    player.click({CONTROL_PREVIOUS_STAGE, CONTROL_GENERAL});
    player.special(GLUT_KEY_RIGHT); // no arrows on the general page
    view.scorecardGeneral = false;
    EXPECT_TRUE(at(0));
    player.click({CONTROL_GENERAL, CONTROL_STAGE});
    EXPECT_TRUE(at(1)) << "the last one there is";
}

TEST_F(Scorecard, AnExportIsToldAndOkForgetsItAndLetsTheMoveGoOn)
{
    std::filesystem::create_directory("Twelve chars.csv");
    player.key('x');
    EXPECT_EQ(std::ranges::count(drawnTexts(), pixelOf(FAILURE_RED), &DrawnText::colour), 2);
    std::filesystem::remove("Twelve chars.csv");
    player.key('x');
    EXPECT_TRUE(screenSays("Standings written to \"Twelve chars.csv\"."));
    const std::string sheet = bytesOfFile("Twelve chars.csv");
    EXPECT_NE(sheet.find("Standings stage 3"), sheet.npos);
    EXPECT_NE(sheet.find("Result stage 1"), sheet.npos);
    player.click(CONTROL_SHEET_OK);
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(view.exportStatus, EXPORT_NONE);
    EXPECT_EQ(fakeHost.pendingMs, 0);
}

TEST_F(Scorecard, SprintPawnsOfAFinishedStageAreThoseOfFinishers)
{
    raceSetup.raceStages[0].slots = race.resultSlots;
    const auto sprintPawn = [] {
        drawFrame();
        const Rect place = onSheet(690.0f, 614.0f, 690.0f, 614.0f);
        return screenshot().at(place.x, place.y - 8.0f);
    };
    EXPECT_EQ(sprintPawn(), pixelOf(teamColour[0]));
    view.scorecardStage = 0;
    EXPECT_NE(sprintPawn(), pixelOf(teamColour[0]));
}
