#include "ui/picture_strip.h"

#include <GL/gl.h>

void drawPicture(const Rect& at, const Crop& crop)
{
    glBegin(GL_TRIANGLE_STRIP);
    glTexCoord2f(crop.left, crop.top);
    glVertex2f(at.x, at.y);
    glTexCoord2f(crop.left, crop.bottom);
    glVertex2f(at.x, at.y + at.h);
    glTexCoord2f(crop.right, crop.top);
    glVertex2f(at.x + at.w, at.y);
    glTexCoord2f(crop.right, crop.bottom);
    glVertex2f(at.x + at.w, at.y + at.h);
    glEnd();
}
