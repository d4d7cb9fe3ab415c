#pragma once

// The loading stage: the pictures of the nine sections and four fixed courses.

struct LoadingProgress {
    int sections = 0; // index of the section done last, 0 to 8
    int courses = 0;  // fixed courses done, 0 to 4
};

constexpr int LOADING_STEPS = 12; // both at their ends

extern LoadingProgress loadingProgress;

// The idle callback, until the stage is over: does all its work in one call, takes itself off and
// goes to the main menu. Waits for a window with a size.
void onIdleLoad();
