#pragma once

// Every place and size on the screen. Nothing has a fixed pixel position: the window's size and the
// screen ratio give one set of metrics, which drawing and hit tests both read. Coordinates are
// logical pixels (see ui/scale) of the drawing area, x to the right, y downward, unless said
// otherwise. The design is a 5:4 screen, so the drawing area stands in the window's middle with
// black bars left and right, or above and below, wherever the monitor has another shape.

constexpr int raceListRows = 20; // names in a column of the race list
constexpr int raceListCols = 4;  // columns on a page of it

struct Layout {
    int windowW = 0; // as last reported
    int windowH = 0;
    int viewW = 0; // the drawing area
    int viewH = 0;
    int viewX = 0; // its offset in the window
    int viewY = 0;

    // The panel at the foot of the race screen.
    float hudY = 0.0f;
    float cardPanelX = 0.0f;
    float cardPanelW = 0.0f;
    float cardPanelH = 0.0f;
    float cardW = 0.0f;
    float cardH = 0.0f;
    float cardGapX = 0.0f;
    float cardGapY = 0.0f;
    float teamTabsY = 0.0f;
    float teamTabsH = 0.0f;
    float panelBorder = 0.0f;
    float diceX = 0.0f;
    float breakawayX = 0.0f;
    float breakawayY = 0.0f;
    float breakawaySize = 0.0f;
    float throwButtonY = 0.0f;
    float throwButtonH = 0.0f;
    float handInY = 0.0f;
    float handInOkY = 0.0f;
    float eventSlotX = 0.0f;
    float hudCol3X = 0.0f;
    float extraThrowY = 0.0f;
    float teamBoxX = 0.0f;
    float teamBoxW = 0.0f;
    float teamBoxH = 0.0f;
    float movesBoxY = 0.0f;
    float movesBoxW = 0.0f;
    float movesRowH = 0.0f;
    float bonusRowH = 0.0f;
    float movesLeftBoxY = 0.0f;
    float movesLeftBoxW = 0.0f;
    float movesLeftBoxH = 0.0f;
    float roundBoxX = 0.0f;
    float roundBoxW = 0.0f;
    float roundBoxH = 0.0f;
    float lapBoxX = 0.0f;
    float lapBoxY = 0.0f;
    float lapBoxW = 0.0f;
    float lapBoxH = 0.0f;
    float orderBoxW = 0.0f;

    // The board's viewport; y counts from the bottom of the window, as OpenGL does.
    float boardViewX = 0.0f;
    float boardViewY = 0.0f;
    float boardViewW = 0.0f;
    float boardViewH = 0.0f;

    // Buttons shared by many screens.
    float buttonW = 0.0f;
    float buttonH = 0.0f;
    float sideButtonW = 0.0f;
    float viewToggleX = 0.0f;
    float viewToggleW = 0.0f;
    float cameraButtonX = 0.0f;
    float sideButtonX = 0.0f;
    float scorecardButtonY = 0.0f;
    float positionsButtonY = 0.0f;
    float dopingButtonY = 0.0f;
    float settingsButtonY = 0.0f;
    float cornerButtonX = 0.0f;
    float cornerButtonY = 0.0f;

    // Dialogs.
    float dialogW = 0.0f;
    float dialogH = 0.0f;
    float dialogX = 0.0f;
    float dialogY = 0.0f;
    float dialogOkX = 0.0f;
    float dialogLeftX = 0.0f;
    float dialogRightX = 0.0f;
    float dialogButtonY = 0.0f;
    float titleBarH = 0.0f;

    // Main menu.
    float menuButtonW = 0.0f;
    float menuButtonH = 0.0f;
    float menuButtonX = 0.0f;
    float menuLanguageY = 0.0f;
    float menuManualY = 0.0f;
    float menuSettingsY = 0.0f;
    float menuContinueY = 0.0f;
    float menuStartY = 0.0f;

    // Language screen.
    float languageBoxX = 0.0f;
    float languageBoxY = 0.0f;
    float languageBoxW = 0.0f;
    float languageBoxH = 0.0f;
    float languageBoxGap = 0.0f;

    // Manual.
    float manualX = 0.0f;
    float manualY = 0.0f;
    float manualW = 0.0f;
    float manualH = 0.0f;
    float manualInset = 0.0f;
    float linesPerPage = 0.0f;
    float prevPageX = 0.0f;
    float pageButtonW = 0.0f;
    float nextPageX = 0.0f;
    float pageNumberX = 0.0f;
    float pageNumberY = 0.0f;

    // Team setup.
    float teamNameX = 0.0f;
    float teamNameY = 0.0f;
    float teamNameW = 0.0f;
    float teamNameH = 0.0f;
    float teamRowStep = 0.0f;
    float teamCheckX = 0.0f;
    float teamCheckSize = 0.0f;
    float teamOkX = 0.0f;
    float teamOkY = 0.0f;
    float eventCheckX = 0.0f;
    float eventCheckY = 0.0f;
    float stageRadioX = 0.0f;
    float multiStageY = 0.0f;
    float singleStageY = 0.0f;
    float stageRowH = 0.0f;
    float raceNameX = 0.0f;
    float raceNameW = 0.0f;

    // Course selection.
    float coursePicW = 0.0f;
    float coursePicH = 0.0f;
    float coursePicX = 0.0f;
    float coursePicY = 0.0f;
    float coursePicGapX = 0.0f;
    float coursePicGapY = 0.0f;
    float courseLineH = 0.0f;
    float savedCourseButtonX = 0.0f;
    float newCourseButtonX = 0.0f;
    float courseButtonY = 0.0f;
    float courseButtonW = 0.0f;

    // Course designer.
    float designTitleX = 0.0f;
    float designTitleY = 0.0f;
    float designTitleStep = 0.0f;
    float sectionRadioX = 0.0f;
    float sectionRadioY = 0.0f;
    float sectionRadioStep = 0.0f;
    float sprintCheckX = 0.0f;
    float sprintCheckY = 0.0f;
    float finishCheckX = 0.0f;
    float finishCheckY = 0.0f;
    float designCheckSize = 0.0f;
    float prevSectionButtonX = 0.0f;
    float addButtonX = 0.0f;
    float saveCourseButtonX = 0.0f;
    float designButtonY = 0.0f;
    float designButtonW = 0.0f;

    // Saved course browser.
    float prevCourseButtonX = 0.0f;
    float nextCourseButtonX = 0.0f;
    float savedOkX = 0.0f;
    float savedButtonY = 0.0f;
    float savedButtonW = 0.0f;
    float savedTitleX = 0.0f;
    float savedTitleY = 0.0f;
    float savedTitleStep = 0.0f;

    // Settings.
    float settingsTitleY = 0.0f;
    float movementFrameX = 0.0f;
    float movementFrameY = 0.0f;
    float movementFrameH = 0.0f;
    float ratioFrameX = 0.0f;
    float ratioFrameY = 0.0f;
    float ratioFrameH = 0.0f;
    float settingsFrameW = 0.0f;
    float frameTitleInset = 0.0f;
    float movementRadioX = 0.0f;
    float smoothRadioY = 0.0f;
    float stepwiseRadioY = 0.0f;
    float settingsRowH = 0.0f;
    float delayFieldX = 0.0f;
    float stepTimeFieldX = 0.0f;
    float settingsFieldW = 0.0f;
    float ratioRadioX = 0.0f;
    float ratio54Y = 0.0f;
    float ratio43Y = 0.0f;
    float ratio1610Y = 0.0f;
    float defaultButtonX = 0.0f;
    float defaultButtonY = 0.0f;
    float defaultButtonW = 0.0f;
    float settingsOkX = 0.0f;
    float settingsOkY = 0.0f;
    float settingsCancelX = 0.0f;

    // Race list.
    float raceListX = 0.0f;
    float raceListY = 0.0f;
    float raceListRowH = 0.0f;
    float raceListColW = 0.0f;
    float raceListInset = 0.0f;
    float raceTeamRowH = 0.0f;
    float listPrevX = 0.0f;
    float listNextX = 0.0f;
    float listArrowY = 0.0f;
    float listOkX = 0.0f;
    float listScorecardX = 0.0f;
    float listButtonY = 0.0f;

    // Loading.
    float loadingTextX = 0.0f;
    float loadingTextY = 0.0f;
    float loadingBarX = 0.0f;
    float loadingBarY = 0.0f;
    float loadingBarW = 0.0f;
    float loadingBarH = 0.0f;
    float loadingBarInset = 0.0f;

    // Scorecard.
    float scorecardW = 0.0f;
    float scorecardPicH = 0.0f;
    float scorecardX = 0.0f;
    float scorecardY = 0.0f;
    float scorecardH = 0.0f;
    float scorecardOkX = 0.0f;
    float scorecardBottomButtonY = 0.0f;
    float exportButtonW = 0.0f;
    float exportButtonX = 0.0f;
    float stageArrowW = 0.0f;
    float stageArrowY = 0.0f;
    float prevStageX = 0.0f;
    float nextStageX = 0.0f;
    float stageTitleX = 0.0f;
    float stageTitleY = 0.0f;
    float stageViewButtonW = 0.0f;
    float generalViewButtonX = 0.0f;
    float stageViewButtonX = 0.0f;
    float scorecardInnerX = 0.0f;
    float scorecardInnerY = 0.0f;

    // Positions overview.
    float overviewW = 0.0f;
    float overviewH = 0.0f;
    float overviewX = 0.0f;
    float overviewY = 0.0f;
    float overviewTitleX = 0.0f;
    float overviewTitleY = 0.0f;
    float overviewTitleStep = 0.0f;
};

extern Layout layout;

// How much wider than high a shape must be in pixels to look round: 1 where the ratio is the
// monitor's own. 1 as well while there is no drawing area.
float aspectFix();

// Sets the drawing area within windowW by windowH from the ratio of the settings.
void updateDrawingArea();

// The whole layout for a window of this size, in pixels; sizes of 0 give an empty drawing area.
// Chooses a ratio first if the settings hold none of the three that are known.
void computeLayout(int windowW, int windowH);

// Move the dialog or the scorecard, with all that belongs to it, so that its box has its top left
// corner at (x, y). They stay there until the next layout.
void placeDialog(float x, float y);
void placeScorecard(float x, float y);
