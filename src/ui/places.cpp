#include "ui/places.h"

#include "ui/layout.h"
#include "ui/text.h"
#include "ui/texts.h"

#include <algorithm>

static float indexed(int i)
{
    return static_cast<float>(i);
}

Rect checkBoxArea(float x, float y, float size)
{
    return {x, y, aspectFix() * size + LABEL_ROOM, size};
}

Rect radioArea(float x, float y, float h, float right)
{
    const float left = x - aspectFix() * h * 0.5f;
    return {left, y - h * 0.5f, right - left, h};
}

// clang-format off

Rect dialogBox()         { return {layout.dialogX, layout.dialogY, layout.dialogW, layout.dialogH}; }
Rect dialogTitleBar()    { return {layout.dialogX, layout.dialogY - layout.titleBarH, layout.dialogW, layout.titleBarH}; }
Rect scorecardBox()      { return {layout.scorecardX, layout.scorecardY, layout.scorecardW, layout.scorecardH}; }
Rect scorecardTitleBar() { return {layout.scorecardX, layout.scorecardY - layout.titleBarH, layout.scorecardW, layout.titleBarH}; }
Rect cardPanel()        { return {layout.cardPanelX, layout.hudY, layout.cardPanelW, layout.cardPanelH}; }
Rect extraCardSlot()    { return {layout.eventSlotX, layout.hudY, layout.cardW, layout.cardH}; }
Rect extraDicePlace()   { return {layout.hudCol3X, layout.hudY, layout.cardH, layout.cardH}; }
Rect manualFrame()    { return {layout.manualX, layout.manualY, layout.manualW, layout.manualH}; }
Rect overviewPicture()   { return {layout.overviewX, layout.overviewY, layout.overviewW, layout.overviewH}; }
Rect movementFrame() { return {layout.movementFrameX, layout.movementFrameY, layout.settingsFrameW, layout.movementFrameH}; }
Rect ratioFrame()    { return {layout.ratioFrameX, layout.ratioFrameY, layout.settingsFrameW, layout.ratioFrameH}; }

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

Rect dicePlace(int die)
{
    return {layout.diceX + indexed(die) * (layout.cardH + layout.cardGapX), layout.hudY,
            layout.cardH, layout.cardH};
}

Rect handInSlot(int slot)
{
    return {layout.diceX + indexed(slot) * (layout.cardW + layout.cardGapX), layout.handInY,
            layout.cardW, layout.cardH};
}

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

Rect raceNameBox()
{
    return {layout.raceNameX, layout.multiStageY + layout.stageRowH * 0.5f, layout.raceNameW,
            layout.stageRowH};
}

// A field of the settings stands where it should, or behind its label where that is too long.
static float clearOfLabel(float x, std::string_view label)
{
    constexpr float gap = 4.0f;
    const float end = settingsLabelX() + static_cast<float>(textWidth(label, FONT_BODY));
    return end + 1.0f <= x ? x : end + gap;
}

float settingsLabelX()
{
    return layout.movementRadioX + layout.settingsRowH * 1.5f;
}

Rect settingsField(int field)
{
    const float rowH = layout.settingsRowH;
    if (field == 2)
        return {clearOfLabel(layout.stepTimeFieldX, texts.timeBetweenSteps),
                layout.stepwiseRadioY + rowH * 0.5f, layout.settingsFieldW, rowH};
    const float rows = field == 0 ? 0.5f : 1.7f;
    return {clearOfLabel(layout.delayFieldX, field == 0 ? texts.delay : texts.distance),
            layout.smoothRadioY + rowH * rows, layout.settingsFieldW, rowH};
}

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
