#include "ui/reshape.h"

#include "app/game_state.h"
#include "app/host.h"
#include "ui/layout.h"
#include "ui/letters.h"
#include "ui/manual_pages.h"
#include "ui/matrices.h"
#include "ui/models.h"
#include "ui/scale.h"

#include <GL/gl.h>

static bool listsBuilt = false;

// A shape in a list keeps the size it was compiled with.
static void buildAllLists()
{
    prepareLetters();
    buildDisplayLists();
    if (gameState != STATE_LOADING) // while loading onIdleLoad paints, see there
        redrawNow();
    listsBuilt = true;
}

static void layOut()
{
    computeLayout(logicalWindowW(), logicalWindowH());
    paginateManual();
    computeMatrices();
    glClearColor(0.0f, 0.0f, 0.0f, 0.5f);
    if (!listsBuilt)
        buildAllLists();
}

void onReshape(int width, int height)
{
    const int oldScale = scale();
    takeWindowSize(width, height);
    if (scale() != oldScale || logicalWindowW() != layout.windowW ||
        logicalWindowH() != layout.windowH)
        listsBuilt = false;
    layOut();
}

void layOutAnew()
{
    listsBuilt = false;
    layOut();
}
