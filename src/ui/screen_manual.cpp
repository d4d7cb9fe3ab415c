#include "ui/screens.h"

#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/manual_pages.h"
#include "ui/places.h"
#include "ui/text.h"
#include "ui/widgets.h"

#include <string>

void drawManual()
{
    const Rect frame = manualFrame();
    setColour(WHITE);
    outlineRect(frame.x, frame.y, frame.w, frame.h);
    drawManualPage();

    setColour(WHITE);
    drawText(layout.pageNumberX, layout.pageNumberY, ALIGN_CENTRE,
             std::to_string(manualPage + 1) + "/" + std::to_string(manualPageCount), FONT_TITLE);

    drawControl(CONTROL_MANUAL_OK);
    drawControl(CONTROL_PREVIOUS_PAGE);
    drawControl(CONTROL_NEXT_PAGE);
}
