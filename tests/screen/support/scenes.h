#pragma once

// The program stopped in each of its states, set up so that as much as can be done there would
// show: where one can be chosen, in the middle of what there is.

// clang-format off
enum Scene {
    SCENE_MENU, SCENE_LANGUAGES, SCENE_MANUAL, SCENE_SETTINGS,
    SCENE_TEAMS,           // several stages and no name for the race
    SCENE_TEAMS_NAMED,     // one stage
    SCENE_SETUP_MESSAGE,   // with everything that can be missing
    SCENE_COURSES,
    SCENE_DESIGN,          // two sections may come next
    SCENE_DESIGN_FINISHED, // saving it has just failed
    SCENE_SAVED,
    SCENE_ORDER_THROW, SCENE_ORDER_RESULT, SCENE_PLACE, SCENE_TURN,
    SCENE_TURN_WITH_CARD,  // one in the first place, a breakaway declared
    SCENE_MOVE, SCENE_ANIMATE, SCENE_FOLLOW, SCENE_NO_MOVE, SCENE_QUIT, SCENE_FINAL,
    SCENE_EVENT_CARD,      // the one with the most words
    SCENE_CARD_KIND, SCENE_CARD_WHEN, SCENE_EVENT_DIE,
    SCENE_EVENT_HANDIN,    // a card put up
    SCENE_EVENT_NO_CARD,
    SCENE_HANDIN,          // two turns to miss, one card put up
    SCENE_SKIP_NO_CARD, SCENE_DOPING, SCENE_DOPING_NUMBER,
    SCENE_DOPED,           // the doping card in place of the first die, a bonus card in use
    SCENE_DOPING_DRAW,     // two thirds of the riders caught
    SCENE_COUNTERCHECK,
    SCENE_SAVE_FAILED,     // in a folder that isn't there
    SCENE_SCORECARD,       // in the third stage of a race, on the second
    SCENE_GENERAL, SCENE_POSITIONS,
    SCENE_RACES,           // no race chosen, more to either side
    SCENE_RACE_CHOSEN, SCENE_STANDINGS,
    SCENE_COUNT,
};
// clang-format on

const char* nameOf(Scene scene);

// Sets the scene up in a language, on the screen as startProgram left it. Nothing is painted until
// drawFrame, and time stands still. Writes the file "courses" for the saved courses and race files.
void setScene(Scene scene, int language);
