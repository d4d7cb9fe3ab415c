#include "support/fake_host.h"

#include "app/host.h"
#include "play/animation.h"

FakeHost fakeHost;

void installFakeHost()
{
    fakeHost = {};
    moveTimerFired();
    host = {.armTimer = [](int ms) { fakeHost.pendingMs = ms; },
            .toggleFullScreen = [] { ++fakeHost.screenChanges; },
            .quit = [] { ++fakeHost.quits; }};
}

bool runTick()
{
    if (fakeHost.pendingMs < 0)
        return false;
    fakeHost.pendingMs = -1;
    onMoveTimer(0);
    return true;
}
