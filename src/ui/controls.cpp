#include "ui/controls.h"

#include "ui/layout.h"

// Labels keep their pixel size on any window; this is room for the longest of them.
constexpr float LABEL_ROOM = 150.0f;

static Rect checkBoxArea(float x, float y, float size)
{
    return {x, y, aspectFix() * size + LABEL_ROOM, size};
}

// (x, y) is the centre of the circle, height its diameter.
static Rect radioArea(float x, float y, float height, float right)
{
    const float left = x - aspectFix() * height * 0.5f;
    return {left, y - height * 0.5f, right - left, height};
}

static float settingsRight()
{
    return layout.movementFrameX + layout.settingsFrameW;
}

static float indexed(int i)
{
    return static_cast<float>(i);
}

// clang-format off

Rect cornerButton()      { return {layout.cornerButtonX, layout.cornerButtonY, layout.buttonW, layout.buttonH}; }
Rect dialogBox()         { return {layout.dialogX, layout.dialogY, layout.dialogW, layout.dialogH}; }
Rect dialogTitleBar()    { return {layout.dialogX, layout.dialogY - layout.titleBarH, layout.dialogW, layout.titleBarH}; }
Rect dialogOkButton()    { return {layout.dialogOkX, layout.dialogButtonY, layout.buttonW, layout.buttonH}; }
Rect dialogLeftButton()  { return {layout.dialogLeftX, layout.dialogButtonY, layout.buttonW, layout.buttonH}; }
Rect dialogRightButton() { return {layout.dialogRightX, layout.dialogButtonY, layout.buttonW, layout.buttonH}; }

Rect viewToggle()      { return {layout.viewToggleX, layout.hudY, layout.buttonH, layout.buttonH}; }
Rect cameraButton()    { return {layout.cameraButtonX, layout.hudY, layout.buttonH, layout.buttonH}; }
Rect scorecardButton() { return {layout.sideButtonX, layout.scorecardButtonY, layout.sideButtonW, layout.buttonH}; }
Rect positionsButton() { return {layout.sideButtonX, layout.positionsButtonY, layout.sideButtonW, layout.buttonH}; }
Rect dopingButton()    { return {layout.sideButtonX, layout.dopingButtonY, layout.sideButtonW, layout.buttonH}; }
Rect settingsButton()  { return {layout.sideButtonX, layout.settingsButtonY, layout.sideButtonW, layout.buttonH}; }
Rect quitButton()      { return {layout.cornerButtonX, layout.cornerButtonY, layout.sideButtonW, layout.buttonH}; }

Rect cardPanel()        { return {layout.cardPanelX, layout.hudY, layout.cardPanelW, layout.cardPanelH}; }
Rect throwButton()      { return {layout.diceX, layout.throwButtonY, layout.cardH, layout.throwButtonH}; }
Rect handInOkButton()   { return {layout.diceX, layout.handInOkY, layout.cardH, layout.throwButtonH}; }
Rect extraCardSlot()    { return {layout.eventSlotX, layout.hudY, layout.cardW, layout.cardH}; }
Rect extraDicePlace()   { return {layout.hudCol3X, layout.hudY, layout.cardH, layout.cardH}; }
Rect extraThrowButton() { return {layout.hudCol3X, layout.extraThrowY, layout.cardH, layout.throwButtonH}; }

// clang-format on

// Columns of two cards each, upper before lower.
Rect cardPlace(int slot)
{
    const float column = indexed(slot / 2);
    const float row = indexed(slot % 2);
    return {layout.cardPanelX + layout.cardGapX + column * (layout.cardW + layout.cardGapX),
            layout.hudY + layout.cardGapY + row * (layout.cardH + layout.cardGapY), layout.cardW,
            layout.cardH};
}

Rect teamTab(int team)
{
    const float w = layout.cardPanelW * 0.25f;
    return {layout.cardPanelX + indexed(team) * w, layout.teamTabsY, w, layout.teamTabsH};
}

Rect dicePlace(int die)
{
    return {layout.diceX + indexed(die) * (layout.cardH + layout.cardGapX), layout.hudY,
            layout.cardH, layout.cardH};
}

// Reaches as far as the column of the extra die, whose button stands beside the label.
Rect breakawayBox()
{
    return {layout.breakawayX, layout.breakawayY, layout.hudCol3X - layout.breakawayX,
            layout.breakawaySize};
}

Rect handInSlot(int slot)
{
    return {layout.diceX + indexed(slot) * (layout.cardW + layout.cardGapX), layout.handInY,
            layout.cardW, layout.cardH};
}

static Rect menuButton(float y)
{
    return {layout.menuButtonX, y, layout.menuButtonW, layout.menuButtonH};
}

// clang-format off

Rect menuLanguageButton() { return menuButton(layout.menuLanguageY); }
Rect menuManualButton()   { return menuButton(layout.menuManualY); }
Rect menuSettingsButton() { return menuButton(layout.menuSettingsY); }
Rect menuContinueButton() { return menuButton(layout.menuContinueY); }
Rect menuStartButton()    { return menuButton(layout.menuStartY); }
Rect exitButton()         { return cornerButton(); }

Rect manualFrame()    { return {layout.manualX, layout.manualY, layout.manualW, layout.manualH}; }
Rect manualOkButton() { return cornerButton(); }
Rect prevPageButton() { return {layout.prevPageX, layout.cornerButtonY, layout.pageButtonW, layout.buttonH}; }
Rect nextPageButton() { return {layout.nextPageX, layout.cornerButtonY, layout.pageButtonW, layout.buttonH}; }

// clang-format on

Rect languageBox(int language)
{
    return {layout.languageBoxX,
            layout.languageBoxY + indexed(language) * (layout.languageBoxH + layout.languageBoxGap),
            layout.languageBoxW, layout.languageBoxH};
}

Rect teamNameBox(int team)
{
    return {layout.teamNameX, layout.teamNameY + indexed(team) * layout.teamRowStep,
            layout.teamNameW, layout.teamNameH};
}

Rect teamComputerBox(int team)
{
    return checkBoxArea(layout.teamCheckX, layout.teamNameY + indexed(team) * layout.teamRowStep,
                        layout.teamCheckSize);
}

static Rect stageRadio(float y)
{
    return radioArea(layout.stageRadioX, y, layout.stageRowH,
                     layout.stageRadioX + layout.stageRowH + LABEL_ROOM);
}

Rect multiStageRadio()
{
    return stageRadio(layout.multiStageY);
}

Rect singleStageRadio()
{
    return stageRadio(layout.singleStageY);
}

Rect raceNameBox()
{
    return {layout.raceNameX, layout.multiStageY + layout.stageRowH * 0.5f, layout.raceNameW,
            layout.stageRowH};
}

Rect eventCardsBox()
{
    return checkBoxArea(layout.eventCheckX, layout.eventCheckY, layout.teamCheckSize);
}

// clang-format off

Rect teamOkButton()      { return {layout.teamOkX, layout.teamOkY, layout.buttonW, layout.buttonH}; }
Rect savedCourseButton() { return {layout.savedCourseButtonX, layout.courseButtonY, layout.courseButtonW, layout.buttonH}; }
Rect newCourseButton()   { return {layout.newCourseButtonX, layout.courseButtonY, layout.courseButtonW, layout.buttonH}; }

// clang-format on

// Two pictures in a row.
Rect coursePicture(int course)
{
    const float column = indexed(course % 2);
    const float row = indexed(course / 2);
    return {layout.coursePicX + column * (layout.coursePicW + layout.coursePicGapX),
            layout.coursePicY + row * (layout.coursePicH + layout.coursePicGapY), layout.coursePicW,
            layout.coursePicH};
}

Rect courseCell(int course)
{
    constexpr float CAPTION_H = 34.0f;
    Rect cell = coursePicture(course);
    cell.h += CAPTION_H;
    return cell;
}

Rect sectionRadio(int choice)
{
    return radioArea(
        layout.sectionRadioX, layout.sectionRadioY + indexed(choice) * layout.sectionRadioStep,
        layout.sectionRadioStep, layout.sectionRadioX + layout.sectionRadioStep + LABEL_ROOM);
}

Rect sectionRadios(int choiceCount)
{
    Rect list = sectionRadio(0);
    list.h = indexed(choiceCount) * layout.sectionRadioStep;
    return list;
}

Rect sprintBox()
{
    return checkBoxArea(layout.sprintCheckX, layout.sprintCheckY, layout.designCheckSize);
}

Rect finishBox()
{
    return checkBoxArea(layout.finishCheckX, layout.finishCheckY, layout.designCheckSize);
}

// clang-format off

Rect prevSectionButton() { return {layout.prevSectionButtonX, layout.designButtonY, layout.designButtonW, layout.buttonH}; }
Rect addSectionButton()  { return {layout.addButtonX, layout.designButtonY, layout.designButtonW, layout.buttonH}; }
Rect saveCourseButton()  { return {layout.saveCourseButtonX, layout.designButtonY, layout.designButtonW, layout.buttonH}; }

Rect savedCoursePicture() { return overviewPicture(); }
Rect prevCourseButton()   { return {layout.prevCourseButtonX, layout.savedButtonY, layout.savedButtonW, layout.buttonH}; }
Rect nextCourseButton()   { return {layout.nextCourseButtonX, layout.savedButtonY, layout.savedButtonW, layout.buttonH}; }
Rect savedOkButton()      { return {layout.savedOkX, layout.savedButtonY, layout.buttonW, layout.buttonH}; }
Rect savedBackButton()    { return {layout.cornerButtonX, layout.cornerButtonY, layout.savedButtonW, layout.buttonH}; }

Rect movementFrame() { return {layout.movementFrameX, layout.movementFrameY, layout.settingsFrameW, layout.movementFrameH}; }
Rect ratioFrame()    { return {layout.ratioFrameX, layout.ratioFrameY, layout.settingsFrameW, layout.ratioFrameH}; }
Rect smoothRadio()   { return radioArea(layout.movementRadioX, layout.smoothRadioY, layout.settingsRowH, settingsRight()); }
Rect stepwiseRadio() { return radioArea(layout.movementRadioX, layout.stepwiseRadioY, layout.settingsRowH, settingsRight()); }

Rect defaultButton()        { return {layout.defaultButtonX, layout.defaultButtonY, layout.defaultButtonW, layout.buttonH}; }
Rect settingsOkButton()     { return {layout.settingsOkX, layout.settingsOkY, layout.buttonW, layout.buttonH}; }
Rect settingsCancelButton() { return {layout.settingsCancelX, layout.settingsOkY, layout.buttonW, layout.buttonH}; }

// clang-format on

Rect settingsField(int field)
{
    const float rowH = layout.settingsRowH;
    if (field == 2)
        return {layout.stepTimeFieldX, layout.stepwiseRadioY + rowH * 0.5f, layout.settingsFieldW,
                rowH};
    const float rows = field == 0 ? 0.5f : 1.7f;
    return {layout.delayFieldX, layout.smoothRadioY + rowH * rows, layout.settingsFieldW, rowH};
}

Rect ratioRadio(int ratio)
{
    const float rows[3] = {layout.ratio54Y, layout.ratio43Y, layout.ratio1610Y};
    return radioArea(layout.ratioRadioX, rows[ratio], layout.settingsRowH,
                     layout.ratioFrameX + layout.settingsFrameW);
}

Rect raceListFrame()
{
    return {layout.raceListX, layout.raceListY, indexed(raceListCols) * layout.raceListColW,
            indexed(raceListRows + 1) * layout.raceListRowH};
}

// Up to the frame's right edge, where the button to the next page begins.
Rect raceListNames()
{
    return {layout.raceListX + layout.raceListInset, layout.raceListY + layout.raceListRowH * 0.5f,
            indexed(raceListCols) * layout.raceListColW - layout.raceListInset,
            indexed(raceListRows) * layout.raceListRowH};
}

// clang-format off

Rect listPrevButton()      { return {layout.listPrevX, layout.listArrowY, layout.buttonW, layout.buttonH}; }
Rect listNextButton()      { return {layout.listNextX, layout.listArrowY, layout.buttonW, layout.buttonH}; }
Rect listOkButton()        { return {layout.listOkX, layout.listButtonY, layout.buttonW, layout.buttonH}; }
Rect listScorecardButton() { return {layout.listScorecardX, layout.listButtonY, layout.buttonW, layout.buttonH}; }

Rect scorecardBox()      { return {layout.scorecardX, layout.scorecardY, layout.scorecardW, layout.scorecardH}; }
Rect scorecardTitleBar() { return {layout.scorecardX, layout.scorecardY - layout.titleBarH, layout.scorecardW, layout.titleBarH}; }
Rect scorecardOkButton() { return {layout.scorecardOkX, layout.scorecardBottomButtonY, layout.buttonW, layout.buttonH}; }
Rect exportButton()      { return {layout.exportButtonX, layout.scorecardBottomButtonY, layout.exportButtonW, layout.buttonH}; }
Rect prevStageButton()   { return {layout.prevStageX, layout.stageArrowY, layout.stageArrowW, layout.buttonH}; }
Rect nextStageButton()   { return {layout.nextStageX, layout.stageArrowY, layout.stageArrowW, layout.buttonH}; }
Rect generalViewButton() { return {layout.generalViewButtonX, layout.scorecardBottomButtonY, layout.stageViewButtonW, layout.buttonH}; }
Rect stageViewButton()   { return {layout.stageViewButtonX, layout.scorecardBottomButtonY, layout.stageViewButtonW, layout.buttonH}; }

Rect overviewPicture()   { return {layout.overviewX, layout.overviewY, layout.overviewW, layout.overviewH}; }
Rect positionsOkButton() { return cornerButton(); }

// clang-format on
