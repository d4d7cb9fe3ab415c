// The program, which goes by itself from its main menu to the first turn of a race of four persons.
// It says "STATE_TURN" when it is there and waits, as for a person.

#include "ai/computer_choices.h"
#include "app/game_state.h"
#include "board/course.h"
#include "board/designer.h"
#include "play/placing.h"
#include "play/start.h"
#include "race/race_state.h"

#include <GL/freeglut.h>

#include <cstdio>

constexpr int POLL_MS = 50;

static void answer()
{
    switch (gameState) {
    case STATE_ORDER_THROW:
        return throwForOrder();
    case STATE_ORDER_RESULT:
        return afterOrderThrow();
    case STATE_PLACE_HUMAN: {
        const Square square = chooseStartSquare(race.currentRider);
        race.placingRow = square.row;
        race.placingLane = square.lane;
        return placeHumanRider();
    }
    default:
        return;
    }
}

static void goToTurn()
{
    for (Rider& rider : race.riders)
        rider.isHuman = 1;
    courseText = fixedCourses[3];
    startRace();
    while (gameState != STATE_TURN)
        answer();
    std::puts("STATE_TURN");
    std::fflush(stdout);
}

static void awaitMainMenu(int)
{
    if (gameState == STATE_MAIN_MENU)
        goToTurn();
    else
        glutTimerFunc(POLL_MS, awaitMainMenu, 0);
}

// The linker sends the program's call of glutMainLoop here.
extern "C" void __real_glutMainLoop();
extern "C" void __wrap_glutMainLoop();

extern "C" void __wrap_glutMainLoop()
{
    glutTimerFunc(POLL_MS, awaitMainMenu, 0);
    __real_glutMainLoop();
}
