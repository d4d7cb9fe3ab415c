#include "ui/screens.h"

#include "board/course.h"
#include "ui/controls.h"
#include "ui/course_table.h"
#include "ui/layout.h"
#include "ui/picture_strip.h"
#include "ui/places.h"
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

void drawSavedCourses()
{
    drawBoardPicture(overviewPicture());
    drawCourseTable(layout.savedTitleX, layout.savedTitleY, layout.savedTitleStep,
                    countCourseLaps(courseText, LAPS_TITLED), 0.0f);
    for (const Control control :
         {CONTROL_PREVIOUS_COURSE, CONTROL_NEXT_COURSE, CONTROL_SAVED_BACK, CONTROL_SAVED_OK})
        drawControl(control);
}
