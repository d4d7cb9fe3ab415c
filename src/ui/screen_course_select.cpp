#include "ui/screens.h"

#include "board/course.h"
#include "board/designer.h"
#include "board/pictures.h"
#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/places.h"
#include "ui/scale.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/textures.h"
#include "ui/widgets.h"

#include <GL/gl.h>

#include <cmath>

static void drawHoverFrame(const Rect& picture)
{
    const float left = std::trunc(picture.x - 5.0f);
    const float top = std::trunc(picture.y - 5.0f);
    setColour(WHITE);
    setLineWidth(2.0f);
    outlineRect(left, top, std::trunc(picture.x + picture.w + 5.0f) - left,
                std::trunc(picture.y + picture.h + 38.0f) - top);
    setLineWidth(1.0f);
}

static void drawCourse(int index)
{
    const Rect picture = coursePicture(index);
    glPushMatrix();
    glTranslatef(picture.x, picture.y, 0.0f);
    drawCoursePicture(index, {0.0f, 0.0f, picture.w, picture.h});
    glPopMatrix();

    if (index == courseScreens.courseHover)
        drawHoverFrame(picture);

    const LapTitle title = courseLapTitle(fixedCourses[index], 0);
    const float centre = picture.x + picture.w * 0.5f;
    const float y = picture.y + picture.h + 10.0f;
    setColour(WHITE);
    drawText(centre, y, ALIGN_CENTRE, title.names, FONT_FIXED);
    setColour(buttonGrey);
    drawText(centre, y + layout.courseLineH, ALIGN_CENTRE, title.marks, FONT_FIXED);
}

void drawCourseSelection()
{
    setColour(WHITE);
    drawText(static_cast<float>(layout.viewW) * 0.5f, static_cast<float>(layout.viewH) * 0.12f,
             ALIGN_CENTRE, texts.courseSelectionTitle, FONT_TITLE);
    for (int index = 0; index < FIXED_COURSE_COUNT; ++index)
        drawCourse(index);

    drawControl(CONTROL_SAVED_COURSE);
    drawControl(CONTROL_CREATE_COURSE);
    drawControl(CONTROL_COURSE_BACK);
}
