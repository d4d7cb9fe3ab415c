#include "ui/screens.h"

#include "board/course.h"
#include "ui/controls.h"
#include "ui/course_table.h"
#include "ui/layout.h"
#include "ui/picture_strip.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/textures.h"
#include "ui/widgets.h"

#include <GL/gl.h>

static void drawBoardPicture(const Rect& at)
{
    setColour(WHITE);
    glBindTexture(GL_TEXTURE_2D, textureNames[0]);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_DECAL);
    glEnable(GL_TEXTURE_2D);
    drawPicture(at);
    glDisable(GL_TEXTURE_2D);
}

static void drawSavedButton(const Rect& at, bool enabled, std::string_view label)
{
    drawButton(at.x, at.y, at.w, at.h, enabled, label, NO_ACCESS_KEY);
}

void drawSavedCourses()
{
    drawBoardPicture(savedCoursePicture());
    drawCourseTable(layout.savedTitleX, layout.savedTitleY, layout.savedTitleStep,
                    countCourseLaps(courseText, LAPS_TITLED), 0.0f);
    drawSavedButton(prevCourseButton(), true, texts.previousCourse);
    drawSavedButton(nextCourseButton(), true, texts.nextCourse);
    drawSavedButton(savedBackButton(), true, texts.savedBack);
    drawSavedButton(savedOkButton(), !courseText.empty(), "OK");
}
