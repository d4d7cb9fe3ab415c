#pragma once

// Stands in for the window: nothing is painted, and the timer runs when a test lets it.

struct FakeHost {
    int quits = 0;
    int screenChanges = 0; // between the whole screen and a window
    int pendingMs = -1;    // delay of the tick that is armed, -1 none
};

extern FakeHost fakeHost;

// Answers the rules from now on; forgets what an earlier test left.
void installFakeHost();

// Lets the armed tick fall due. False if none is armed.
bool runTick();
