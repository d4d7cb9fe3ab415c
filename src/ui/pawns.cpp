#include "ui/pawns.h"

#include <GL/gl.h>

void drawPawnAt(int rider, float x, float y, float scale)
{
    glPushMatrix();
    glTranslatef(x, y, 0.0f);
    drawRider(rider, PAWN_FLAT, true, scale, true);
    glPopMatrix();
}
