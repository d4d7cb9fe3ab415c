#include "ui/screens.h"

#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/manual_pages.h"
#include "ui/text.h"
#include "ui/texts.h"
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

    const Rect ok = manualOkButton();
    const Rect previous = prevPageButton();
    const Rect next = nextPageButton();
    drawButton(ok.x, ok.y, ok.w, ok.h, true, "OK", 0);
    drawButton(previous.x, previous.y, previous.w, previous.h, manualPage > 0, texts.previousPage,
               NO_ACCESS_KEY);
    drawButton(next.x, next.y, next.w, next.h, manualPage + 1 < manualPageCount, texts.nextPage,
               NO_ACCESS_KEY);
}
