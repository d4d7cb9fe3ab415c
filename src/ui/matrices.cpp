#include "ui/matrices.h"

#include "app/view.h"
#include "board/section_shapes.h"
#include "ui/cameras.h"
#include "ui/layout.h"
#include "ui/scale.h"

#include <GL/glu.h>

Matrices matrices;

constexpr double CAMERA_ASPECT = 1.15; // a constant of the picture, not the viewport's own

// No camera comes nearer to the board than its own height. A plane much nearer than that would
// leave the depth buffer too few steps to tell riders of neighbouring lanes apart.
constexpr double NEAR_PLANE = 100.0;
constexpr double FAR_PLANE = 3000.0;

static Matrix matrixOnTop(GLenum which)
{
    Matrix matrix{};
    glGetDoublev(which, matrix.begin());
    return matrix;
}

static Matrix orthographic(double left, double right, double bottom, double top)
{
    glLoadIdentity();
    gluOrtho2D(left, right, bottom, top);
    return matrixOnTop(GL_PROJECTION_MATRIX);
}

// The whole camera lives in the projection, so that the model view is the same for all of them.
static Matrix perspective(const Eye& eye)
{
    glLoadIdentity();
    gluPerspective(60.0, CAMERA_ASPECT, NEAR_PLANE, FAR_PLANE);
    gluLookAt(eye.x, eye.y, eye.z, cameraTarget.x, cameraTarget.y, cameraTarget.z, 0.0, 0.0, 1.0);
    return matrixOnTop(GL_PROJECTION_MATRIX);
}

void computeMatrices()
{
    const int height = layout.windowH > 0 ? layout.windowH : 1;
    glMatrixMode(GL_PROJECTION);
    matrices.projectionMatrices[0] = orthographic(0.0, layout.windowW, height, 0.0);
    matrices.projectionMatrices[1] = orthographic(0.0, BOARD_WIDTH, BOARD_HEIGHT, 0.0);
    matrices.projectionMatrices[2] = orthographic(BOARD_WIDTH, 0.0, 0.0, BOARD_HEIGHT);
    for (int i = 0; i < PERSPECTIVE_CAMERA_COUNT; ++i)
        matrices.projectionMatrices[FIRST_PERSPECTIVE_CAMERA + i] = perspective(cameraEyes[i]);

    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    matrices.modelviewMatrices[0] = matrixOnTop(GL_MODELVIEW_MATRIX);
    glScaled(1.0, -1.0, 1.0);
    matrices.modelviewMatrices[1] = matrixOnTop(GL_MODELVIEW_MATRIX);
}

static void loadMatrices(const Matrix& projection, const Matrix& modelview)
{
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixd(projection.begin());
    glMatrixMode(GL_MODELVIEW);
    glLoadMatrixd(modelview.begin());
}

void useBoardLayer()
{
    const int barBelow = layout.windowH - layout.viewY - layout.viewH;
    setViewport(layout.boardViewX + static_cast<float>(layout.viewX),
                layout.boardViewY + static_cast<float>(barBelow), layout.boardViewW,
                layout.boardViewH);
    const bool flat = view.viewMode == VIEW_FLAT;
    loadMatrices(matrices.projectionMatrices[view.cameraIndex],
                 matrices.modelviewMatrices[flat ? 0 : 1]);
    if (flat)
        glDisable(GL_DEPTH_TEST);
    else
        glEnable(GL_DEPTH_TEST);
}

void useScreenLayer()
{
    setViewport(0.0f, 0.0f, static_cast<float>(layout.windowW), static_cast<float>(layout.windowH));
    loadMatrices(matrices.projectionMatrices[0], matrices.modelviewMatrices[0]);
    glDisable(GL_DEPTH_TEST);
    glTranslated(layout.viewX, layout.viewY, 0.0);
}
