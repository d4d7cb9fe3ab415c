#include "app/host.h"

Host host;

static bool tickPending = false;

void redrawNow()
{
    if (host.redraw)
        host.redraw();
}

void armMoveTimer(int ms)
{
    if (tickPending)
        return;
    tickPending = true;
    if (host.armTimer)
        host.armTimer(ms);
}

void moveTimerFired()
{
    tickPending = false;
}

void toggleFullScreen()
{
    if (host.toggleFullScreen)
        host.toggleFullScreen();
}

void quitProgram()
{
    if (host.quit)
        host.quit();
}
