#include "app/game_state.h"
#include "app/view.h"
#include "board/course.h"
#include "race/race_state.h"
#include "race/scoring.h"
#include "screen/support/gl_window.h"
#include "support/races.h"
#include "screen/support/old_places.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/score_pages.h"
#include "ui/texts.h"

#include <gtest/gtest.h>

// What the score sheet and the overview of the positions show.

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
void openThirdStage()
{
    startProgram(640, 512);
    raceSetup.multiStage = true;
    raceSetup.raceStages = {{{}, places(0, {0, 1, 2})}, {{}, places(4, {4, 5, 6, 7})}};
    race.resultSlots = places(3, {0, 1, 2, 8, 9, 10, 11});
    gameState = STATE_SCORECARD;
    view.scorecardStage = 2;
}

StagePoints shownPoints()
{
    return stagePoints(shownSlots(), shownStageRuns());
}

float sheetX(float u)
{
    return layout.scorecardX + u * layout.scorecardW / 1072.0f;
}
float sheetY(float v)
{
    return layout.scorecardY + v * layout.scorecardPicH / 1419.0f;
}

// Beside the number of a pawn.
Pixel pawnPixel(const Image& image, float u, float v)
{
    return image.at(sheetX(u), sheetY(v) - 8.0f);
}

// The first and the last line in which two screens differ.
struct Lines {
    int first = -1;
    int last = -1;
};

Lines differingLines(const Image& a, const Image& b)
{
    Lines lines;
    for (int y = 0; y < a.height; ++y)
        for (int x = 0; x < a.width; ++x)
            if (a.at(x, y) != b.at(x, y)) {
                lines.first = lines.first == -1 ? y : lines.first;
                lines.last = y;
            }
    return lines;
}

} // namespace

TEST(ScorePages, AStageInProgressKeepsSilentOnWhoIsStillToCome)
{
    openThirdStage();
    const StagePoints points = shownPoints();
    EXPECT_EQ(riderTotalText(points, 0), "50");
    EXPECT_EQ(riderTotalText(points, 3), "");
    EXPECT_EQ(teamTotalText(points, 0), "") << "three of four are in";
    EXPECT_EQ(teamTotalText(points, 2), "116");
    EXPECT_EQ(teamTotalText(points, 3), "");
}

TEST(ScorePages, AFinishedStageGivesEverybodyATotal)
{
    openThirdStage();
    view.scorecardStage = 0;
    const StagePoints points = shownPoints();
    EXPECT_EQ(riderTotalText(points, 0), "60");
    EXPECT_EQ(riderTotalText(points, 3), "0");
    EXPECT_EQ(teamTotalText(points, 0), "135");
    EXPECT_EQ(teamTotalText(points, 3), "0");
}

TEST(ScorePages, TheResultOfASingleStageGivesADisqualifiedRiderNothing)
{
    startProgram(640, 512);
    raceSetup.multiStage = false;
    race.resultSlots = places(0, {0, 1, 2});
    race.riders[3].disqualified = 1;
    gameState = STATE_FINAL_SCORECARD;
    const StagePoints points = shownPoints();
    EXPECT_EQ(riderTotalText(points, 3), "0");
    EXPECT_EQ(riderTotalText(points, 4), "");
    EXPECT_EQ(teamTotalText(points, 0), "135");
    EXPECT_EQ(scorePageTitle(), "");
    EXPECT_FALSE(mayShowGeneral() || mayTurnBack() || mayTurnOn());
    view.scorecardGeneral = true; // left over from another race
    EXPECT_FALSE(generalPageShown());
}

TEST(ScorePages, TheRunningStageIsTheLastOneOnlyWhileTheRaceIsOn)
{
    openThirdStage();
    EXPECT_EQ(scorePageTitle(), "Standings stage 3");
    EXPECT_FALSE(mayTurnOn());
    view.scorecardStage = 1;
    EXPECT_EQ(scorePageTitle(), "Result stage 2");
    EXPECT_TRUE(mayTurnOn());
    gameState = STATE_FINAL_SCORECARD;
    EXPECT_FALSE(mayTurnOn());
    EXPECT_TRUE(mayTurnBack());
    view.scorecardGeneral = true;
    EXPECT_EQ(scorePageTitle(), "General classification after stage 2");
    EXPECT_FALSE(mayTurnBack() || mayShowGeneral());
    EXPECT_TRUE(mayShowStage());
}

TEST(ScorePages, AShorterRaceIsShownByItsLastStage)
{
    openThirdStage();
    gameState = STATE_RACE_STANDINGS;
    view.scorecardStage = 7;
    EXPECT_EQ(scorePageTitle(), "Result stage 2");
    EXPECT_EQ(shownSlots()[0], 4);
    raceSetup.raceStages.clear();
    EXPECT_EQ(scorePageTitle(), "Result stage 1");
    EXPECT_EQ(shownSlots(), (filled<int, RESULT_SLOT_COUNT>(-1)))
        << "the race in memory is another one";
    EXPECT_FALSE(mayShowGeneral());
    drawFrame();
}

TEST(Scorecard, SprintPawnsOfAFinishedStageAreThoseOfFinishers)
{
    openThirdStage();
    resizeScreen(1280, 1024);
    raceSetup.raceStages[0].slots = race.resultSlots;
    drawFrame();
    EXPECT_EQ(pawnPixel(screenshot(), 690.0f, 614.0f), pixelOf(teamColour[0]));
    EXPECT_EQ(pawnPixel(screenshot(), 159.0f, 395.0f + 3 * 59.6f), pixelOf(teamColour[2]));
    view.scorecardStage = 0;
    drawFrame();
    EXPECT_NE(pawnPixel(screenshot(), 690.0f, 614.0f), pixelOf(teamColour[0]));
}

TEST(Scorecard, TheMessageOfTheExportCoversNoResultAndNoButton)
{
    openThirdStage();
    raceSetup.standingsFileName = "Twelve chars.csv";
    for (const auto& [width, height] : {std::pair{1280, 1024}, {1920, 1080}, {1024, 768}})
        for (const bool general : {false, true}) {
            resizeScreen(width, height);
            view.scorecardGeneral = general;
            view.exportStatus = EXPORT_NONE;
            drawFrame();
            const Image before = screenshot();
            view.exportStatus = EXPORT_FAILED;
            drawFrame();
            const Lines lines = differingLines(before, screenshot());
            const int top = layout.viewY;
            EXPECT_GT(lines.first, top + static_cast<int>(sheetY(general ? 1010.0f : 1324.0f)));
            EXPECT_LT(lines.last, top + static_cast<int>(exportButton().y));
            EXPECT_GT(lines.last - lines.first, 20) << "two lines";
        }
}

TEST(Positions, RidersOffTheBoardAreDimAndFinishersGone)
{
    startProgram(1280, 1024);
    startSeededRace("01S23S4S5F12", 3);
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        race.riders[rider].finished = rider > 2;
    race.riders[1].offBoard = 1;
    race.sprintWinner = 2;
    gameState = STATE_POSITIONS;
    drawFrame();
    const Image image = screenshot();
    const auto pawn = [&](int place) {
        return image.at(static_cast<float>(layout.viewW) *
                            (0.35f + 0.1f * static_cast<float>(place)),
                        static_cast<float>(layout.viewH) * 0.82f + 9.0f);
    };
    EXPECT_EQ(pawn(0), pixelOf(teamColour[0]));
    EXPECT_TRUE(closeTo(pawn(1), pixelOf(teamColourDim[0]), 1));
    EXPECT_EQ(pawn(2), pixelOf(YELLOW));
    EXPECT_EQ(pawn(3), pixelOf(panelBlue));
}
