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

void drawPictureOf(unsigned texture, int filter, const Rect& at, const Crop& crop)
{
    glBindTexture(GL_TEXTURE_2D, texture);
    glEnable(GL_TEXTURE_2D);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, filter);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_DECAL);
    drawPicture(at, crop);
    glDisable(GL_TEXTURE_2D);
}
