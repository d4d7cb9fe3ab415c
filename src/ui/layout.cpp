#include "ui/layout.h"

#include "app/settings.h"
#include "app/table.h"

#include <algorithm>
#include <cmath>

Layout layout;

constexpr float LIST_COLUMNS = static_cast<float>(raceListCols);
constexpr float LIST_LINES =
    static_cast<float>(raceListRows + 1); // with half a line above and below

// Letters don't get smaller with the window, so that some places have to be made for them.
constexpr float FOOT_LINE_H = 12.0f;
constexpr float SIDE_LABEL_W = 95.5f;     // "Computer player" beside the whole board
constexpr float STACKED_LABELS_H = 21.0f; // for "2D" above "3D"
constexpr float LABELS_ABREAST_W = 38.0f; // for one beside the other

// What the program chose last, to tell whether somebody has chosen otherwise since.
static ScreenRatio guessedRatio = {-1.0, -1.0};

// Lines on a page of the manual; one at least, however low the window.
static float wholeLines(float manualH)
{
    const int lines = (static_cast<int>(manualH) - 40) / 20;
    return static_cast<float>(lines < 1 ? 1 : lines);
}

// clang-format off

static void layoutCardPanel(Layout& l, float viewW, float viewH)
{
    l.hudY        = viewH * 0.761f;
    l.cardPanelX  = viewW * 0.02f;
    l.cardPanelW  = viewW * 0.496f;
    l.cardPanelH  = viewH * 0.176f;
    l.cardW       = static_cast<float>(l.viewW * 3 / 70);
    l.cardH       = static_cast<float>(l.viewH * 12 / 175);
    l.cardGapX    = (l.cardPanelW - 9.0f * l.cardW) / 10.0f;
    l.cardGapY    = (l.cardPanelH - 2.0f * l.cardH) / 3.0f;
    l.teamTabsY   = l.hudY + l.cardPanelH;
    l.teamTabsH   = viewW * 0.02f;
    l.panelBorder = viewW * 0.001f;
}

static void layoutDice(Layout& l)
{
    l.diceX         = l.cardPanelX + l.cardPanelW + l.cardGapX;
    l.breakawayX    = l.diceX + l.cardH + l.cardGapX;
    l.breakawayY    = l.hudY + l.cardH * 6.0f / 5.0f;
    l.breakawaySize = l.cardH / 3.0f;
    l.throwButtonY  = l.hudY + l.cardH * 6.0f / 5.0f;
    l.throwButtonH  = l.cardH / 3.0f;
    l.handInY       = l.throwButtonY + l.throwButtonH + l.cardGapX;
    l.handInOkY     = l.handInY + l.cardH + l.cardH / 5.0f;
    // On a low window the foot line would run into the button.
    if (l.handInOkY + l.throwButtonH > static_cast<float>(l.viewH) - FOOT_LINE_H) {
        l.handInY   = l.throwButtonY + l.throwButtonH + 2.0f;
        l.handInOkY = l.handInY + l.cardH + 2.0f;
    }
    l.eventSlotX    = l.diceX + 2.0f * l.cardH + 3.0f * l.cardGapX;
    l.hudCol3X      = l.diceX + 2.0f * l.cardH + 3.0f * l.cardGapX;
    l.extraThrowY   = l.hudY + l.cardH + l.throwButtonH * 0.5f;
}

static void layoutBoxes(Layout& l, float viewW, float viewH)
{
    l.teamBoxX      = l.hudCol3X + l.cardH;
    l.teamBoxW      = viewW * 0.14f + 28.0f;
    l.teamBoxH      = 28.0f;
    l.movesBoxY     = l.extraThrowY + l.throwButtonH * 1.3f;
    l.movesBoxW     = viewH * 0.15f;
    l.movesRowH     = viewH * 0.04f;
    l.bonusRowH     = viewH * 0.04f;
    l.movesLeftBoxY = l.movesBoxY + l.movesRowH + l.bonusRowH;
    l.movesLeftBoxW = viewH * 0.15f;
    l.movesLeftBoxH = viewH * 0.04f;
    l.roundBoxX     = l.hudCol3X + l.movesLeftBoxW;
    l.roundBoxW     = viewH * 0.135f;
    l.roundBoxH     = viewH * 0.04f;
    l.lapBoxX       = l.hudCol3X + l.movesLeftBoxW;
    l.lapBoxY       = l.movesLeftBoxY - l.roundBoxH;
    l.lapBoxW       = viewH * 0.135f;
    l.lapBoxH       = viewH * 0.04f;
    l.orderBoxW     = l.cardH * 2.5f;
}

static void layoutBoard(Layout& l, float viewW, float viewH)
{
    l.boardViewX = viewW * 0.04f;
    l.boardViewY = viewH - l.hudY * 0.99f;
    l.boardViewW = viewW * 0.92f;
    l.boardViewH = l.boardViewW * 1152.0f / 1954.0f / aspectFix();
}

static void layoutButtons(Layout& l, float viewW, float viewH)
{
    l.buttonW          = viewW * 0.064f;
    l.buttonH          = viewH * 0.03f;
    l.sideButtonW      = viewW * 0.08f;
    l.viewToggleX      = viewW - l.buttonW * 1.5f;
    l.viewToggleW      = l.buttonH < STACKED_LABELS_H ? LABELS_ABREAST_W : l.buttonH;
    l.cameraButtonX    = std::max(viewW - l.buttonW * 1.5f + l.sideButtonW - l.buttonH,
                                  l.viewToggleX + l.viewToggleW + 2.0f);
    l.sideButtonX      = viewW - l.buttonW * 1.5f;
    l.cornerButtonX    = viewW - l.buttonW * 1.5f;
    l.cornerButtonY    = viewH - 20.0f - l.buttonH * 1.1f;
    // Four buttons between the two at the top and "Quit", closer on a low window.
    const float step   = std::min(l.buttonH * 1.2f, (l.cornerButtonY - l.hudY - l.buttonH - 1.0f) / 4.0f);
    l.scorecardButtonY = l.hudY + step;
    l.positionsButtonY = l.hudY + step * 2.0f;
    l.dopingButtonY    = l.hudY + step * 3.0f;
    l.settingsButtonY  = l.hudY + step * 4.0f;
}

static void layoutDialogParts(Layout& l)
{
    l.dialogOkX     = l.dialogX + l.dialogW * 0.5f - l.buttonW * 0.5f;
    l.dialogLeftX   = l.dialogX + l.dialogW * 0.4f - l.buttonW;
    l.dialogRightX  = l.dialogX + l.dialogW * 0.6f;
    l.dialogButtonY = l.dialogY + l.dialogH - l.buttonH * 1.2f;
}

static void layoutDialog(Layout& l, float viewW, float viewH)
{
    l.dialogW   = viewW * 0.4f;
    l.dialogH   = viewW * 0.125f;
    l.dialogX   = viewW * 0.5f - l.dialogW * 0.5f;
    l.dialogY   = viewH * 0.5f - l.dialogH * 0.5f;
    l.titleBarH = viewW * 0.024f;
    layoutDialogParts(l);
}

static void layoutMenu(Layout& l, float viewW, float viewH)
{
    l.menuButtonW   = viewW * 0.24f;
    l.menuButtonH   = viewH * 0.04f;
    l.menuButtonX   = viewW * 0.5f - l.menuButtonW * 0.5f;
    l.menuLanguageY = viewH * 0.3f;
    l.menuManualY   = viewH * 0.4f;
    l.menuSettingsY = viewH * 0.5f;
    l.menuContinueY = viewH * 0.6f;
    l.menuStartY    = viewH * 0.7f;

    l.languageBoxX   = viewW * 0.1f;
    l.languageBoxY   = viewH * 0.1f;
    l.languageBoxW   = viewW * 0.8f;
    l.languageBoxH   = viewH * 0.15f;
    l.languageBoxGap = viewH * 0.067f;
}

static void layoutManual(Layout& l, float viewW, float viewH)
{
    l.manualX      = viewW * 0.1f;
    l.manualY      = 16.0f;
    l.manualW      = viewW * 0.8f;
    l.manualH      = l.cornerButtonY * 0.97f;
    l.manualInset  = viewW * 0.01f;
    l.linesPerPage = wholeLines(l.manualH);
    l.prevPageX    = viewW * 0.325f;
    l.pageButtonW  = viewW * 0.1f;
    l.nextPageX    = viewW * 0.325f + l.pageButtonW * 2.5f;
    l.pageNumberX  = (l.prevPageX + l.pageButtonW + l.nextPageX) * 0.5f;
    l.pageNumberY  = viewH - 20.0f - l.buttonH * 0.6f;
}

static void layoutTeamSetup(Layout& l, float viewW, float viewH)
{
    l.teamNameX     = viewW * 0.4f;
    l.teamNameY     = viewH * 0.4f;
    l.teamNameW     = 97.0f;
    l.teamNameH     = 15.0f;
    l.teamRowStep   = std::max(viewH * 0.01f + 15.0f, viewH * 0.02f + 1.0f);
    l.teamRowStep   = std::min(l.teamRowStep, (viewH * 0.14f - 1.0f - l.teamNameH) / 3.0f);
    l.teamCheckX    = l.teamNameX + l.teamNameW * 1.2f;
    l.teamCheckSize = viewH * 0.02f;
    l.teamOkX       = viewW * 0.5f - l.buttonW * 0.5f;
    l.teamOkY       = viewH * 0.68f;
    l.eventCheckX   = viewW * 0.4f;
    l.eventCheckY   = viewH * 0.645f;
    l.stageRadioX   = viewW * 0.4f;
    l.multiStageY   = viewH * 0.55f;
    l.singleStageY  = viewH * 0.61f;
    l.stageRowH     = viewH * 0.02f;
    l.raceNameX     = viewW * 0.545f;
    l.raceNameW     = 96.0f;
}

static void layoutCourseSelection(Layout& l, float viewW, float viewH)
{
    l.coursePicW         = viewW * 0.38f;
    l.coursePicH         = l.coursePicW * 1152.0f / 1954.0f / aspectFix();
    l.coursePicX         = viewW * 0.5f - l.coursePicW * 1.1f;
    l.coursePicY         = viewH * 0.17f;
    l.coursePicGapX      = viewW - 2.0f * l.coursePicW - 2.0f * l.coursePicX;
    l.coursePicGapY      = viewH * 0.08f;
    l.courseLineH        = viewH * 0.02f;
    l.savedCourseButtonX = viewW * 0.25f;
    l.newCourseButtonX   = viewW * 0.55f;
    l.courseButtonY      = viewH * 0.93f;
    l.courseButtonW      = viewW * 0.2f;
}

static void layoutCourseDesigner(Layout& l, float viewW, float viewH)
{
    l.designTitleX       = viewW * 0.1f;
    l.designTitleY       = viewH * 0.78f;
    l.designTitleStep    = viewH * 0.02f;
    l.sectionRadioX      = viewW * 0.45f;
    l.sectionRadioY      = viewH * 0.8f;
    l.sectionRadioStep   = viewH * 0.02f;
    l.sprintCheckX       = viewW * 0.45f;
    l.sprintCheckY       = viewH * 0.85f;
    l.finishCheckX       = viewW * 0.45f;
    l.finishCheckY       = viewH * 0.875f;
    l.designCheckSize    = viewH * 0.02f;
    l.prevSectionButtonX = viewW * 0.3f;
    l.addButtonX         = viewW * 0.5f - l.buttonW * 0.5f;
    l.saveCourseButtonX  = viewW * 0.8f - l.buttonW * 0.5f;
    l.designButtonY      = viewH * 0.9f;
    l.designButtonW      = viewW * 0.13f;
}

static void layoutSavedCourses(Layout& l, float viewW, float viewH)
{
    l.prevCourseButtonX = viewW * 0.24f;
    l.nextCourseButtonX = viewW * 0.3f + 180.0f;
    l.savedButtonY      = viewH * 0.92f;
    l.savedButtonW      = viewW * 0.06f;
    l.savedOkX          = l.nextCourseButtonX + l.savedButtonW * 1.5f;
    l.savedTitleX       = viewW * 0.3f + 5.0f;
    l.savedTitleY       = viewH * 0.8f;
    l.savedTitleStep    = viewH * 0.02f;
}

static void layoutSettings(Layout& l, float viewW, float viewH)
{
    l.settingsTitleY  = viewH * 0.2f;
    l.movementFrameY  = viewH * 0.22f;
    l.movementFrameH  = viewH * 0.2f;
    l.ratioFrameY     = viewH * 0.45f;
    l.ratioFrameH     = viewH * 0.14f;
    l.settingsFrameW  = viewW * 0.25f;
    l.frameTitleInset = viewW * 0.01f;
    l.movementRadioX  = viewW * 0.4f;
    l.smoothRadioY    = viewH * 0.25f;
    l.stepwiseRadioY  = viewH * 0.33f;
    l.settingsRowH    = std::max(viewH * 0.02f, 12.0f);
    l.movementFrameX  = l.movementRadioX - l.settingsRowH * 1.5f;
    l.delayFieldX     = viewW * 0.5f;
    l.stepTimeFieldX  = viewW * 0.54f;
    l.settingsFieldW  = 25.0f;
    l.ratioRadioX     = viewW * 0.4f;
    l.ratioFrameX     = l.ratioRadioX - l.settingsRowH * 1.5f;
    l.ratio54Y        = viewH * 0.48f;
    l.ratio43Y        = viewH * 0.52f;
    l.ratio1610Y      = viewH * 0.56f;
    l.defaultButtonX  = l.movementFrameX + l.settingsRowH;
    l.defaultButtonY  = viewH * 0.37f;
    l.defaultButtonW  = viewW * 0.15f;
    l.settingsOkX     = l.ratioFrameX + l.settingsFrameW - l.buttonW * 2.2f;
    l.settingsOkY     = viewH * 0.62f;
    l.settingsCancelX = l.settingsOkX + l.buttonW * 1.1f;
}

static void layoutRaceList(Layout& l, float viewW, float viewH)
{
    l.raceListX      = viewW * 0.2f;
    l.raceListY      = viewH * 0.2f;
    l.raceListRowH   = 12.0f;
    l.raceListColW   = std::min(120.0f, (viewW - l.raceListX - l.buttonW) / LIST_COLUMNS);
    l.raceListInset  = 4.0f;
    l.raceTeamRowH   = viewH * 0.03f;
    l.listPrevX      = l.raceListX - l.buttonW;
    l.listNextX      = l.raceListX + LIST_COLUMNS * l.raceListColW;
    l.listArrowY     = l.raceListY + LIST_LINES * l.raceListRowH * 0.5f - l.buttonH * 0.5f;
    // On a low window the teams of a race stand beside the buttons.
    const float aside = viewH < 560.0f ? viewW * 0.15f : 0.0f;
    l.listOkX        = viewW * 0.5f + l.buttonW * 0.6f + aside;
    l.listScorecardX = viewW * 0.5f - l.buttonW * 0.5f + aside;
    l.listButtonY    = viewH * 0.8f;
}

static void layoutLoading(Layout& l, float viewW, float viewH)
{
    l.loadingTextX    = viewW * 0.31f;
    l.loadingTextY    = viewH * 0.46f - 15.0f;
    l.loadingBarX     = viewW * 0.31f;
    l.loadingBarY     = viewH * 0.46f;
    l.loadingBarW     = viewW * 0.28f;
    l.loadingBarH     = viewH * 0.08f;
    l.loadingBarInset = viewW * 0.01f;
}

static void layoutScorecardParts(Layout& l)
{
    l.scorecardOkX           = l.scorecardX + l.scorecardW * 0.85f - l.buttonW * 0.5f;
    l.scorecardBottomButtonY = l.scorecardY + l.scorecardH - l.buttonH * 1.2f;
    l.exportButtonX          = l.scorecardX + l.scorecardW * 0.645f - l.exportButtonW * 0.5f;
    l.stageArrowY            = l.scorecardY + l.scorecardH * 0.016f;
    l.prevStageX             = l.scorecardX + l.scorecardW * 0.05f;
    l.nextStageX             = l.scorecardX + l.scorecardW - l.scorecardW * 0.05f - l.stageArrowW;
    l.stageTitleX            = l.scorecardX + l.scorecardW * 0.5f;
    l.stageTitleY            = l.scorecardY + l.scorecardH * 0.016f + l.buttonH * 0.5f;
    const float tabGap       = l.scorecardW < 288.0f ? 3.0f : l.scorecardW * 0.05f;
    l.generalViewButtonX     = l.scorecardX + tabGap;
    l.stageViewButtonX       = l.generalViewButtonX + l.stageViewButtonW + tabGap;
}

static void layoutScorecard(Layout& l, float viewW, float viewH)
{
    l.scorecardW       = viewW * 0.4f;
    l.scorecardPicH    = l.scorecardW * 1419.0f / 1072.0f;
    l.scorecardX       = viewW * 0.5f - l.scorecardW * 0.5f;
    l.scorecardY       = std::max(viewH * 0.75f - l.scorecardPicH, l.titleBarH);
    l.scorecardH       = l.scorecardPicH + viewH * 1.5f * 0.03f;
    l.exportButtonW    = viewW * 0.08f;
    l.stageArrowW      = viewW * 0.016f;
    l.stageViewButtonW = viewW * 0.08f;
    l.scorecardInnerX  = l.scorecardW * 0.5f - l.scorecardW * 0.5f * 0.543f;
    l.scorecardInnerY  = l.scorecardPicH * 0.36f;
    layoutScorecardParts(l);
}

static void layoutOverview(Layout& l, float viewW, float viewH)
{
    l.overviewX         = std::max(viewW * 0.1f, SIDE_LABEL_W);
    l.overviewW         = std::min(viewW * 0.8f, viewW - 2.0f * l.overviewX);
    l.overviewH         = l.overviewW * 1152.0f / 1954.0f / aspectFix();
    l.overviewY         = viewH * 0.46f - l.overviewH * 0.5f;
    l.overviewTitleX    = viewW * 0.05f;
    l.overviewTitleY    = viewH * 0.81f;
    l.overviewTitleStep = viewH * 0.02f;
}

// clang-format on

static bool hasRatio(const ScreenRatio& ratio)
{
    return settings.ratioW == ratio.w && settings.ratioH == ratio.h;
}

static bool ratioKnown()
{
    for (const ScreenRatio& ratio : SCREEN_RATIOS)
        if (hasRatio(ratio))
            return true;
    return false;
}

// Wide monitors of whatever shape take 16:10; between the three the nearest is the least distorted.
static ScreenRatio nearestRatio(double quotient)
{
    ScreenRatio nearest = SCREEN_RATIOS[0];
    for (const ScreenRatio& ratio : SCREEN_RATIOS)
        if (std::abs(quotient - ratio.w / ratio.h) < std::abs(quotient - nearest.w / nearest.h))
            nearest = ratio;
    return nearest;
}

// A window without any area says nothing about the monitor: the choice waits for the next size.
static void chooseRatio()
{
    if (ratioChosenByProgram && !hasRatio(guessedRatio))
        ratioChosenByProgram = false;
    if (ratioKnown() && !ratioChosenByProgram)
        return;
    if (layout.windowW <= 0 || layout.windowH <= 0)
        return;

    guessedRatio = nearestRatio(static_cast<double>(layout.windowW) / layout.windowH);
    settings.ratioW = guessedRatio.w;
    settings.ratioH = guessedRatio.h;
    ratioChosenByProgram = true;
}

float aspectFix()
{
    if (layout.viewW <= 0 || layout.viewH <= 0)
        return 1.0f;
    return (static_cast<float>(layout.viewW) / 5.0f) / (static_cast<float>(layout.viewH) / 4.0f);
}

// The drawing area keeps the physical shape 5:4: where the program chose, simply the largest that
// the window holds. A ratio that somebody chose says how the monitor's pixels are shaped; of a
// window wider than 16:10 the middle 16:10 count, of one narrower than 5:4 the middle 5:4.
void updateDrawingArea()
{
    constexpr double least = 1e-6; // so that no whole number is missed by a hair
    const double windowW = layout.windowW;
    const double windowH = layout.windowH;
    const double countedW = std::min(windowW, windowH * 1.6);
    const double countedH = std::min(windowH, windowW * 0.8);
    double viewW = std::min(windowW, windowH * 1.25);
    if (ratioKnown() && !ratioChosenByProgram)
        viewW =
            countedW * (1.0 - (settings.ratioW - 5.0 * settings.ratioH / 4.0) / settings.ratioW);

    layout.viewW = static_cast<int>(viewW + least);
    layout.viewH = static_cast<int>(countedH + least);
    layout.viewX = static_cast<int>((layout.windowW - layout.viewW) * 0.5);
    layout.viewY = static_cast<int>((layout.windowH - layout.viewH) * 0.5);
}

void computeLayout(int windowW, int windowH)
{
    layout.windowW = windowW;
    layout.windowH = windowH;
    chooseRatio();
    updateDrawingArea();

    const float viewW = static_cast<float>(layout.viewW);
    const float viewH = static_cast<float>(layout.viewH);
    layoutCardPanel(layout, viewW, viewH);
    layoutDice(layout);
    layoutBoxes(layout, viewW, viewH);
    layoutBoard(layout, viewW, viewH);
    layoutButtons(layout, viewW, viewH);
    layoutDialog(layout, viewW, viewH);
    layoutMenu(layout, viewW, viewH);
    layoutManual(layout, viewW, viewH);
    layoutTeamSetup(layout, viewW, viewH);
    layoutCourseSelection(layout, viewW, viewH);
    layoutCourseDesigner(layout, viewW, viewH);
    layoutSavedCourses(layout, viewW, viewH);
    layoutSettings(layout, viewW, viewH);
    layoutRaceList(layout, viewW, viewH);
    layoutLoading(layout, viewW, viewH);
    layoutScorecard(layout, viewW, viewH);
    layoutOverview(layout, viewW, viewH);
}

void placeDialog(float x, float y)
{
    layout.dialogX = x;
    layout.dialogY = y;
    layoutDialogParts(layout);
}

void placeScorecard(float x, float y)
{
    layout.scorecardX = x;
    layout.scorecardY = y;
    layoutScorecardParts(layout);
}
