#pragma once

// Stands in for the window: counts what is painted and runs the timer on a virtual clock.

struct FakeHost {
    int redraws = 0;
    long clock = 0; // ms that timers have waited so far
    int quits = 0;
    int screenChanges = 0; // between the whole screen and a window
    int pendingMs = -1;    // delay of the tick that is armed, -1 none
};

extern FakeHost fakeHost;

// Answers the rules from now on; forgets what an earlier test left.
void installFakeHost();

// Lets the armed tick fall due. False if none is armed.
bool runTick();

// Lets ticks fall due until none is armed.
void runTimer();
