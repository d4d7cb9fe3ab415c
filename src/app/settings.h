#pragma once

// What the user chooses outside a race. Kept in the file "settings" between runs.

constexpr int LANGUAGE_GERMAN = 0;
constexpr int LANGUAGE_ENGLISH = 1;
constexpr int LANGUAGE_FRENCH = 2;
constexpr int LANGUAGE_DUTCH = 3;
constexpr int LANGUAGE_COUNT = 4;

constexpr int DEFAULT_STEP_TIME = 0;
constexpr float DEFAULT_STEP_DISTANCE = 10.0f;
constexpr int DEFAULT_STEP_DELAY = 200;
constexpr int SETTINGS_NUMBER_MAX = 999;

// The shapes of screen that can be chosen.
struct ScreenRatio {
    double w, h;
};
constexpr ScreenRatio SCREEN_RATIOS[] = {{5.0, 4.0}, {4.0, 3.0}, {16.0, 10.0}};

struct Settings {
    int language = LANGUAGE_ENGLISH;            // -1 while the pointer is on no language
    int smoothMovement = 1;                     // 1 smooth, 0 stepwise
    int stepTime = DEFAULT_STEP_TIME;           // ms between ticks of smooth movement, 0 to 999
    float stepDistance = DEFAULT_STEP_DISTANCE; // board units a tick, 0 to 999; below 1: default
    int stepDelay = DEFAULT_STEP_DELAY;         // ms between stepwise ticks, 0 to 999
    double ratioW = -1.0;                       // -1 and -1: no screen ratio chosen
    double ratioH = -1.0;

    friend bool operator==(const Settings&, const Settings&) = default;
};

extern Settings settings;

// What the settings were when their screen was opened: "Cancel" brings them back.
extern Settings settingsBackup;

// The ratio in the settings is the program's own guess from the window's size, neither stored nor
// picked by a person. Such a guess is made again at the next size, and is no setting to be kept.
extern bool ratioChosenByProgram;

// The length of one tick in board units, at least 1: less would carry a rider for minutes, and 0
// for ever. DEFAULT_STEP_DISTANCE stands in for it.
float tickDistance();
