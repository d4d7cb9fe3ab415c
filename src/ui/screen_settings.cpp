#include "ui/screens.h"

#include "app/settings.h"
#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/places.h"
#include "ui/settings_screen.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <string>

static void drawFrameOf(const Rect& at, const std::string& title)
{
    setColour(WHITE);
    drawGroupFrame(static_cast<int>(at.x), static_cast<int>(at.y), static_cast<int>(at.w),
                   static_cast<int>(at.h), title);
}

static void drawChoice(float x, float y, Control control, bool selected)
{
    drawRadioButton(static_cast<int>(x), static_cast<int>(y),
                    static_cast<int>(layout.settingsRowH * 0.5f), selected, true);
    setColour(WHITE);
    drawText(x + layout.settingsRowH, y, ALIGN_LEFT, controlLabel(control));
}

// A number with its label before it and, if it has one, its unit behind it.
static void drawField(int field, const std::string& label, const std::string& unit)
{
    const Rect box = settingsField(field);
    const bool open = settingsFieldOpen(field);
    const float y = box.y + box.h * 0.5f;
    setColour(open ? WHITE : disabledGrey);
    drawText(settingsLabelX(), y, ALIGN_LEFT, label);
    drawText(box.x + box.w * 1.1f, y, ALIGN_LEFT, unit);
    drawTextBox(static_cast<int>(box.x), static_cast<int>(box.y), static_cast<int>(box.w),
                static_cast<int>(box.h), settingsScreen.settingsFieldText[field],
                field == settingsScreen.settingsActiveField, settingsScreen.settingsCursor, open);
}

static void drawMovement()
{
    drawFrameOf(movementFrame(), texts.computerMovement);
    drawChoice(layout.movementRadioX, layout.smoothRadioY, CONTROL_SMOOTH,
               settings.smoothMovement != 0);
    drawField(FIELD_STEP_TIME, texts.delay, "ms");
    drawField(FIELD_STEP_DISTANCE, texts.distance, "");
    drawChoice(layout.movementRadioX, layout.stepwiseRadioY, CONTROL_STEPWISE,
               settings.smoothMovement == 0);
    drawField(FIELD_STEP_DELAY, texts.timeBetweenSteps, "ms");
    drawControl(CONTROL_DEFAULT);
}

static void drawRatioChoice(float y, Control control, const ScreenRatio& ratio)
{
    drawChoice(layout.ratioRadioX, y, control,
               settings.ratioW == ratio.w && settings.ratioH == ratio.h);
}

static void drawRatios()
{
    drawFrameOf(ratioFrame(), texts.screenRatio);
    drawRatioChoice(layout.ratio54Y, CONTROL_RATIO_54, SCREEN_RATIOS[0]);
    drawRatioChoice(layout.ratio43Y, CONTROL_RATIO_43, SCREEN_RATIOS[1]);
    drawRatioChoice(layout.ratio1610Y, CONTROL_RATIO_1610, SCREEN_RATIOS[2]);
}

void drawSettings()
{
    setColour(WHITE);
    drawText(static_cast<float>(layout.viewW) * 0.5f, layout.settingsTitleY, ALIGN_CENTRE,
             texts.settings, FONT_TITLE);
    drawMovement();
    drawRatios();
    drawControl(CONTROL_SETTINGS_OK);
    drawControl(CONTROL_SETTINGS_CANCEL);
}
