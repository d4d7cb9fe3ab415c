#include "ui/screens.h"

#include "ui/access_keys.h"
#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

void drawMainMenu()
{
    const float centre = static_cast<float>(layout.viewW) * 0.5f;
    const float bottom = static_cast<float>(layout.viewH);
    setColour(WHITE);
    drawText(centre, bottom * 0.24f, ALIGN_CENTRE, texts.mainMenuTitle, FONT_TITLE);

    drawControl(CONTROL_LANGUAGE, menuLanguageButton(), true);
    drawControl(CONTROL_MANUAL, menuManualButton(), true);
    drawControl(CONTROL_MENU_SETTINGS, menuSettingsButton(), true);
    drawControl(CONTROL_CONTINUE, menuContinueButton(), true);
    drawControl(CONTROL_START, menuStartButton(), true);
    drawControl(CONTROL_EXIT, exitButton(), true);

    setColour(WHITE);
    drawText(centre, bottom - 65.0f, ALIGN_CENTRE, texts.creditDesigner);
    drawText(centre, bottom - 50.0f, ALIGN_CENTRE, texts.creditProgrammer);
}
