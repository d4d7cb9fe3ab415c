#include "app/game_state.h"
#include "app/view.h"
#include "beside_floor.h"
#include "board/designer.h"
#include "input/actions.h"
#include "race/race_state.h"
#include "support/races.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/loading.h"
#include "ui/matrices.h"
#include "ui/models.h"
#include "ui/reshape.h"
#include "ui/texts.h"
#include "ui/textures.h"

#include <GL/freeglut.h>
#include <GL/glx.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

// Until the window system has the whole frame; else frames would queue up, to be paid for later.
static void awaitFrame()
{
    glFinish();
    XSync(glXGetCurrentDisplay(), False);
}

static void drawWholeFrame()
{
    drawFrame();
    awaitFrame();
}

// Clears, draws the board, swaps.
static void drawFloorFrame()
{
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    useBoardLayer();
    glDisable(GL_DEPTH_TEST);
    glCallList(view.viewMode == VIEW_FLAT ? lists.boardList : lists.slantedBoardList);
    glutSwapBuffers();
    awaitFrame();
}

// Round 3 of a race: all riders are on the road and one of them is carried.
static void goToThirdRound()
{
    const RaceSetup withNames = raceSetup;
    startSeededRace(fixedCourses[3], 1);
    raceSetup = withNames;
    while (race.roundNumber < 3 || gameState != STATE_ANIMATE || race.stepsTaken < 2)
        if (!advanceComputerRace())
            std::exit(1);
}

static void raceFrame(benchmark::State& state, int viewMode)
{
    goToThirdRound();
    if (view.viewMode != viewMode)
        toggleView();
    drawWholeFrame();
    measureBesideFloor(state, drawWholeFrame, drawFloorFrame, passedSeconds);
}

BENCHMARK_CAPTURE(raceFrame, flat, VIEW_FLAT)
    ->UseManualTime()
    ->MinTime(3.0)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(raceFrame, perspective, VIEW_PERSPECTIVE)
    ->UseManualTime()
    ->MinTime(3.0)
    ->Unit(benchmark::kMillisecond);

// As the program does, up to its main menu.
static void openWindow(int* argc, char** argv)
{
    glutInit(argc, argv);
    glutInitDisplayMode(GLUT_DOUBLE | GLUT_DEPTH);
    glutInitWindowPosition(0, 0);
    glutInitWindowSize(1280, 960);
    glutCreateWindow("Gravelon benchmark");
    windowOpen = true;
    glutReshapeFunc(onReshape);
    glutDisplayFunc(drawFrame);
    glutFullScreen();
    if (!loadTextures())
        std::exit(1);
    loadTexts();
    gameState = STATE_LOADING;
    while (gameState == STATE_LOADING) {
        glutMainLoopEvent();
        onIdleLoad();
    }
    std::printf("A window of %d x %d, drawn by %s\n", layout.windowW, layout.windowH,
                reinterpret_cast<const char*>(glGetString(GL_RENDERER)));
}

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    std::filesystem::current_path(SOURCE_DIR "/data");
    openWindow(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
