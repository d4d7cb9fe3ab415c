#include "ui/course_table.h"

#include "board/course.h"
#include "ui/text.h"
#include "ui/widgets.h"

#include <GL/gl.h>

#include <algorithm>

static constexpr float TABLE_WIDTH = 170.0f;
static constexpr float RISE = 8.0f; // of the frame above the first line's middle
static constexpr int FRAMED_LAPS = 4;

static void drawFrame(float x, float y, float step, int laps)
{
    const float lapH = 2.0f * step;
    setColour(WHITE);
    outlineRect(x, y, TABLE_WIDTH, lapH * static_cast<float>(laps));
    glBegin(GL_LINES);
    for (int lap = 1; lap < laps; ++lap) {
        glVertex2f(x, y + lapH * static_cast<float>(lap));
        glVertex2f(x + TABLE_WIDTH, y + lapH * static_cast<float>(lap));
    }
    glEnd();
}

void drawCourseTable(float x, float y, float step, int laps, float frameInset)
{
    drawFrame(x - frameInset, y - RISE, step, std::min(laps, FRAMED_LAPS));
    for (int lap = 0; lap < laps; ++lap) {
        const LapTitle title = courseLapTitle(courseText, lap);
        const float line = y + 2.0f * step * static_cast<float>(lap);
        setColour(WHITE);
        drawText(x, line, ALIGN_LEFT, title.names, FONT_FIXED);
        setColour(buttonGrey);
        drawText(x, line + step, ALIGN_LEFT, title.marks, FONT_FIXED);
    }
}
