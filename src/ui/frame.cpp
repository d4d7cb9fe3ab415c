#include "ui/frame.h"

#include "app/game_state.h"
#include "ui/board_layer.h"
#include "ui/dialogs.h"
#include "ui/layout.h"
#include "ui/matrices.h"
#include "ui/positions.h"
#include "ui/race_view.h"
#include "ui/scale.h"
#include "ui/scorecard.h"
#include "ui/screens.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <GL/freeglut.h>

#include <cmath>

bool windowOpen = false;

constexpr float EDGE_STRIP = 15.0f; // stays black above and below

static void drawBackground()
{
    const float top = boardVisible() ? std::trunc(layout.hudY) : EDGE_STRIP;
    const float bottom = static_cast<float>(layout.viewH) - EDGE_STRIP;
    setColour(panelBlue);
    fillRect(0.0f, top, static_cast<float>(layout.viewW), bottom - top);
}

static void drawHeadAndFootLine()
{
    const float centre = static_cast<float>(layout.viewW / 2);
    setColour(WHITE);
    drawText(centre, 8.0f, ALIGN_CENTRE, headLine);
    drawText(centre, static_cast<float>(layout.viewH) - 5.0f, ALIGN_CENTRE, footLine);
}

static void drawScreenOfState()
{
    switch (gameState) {
    case STATE_LOADING:
        return drawLoadingScreen();
    case STATE_MAIN_MENU:
        return drawMainMenu();
    case STATE_TEAM_SETUP:
    case STATE_SETUP_MESSAGE:
        return drawTeamSetup();
    case STATE_LANGUAGE:
        return drawLanguages();
    case STATE_MANUAL:
        return drawManual();
    case STATE_SETTINGS:
        return drawSettings();
    case STATE_COURSE_SELECT:
        return drawCourseSelection();
    case STATE_COURSE_DESIGN:
        return drawCourseDesigner();
    case STATE_COURSE_SAVED:
        return drawSavedCourses();
    case STATE_RACE_FILES:
    case STATE_RACE_STANDINGS:
        return drawRaceFiles();
    case STATE_POSITIONS:
        return drawPositions();
    default:
        return;
    }
}

void drawFrame()
{
    if (!windowOpen)
        return;
    glClear(GL_COLOR_BUFFER_BIT);
    setLineWidth(1.0f);
    if (boardVisible())
        drawBoardLayer();
    useScreenLayer();
    drawBackground();
    drawHeadAndFootLine();
    if (boardVisible())
        drawRacePanel();
    drawScreenOfState();
    drawDialog();
    if (scorecardShown())
        drawScorecard();
    glutSwapBuffers();
}
