#include "ui/reshape.h"

#include "app/host.h"
#include "ui/layout.h"
#include "ui/loading.h"
#include "ui/manual_pages.h"
#include "ui/matrices.h"
#include "ui/models.h"

#include <GL/freeglut.h>

static bool listsBuilt = false;

// A shape in a list keeps the size it was compiled with.
static void buildAllLists()
{
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    buildDisplayLists();
    reloadPictures();
    redrawNow();
    listsBuilt = true;
}

void onReshape(int width, int height)
{
    if (width != layout.windowW || height != layout.windowH)
        listsBuilt = false;
    computeLayout(width, height);
    paginateManual();
    computeMatrices();
    glClearColor(0.0f, 0.0f, 0.0f, 0.5f);
    if (!listsBuilt)
        buildAllLists();
}

void layOutAnew()
{
    listsBuilt = false;
    onReshape(layout.windowW, layout.windowH);
}
