#pragma once

// The program stopped in each of its states, set up so that as much as can be done there would
// show.

enum Scene {
    SCENE_MENU,
    SCENE_LANGUAGES,
    SCENE_MANUAL,        // on its second page
    SCENE_SETTINGS,      // from the menu, in the middle of the second field
    SCENE_TEAMS,         // several stages and no name for the race
    SCENE_TEAMS_NAMED,   // one stage
    SCENE_SETUP_MESSAGE, // with everything that can be missing
    SCENE_COURSES,
    SCENE_DESIGN,          // two sections may come next
    SCENE_DESIGN_FINISHED, // saving it has just failed
    SCENE_SAVED,           // the second course of three
    SCENE_ORDER_THROW,
    SCENE_ORDER_RESULT,
    SCENE_PLACE,
    SCENE_TURN,
    SCENE_TURN_WITH_CARD, // one in the first place, a breakaway declared
    SCENE_MOVE,           // behind the first step
    SCENE_ANIMATE,
    SCENE_FOLLOW,
    SCENE_NO_MOVE,
    SCENE_QUIT, // in the throws for the order
    SCENE_FINAL,
    SCENE_COUNT,
};

const char* nameOf(Scene scene);

// Sets the scene up in a language, on the screen as startProgram left it. Nothing is painted until
// drawFrame, and time stands still. Writes the file "courses" for the saved courses.
void setScene(Scene scene, int language);
