#pragma once

// What the rules ask of the program round them. A window fills it in; so does a test. Without
// anybody to answer, every call does nothing, so that the rules run by themselves.

struct Host {
    void (*redraw)() = nullptr;           // paint a whole frame of the present state, now
    void (*armTimer)(int ms) = nullptr;   // call onMoveTimer(0) once after ms milliseconds
    void (*toggleFullScreen)() = nullptr; // from the whole screen to a window and back
    void (*quit)() = nullptr;             // end the program
};

extern Host host;

// Paints at once, in the middle of a step, so that the player sees dice before their result.
void redrawNow();

// Arms the one timer of the game. ms is 0 or more. While a tick is already pending nothing is
// armed: a second chain of ticks would run the animation at double speed.
void armMoveTimer(int ms);

// To be called first by whoever receives the tick: it is no longer pending.
void moveTimerFired();

// From the whole screen to a window and back; what is seen follows with the next reshape.
void toggleFullScreen();

// Ends the program at once; nothing is written on the way out.
void quitProgram();
