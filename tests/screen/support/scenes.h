#pragma once

#include <vector>

// The program stopped in each of its states, set up so that as much as can be done there would
// show: where one can be chosen, in the middle of what there is.

// clang-format off
enum class Scene {
    MENU, LANGUAGES, MANUAL, OPTIONS,
    TEAMS,           // several stages and no name for the race
    TEAMS_NAMED,     // one stage
    SETUP_MESSAGE,   // with everything that can be missing
    COURSES,
    DESIGN,          // two sections may come next
    DESIGN_FINISHED, // saving it has just failed
    SAVED,
    ORDER_THROW, ORDER_RESULT, PLACE, TURN,
    TURN_WITH_CARD,  // one in the first place, a breakaway declared
    MOVE, ANIMATE, FOLLOW, NO_MOVE, QUIT, FINAL,
    EVENT_CARD,      // the one with the most words
    CARD_KIND, CARD_WHEN, EVENT_DIE,
    EVENT_HANDIN,    // a card put up
    EVENT_NO_CARD,
    HANDIN,          // two turns to miss, one card put up
    SKIP_NO_CARD, DOPING, DOPING_NUMBER,
    DOPED,           // the doping card in place of the first die, a bonus card in use
    DOPING_DRAW,     // two thirds of the riders caught
    COUNTERCHECK,
    SAVE_FAILED,     // in a folder that isn't there
    SCORECARD,       // in the third stage of a race, on the second
    GENERAL, POSITIONS,
    RACES,           // no race chosen, more to either side
    RACE_CHOSEN, STANDINGS,
};
// clang-format on

std::vector<Scene> everyScene();
const char* nameOf(Scene scene);

// Sets the scene up in a language, on the screen as startProgram left it. Nothing is painted until
// drawFrame, and time stands still. Writes the file "courses" for the saved courses and race files.
void setScene(Scene scene, int language);
