#include "ui/screens.h"

#include "board/course.h"
#include "board/designer.h"
#include "ui/controls.h"
#include "ui/course_table.h"
#include "ui/layout.h"
#include "ui/matrices.h"
#include "ui/places.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/textures.h"
#include "ui/widgets.h"

#include <algorithm>

static constexpr float FRAME_INSET = 6.0f;

// The section in question where the board lies on the race screen.
static void drawPreview()
{
    useBoardLayer();
    drawSectionPicture(previewedSection(), {0.0f, 0.0f, BOARD_WIDTH, BOARD_HEIGHT});
    useScreenLayer();
}

static void drawNextSections()
{
    const NextSections next = nextSections();
    for (int choice = 0; choice < next.designChoiceCount; ++choice) {
        const Rect radio = sectionRadio(choice);
        const float step = layout.sectionRadioStep;
        const float y = layout.sectionRadioY + static_cast<float>(choice) * step;
        drawRadioButton(static_cast<int>(layout.sectionRadioX), static_cast<int>(y),
                        static_cast<int>(step * 0.5f), choice == courseScreens.designChoice, true);
        setColour(WHITE);
        drawText(layout.sectionRadioX + step * 0.75f, radio.y + radio.h * 0.5f, ALIGN_LEFT,
                 sections[next.section[choice]].name);
    }
}

static void drawDesignControls()
{
    drawControl(CONTROL_PREVIOUS_SECTION, sectionUndoable());
    drawControl(designFinished() ? CONTROL_DESIGN_OK : CONTROL_ADD_SECTION);
    drawControl(CONTROL_SAVE_COURSE);
    drawControl(CONTROL_DESIGN_BACK);
}

// On a white slip, since dark red can't be read on the blue band.
static void drawSaveFailure()
{
    const std::string message = "\"courses\"" + texts.couldNotOpen;
    const float w = static_cast<float>(textWidth(message, FONT_BODY)) + 30.0f;
    const Rect save = placeOf(CONTROL_SAVE_COURSE);
    const float right = static_cast<float>(layout.viewW) - w * 0.5f;
    const float x = std::min(save.x + save.w * 0.5f, right);
    const float y = save.y - 14.0f;
    setColour(WHITE);
    fillRect(x - w * 0.5f, y - 9.0f, w, 18.0f);
    setColour(FAILURE_RED);
    drawText(x, y, ALIGN_CENTRE, message);
}

void drawCourseDesigner()
{
    drawPreview();
    drawCourseTable(layout.designTitleX, layout.designTitleY, layout.designTitleStep,
                    countCourseLaps(courseText, LAPS_DRIVEN), FRAME_INSET);
    drawDesignControls();
    drawNextSections();
    drawCheckControl(CONTROL_SPRINT, courseScreens.designSprintChecked);
    drawCheckControl(CONTROL_FINISH, courseScreens.designFinishChecked);
    if (courseScreens.saveFailed)
        drawSaveFailure();
}
