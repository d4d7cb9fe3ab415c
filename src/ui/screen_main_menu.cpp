#include "ui/screens.h"

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

    for (const Control control : {CONTROL_LANGUAGE, CONTROL_MANUAL, CONTROL_MENU_SETTINGS,
                                  CONTROL_CONTINUE, CONTROL_START, CONTROL_EXIT})
        drawControl(control);

    setColour(WHITE);
    drawText(centre, bottom - 65.0f, ALIGN_CENTRE, texts.creditDesigner);
    drawText(centre, bottom - 50.0f, ALIGN_CENTRE, texts.creditProgrammer);
}
