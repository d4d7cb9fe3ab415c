#include "screen/support/scenes.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/overlays.h"
#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "board/designer.h"
#include "board/geometry.h"
#include "input/actions.h"
#include "race/cards.h"
#include "race/movement.h"
#include "race/race_state.h"
#include "race/start.h"
#include "store/courses_file.h"
#include "support/fake_host.h"
#include "support/races.h"
#include "ui/manual_pages.h"
#include "ui/settings_screen.h"
#include "ui/team_setup.h"
#include "ui/texts.h"

#include <cstdlib>
#include <filesystem>

namespace
{

constexpr const char* COURSE = "01S23S4S5F12";

void computersThrow()
{
    startSeededRace(COURSE, 11);
}

void personsThrow()
{
    startSeededRace(COURSE, 11);
    makeHuman(0);
    startRace();
}

void computersMove()
{
    startSeededRace(COURSE, 11);
    while (gameState == STATE_ORDER_RESULT)
        advanceComputerRace();
    for (int tick = 0; tick < 3; ++tick)
        runTick();
}

// In round 2, a few riders on a flat road, the second right behind the first.
void personsRide()
{
    setUpPersonsRace(COURSE, {{0, 10, 0}, {4, 8, 0}, {3, 5, 2}, {14, 4, 3}});
    for (int index = 0; index < RIDER_COUNT; ++index) {
        Rider& rider = race.riders[index];
        const BoardPoint at = boardPointOfSquare(rider.row, rider.lane, index);
        rider.x = at.x;
        rider.y = at.y;
    }
}

void personsLead()
{
    personsRide();
    beginPersonsMove(0, 1);
    steer("M");
    endHumanMove();
}

void openSecondPage()
{
    manualPage = 1;
    gameState = STATE_MANUAL;
}

void openSettingsField()
{
    openSettings();
    settings.stepDistance = 345.0f;
    settingsBackup = settings;
    fillSettingsFields(settings);
    settingsScreen.settingsActiveField = FIELD_STEP_DISTANCE;
    settingsScreen.settingsCursor = 1;
}

void setUpTeams()
{
    raceSetup.multiStage = true;
    raceSetup.teamName[1] = "Ab c";
    teamSetup.teamActiveField = 1;
    teamSetup.teamCursor = 2;
    gameState = STATE_TEAM_SETUP;
}

void setUpOneStage()
{
    setUpTeams();
    raceSetup.multiStage = false;
}

void missEverything()
{
    setUpTeams();
    raceSetup.teamName = {};
    confirmTeamSetup();
}

void chooseCourse()
{
    courseText = "64S5F";
    saveDesign();
    courseText.clear();
    returnState = STATE_TEAM_SETUP;
    gameState = STATE_COURSE_SELECT;
}

void design()
{
    courseText = "01S23";
    courseScreens.designChoice = 1;
    gameState = STATE_COURSE_DESIGN;
}

void finishDesign()
{
    courseText = "01S23S4S5F";
    courseScreens.saveFailed = true;
    gameState = STATE_COURSE_DESIGN;
}

void browse()
{
    for (const char* saved : {"64S5F", "01S23S4S5F", "67S8F"}) {
        courseText = saved;
        saveDesign();
    }
    courseScreens.savedCourseIndex = 1;
    courseText = readSavedCourse(1);
    gameState = STATE_COURSE_SAVED;
}

void place()
{
    race.currentRider = 0;
    race.placingRow = 1;
    race.placingLane = firstStartLane() + 1;
    gameState = STATE_PLACE_HUMAN;
}

void waitForThrow()
{
    beginPersonsTurn(0);
}

void layCard()
{
    beginPersonsTurn(0);
    pickCard(12);
    toggleBreakaway();
}

void step()
{
    beginPersonsMove(3, 6);
    stepRider('M');
}

void findNoWay()
{
    beginPersonsTurn(0);
    gameState = STATE_NO_MOVE;
}

void finish()
{
    for (int slot = 0; slot < RESULT_SLOT_COUNT; ++slot)
        race.resultSlots[slot] = slot * 5 % RIDER_COUNT;
    gameState = STATE_FINAL_SCORECARD;
}

void nothing() {}

// What sets up the race, and what is done once the texts are those of the language.
struct SceneRecord {
    const char* name;
    void (*race)();
    void (*act)();
};

// clang-format off
constexpr Table<SceneRecord, SCENE_COUNT> scenes = {{
    {"menu",            nothing,        [] { gameState = STATE_MAIN_MENU; }},
    {"languages",       nothing,        [] { gameState = STATE_LANGUAGE; }},
    {"manual",          nothing,        openSecondPage},
    {"settings",        nothing,        openSettingsField},
    {"teams",           nothing,        setUpTeams},
    {"teams_named",     nothing,        setUpOneStage},
    {"setup_message",   nothing,        missEverything},
    {"courses",         nothing,        chooseCourse},
    {"design",          nothing,        design},
    {"design_finished", nothing,        finishDesign},
    {"saved",           nothing,        browse},
    {"order_throw",     personsThrow,   nothing},
    {"order_result",    computersThrow, nothing},
    {"place",           personsThrow,   place},
    {"turn",            personsRide,    waitForThrow},
    {"turn_with_card",  personsRide,    layCard},
    {"move",            personsRide,    step},
    {"animate",         computersMove,  [] { view.shownTeam = 0; }},
    {"follow",          personsLead,    nothing},
    {"no_move",         personsRide,    findNoWay},
    {"quit",            computersThrow, openQuitConfirm},
    {"final",           computersThrow, finish},
}};
// clang-format on

} // namespace

const char* nameOf(Scene scene)
{
    return scenes[scene].name;
}

void setScene(Scene scene, int language)
{
    const double ratioW = settings.ratioW;
    const double ratioH = settings.ratioH;
    std::filesystem::remove("courses");
    installFakeHost();
    courseText.clear();
    courseScreens = {};
    raceSetup = {};
    race = {};
    view = {};
    teamSetup = {};
    settingsScreen = {};
    manualPage = 0;
    returnState = STATE_TRANSIT;
    gameState = STATE_MAIN_MENU;
    scenes[scene].race();
    settings = {.language = language, .ratioW = ratioW, .ratioH = ratioH};
    loadTexts();
    scenes[scene].act();
}
