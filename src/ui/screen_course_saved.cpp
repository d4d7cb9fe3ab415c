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

void drawSavedCourses()
{
    setColour(WHITE);
    drawPictureOf(textureNames[0], GL_NEAREST, overviewPicture());
    drawCourseTable(layout.savedTitleX, layout.savedTitleY, layout.savedTitleStep,
                    countCourseLaps(courseText, LAPS_TITLED), 0.0f);
    for (const Control control :
         {CONTROL_PREVIOUS_COURSE, CONTROL_NEXT_COURSE, CONTROL_SAVED_BACK, CONTROL_SAVED_OK})
        drawControl(control);
}
