#include "ui/screens.h"

#include "ui/layout.h"
#include "ui/loading.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <cmath>

void drawLoadingScreen()
{
    setColour(WHITE);
    drawText(layout.loadingTextX, layout.loadingTextY, ALIGN_LEFT, texts.pleaseWait);
    outlineRect(std::trunc(layout.loadingBarX), std::trunc(layout.loadingBarY),
                std::trunc(layout.loadingBarW), std::trunc(layout.loadingBarH));

    const float inset = layout.loadingBarInset;
    const float done = static_cast<float>(loadingProgress.sections + loadingProgress.courses);
    const float full = layout.loadingBarW - 2.0f * inset;
    fillRect(layout.loadingBarX + inset, layout.loadingBarY + inset,
             full * done / static_cast<float>(LOADING_STEPS), layout.loadingBarH - 2.0f * inset);
}
