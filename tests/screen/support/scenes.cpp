#include "screen/support/scenes.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "board/designer.h"
#include "board/geometry.h"
#include "input/actions.h"
#include "play/cards.h"
#include "play/doping.h"
#include "play/movement.h"
#include "play/overlays.h"
#include "play/start.h"
#include "race/event_deck.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "store/courses_file.h"
#include "store/race_file.h"
#include "support/fake_host.h"
#include "support/races.h"
#include "ui/manual_pages.h"
#include "ui/race_list.h"
#include "ui/settings_screen.h"
#include "ui/team_setup.h"
#include "ui/texts.h"

#include <cstdlib>
#include <filesystem>

namespace
{

constexpr const char* COURSE = "01S23S4S5F12";

template <bool OF_A_PERSON> void throwForOrder()
{
    startSeededRace(COURSE, 11);
    if (!OF_A_PERSON)
        return;
    makeHuman(0);
    startRace();
}

void computersMove()
{
    throwForOrder<false>();
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
        const BoardPoint at = boardPointOfSquare(rider.row, rider.lane, rider.heading);
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

void chooseCourse()
{
    courseText = "64S5F";
    saveDesign();
    courseText.clear();
    returnState = STATE_TEAM_SETUP;
    gameState = STATE_COURSE_SELECT;
}

template <bool FINISHED> void design()
{
    courseText = FINISHED ? "01S23S4S5F" : "01S23";
    courseScreens.designChoice = !FINISHED;
    courseScreens.saveFailed = FINISHED;
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

void finish()
{
    for (int slot = 0; slot < RESULT_SLOT_COUNT; ++slot)
        race.resultSlots[slot] = slot * 5 % RIDER_COUNT;
    raceSetup.standingsFileName = "standings.csv";
    gameState = STATE_FINAL_SCORECARD;
}

void draw14()
{
    beginPersonsTurn(0);
    race.dice = {3, 4};
    race.movesTotal = race.moveBudget = 7;
    race.pathSquares[0] = {10.0f, 0.0f};
    for (int card = 0; card < EVENT_CARD_COUNT; ++card)
        deck.eventDeck[card] = (card + 14) % EVENT_CARD_COUNT;
    deck.eventCardPos = 0;
    gameState = STATE_EVENT_CARD;
}

template <GameState STATE> void answerEvent()
{
    draw14();
    gameState = STATE;
}

void missTurns()
{
    answerEvent<STATE_SKIP_HANDIN>();
    race.eventRider = 0;
    race.riders[0].skipTurns = 2;
    pickCard(12);
}

void missTurnsWithoutCard()
{
    answerEvent<STATE_SKIP_NO_CARD>();
    race.eventRider = 0;
    race.riders[0].skipTurns = 2;
    race.cardUsed[0] = filled<int, CARD_SLOT_COUNT>(CARD_SPENT);
}

void dope()
{
    beginPersonsTurn(0);
    race.dopingNumber[0] = 4;
    gameState = STATE_DOPING_NUMBER;
}

void takeDope()
{
    dope();
    takeDopingCard();
    race.bonusMoves = WHITE_CARD;
    race.extraDie = 3;
    race.extraMoves = 4;
}

void control()
{
    finish();
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        race.dopingNumber[rider] = rider % 3 + 1;
    race.dopingDraw = {3, 1};
    race.anyDoping = 1;
    race.currentRider = -1;
    gameState = STATE_DOPING_DRAW;
}

void countercheck()
{
    control();
    race.currentRider = 2;
    race.counterDie = 5;
    race.riders[2].disqualified = 1;
    gameState = STATE_DOPING_COUNTERCHECK;
}

void rideTwoStages()
{
    finish();
    StageRecord record;
    record.slots = race.resultSlots;
    raceSetup.multiStage = true;
    raceSetup.raceName = raceSetup.raceBaseName = "Tour";
    raceSetup.standingsFileName = "standings.csv";
    raceSetup.raceStages = {record, record};
}

void failToSave()
{
    rideTwoStages();
    raceSetup.raceFileName = "no such folder here/Tour.race";
    returnState = STATE_RACE_CLOSED;
    gameState = STATE_SAVE_FAILED;
}

void openSecondStage()
{
    rideTwoStages();
    returnState = STATE_TURN;
    view.scorecardStage = 1;
    gameState = STATE_SCORECARD;
}

// On the second of seven columns.
void listRaces()
{
    rideTwoStages();
    raceSetup.eventCardsOn = false;
    raceSetup.teamName[1] = "Rockets";
    makeHuman(1);
    if (!std::filesystem::exists("Tour 0.race")) {
        writeRace("Tour 0.race");
        for (int i = 1; i < 125; ++i)
            std::filesystem::copy_file("Tour 0.race", "Tour " + std::to_string(i) + ".race");
    }
    race.riders[4].isHuman = 0;
    raceSetup.raceStages.clear();
    raceSetup.raceBaseName.clear();
    raceSetup.standingsFileName.clear();
    openRaceList();
    raceList.raceListPage = 1;
    gameState = STATE_RACE_FILES;
}

void chooseFromList()
{
    listRaces();
    nameRaceFiles(raceBaseNameOf(raceList.raceFileList[45]));
    readRacePreview(raceSetup.raceFileName);
}

void openStandings()
{
    chooseFromList();
    raceSetup.standingsFileName = "standings.csv";
    returnState = STATE_RACE_FILES;
    gameState = STATE_RACE_STANDINGS;
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
    {"manual",          nothing,        [] { manualPage = 1; gameState = STATE_MANUAL; }},
    {"settings",        nothing,        openSettingsField},
    {"teams",           nothing,        setUpTeams},
    {"teams_named",     nothing,        [] { setUpTeams(); raceSetup.multiStage = false; }},
    {"setup_message",   nothing,        [] { setUpTeams(); raceSetup.teamName = {}; confirmTeamSetup(); }},
    {"courses",         nothing,        chooseCourse},
    {"design",          nothing,        design<false>},
    {"design_finished", nothing,        design<true>},
    {"saved",           nothing,        browse},
    {"order_throw",     throwForOrder<true>,   nothing},
    {"order_result",    throwForOrder<false>, nothing},
    {"place",           throwForOrder<true>,   place},
    {"turn",            personsRide,    [] { beginPersonsTurn(0); }},
    {"turn_with_card",  personsRide,    [] { beginPersonsTurn(0); pickCard(12); toggleBreakaway(); }},
    {"move",            personsRide,    [] { beginPersonsMove(3, 6); stepRider('M'); }},
    {"animate",         computersMove,  [] { view.shownTeam = 0; }},
    {"follow",          personsLead,    nothing},
    {"no_move",         personsRide,    [] { beginPersonsTurn(0); gameState = STATE_NO_MOVE; }},
    {"quit",            throwForOrder<false>, openQuitConfirm},
    {"final",           throwForOrder<false>, finish},
    {"event_card",      personsRide,    draw14},
    {"card_kind",       personsRide,    answerEvent<STATE_EVENT_CARD_KIND>},
    {"card_when",       personsRide,    [] { answerEvent<STATE_EVENT_CARD_KIND>(); receiveWonCard(WHITE_CARD); }},
    {"event_die",       personsRide,    answerEvent<STATE_EVENT_DIE>},
    {"event_handin",    personsRide,    [] { answerEvent<STATE_EVENT_HANDIN>(); pickCard(12); }},
    {"event_no_card",   personsRide,    answerEvent<STATE_EVENT_NO_CARD>},
    {"handin",          personsRide,    missTurns},
    {"skip_no_card",    personsRide,    missTurnsWithoutCard},
    {"doping",          personsRide,    [] { beginPersonsTurn(0); openOverlay(STATE_CONFIRM_DOPING); }},
    {"doping_number",   personsRide,    dope},
    {"doped",           personsRide,    takeDope},
    {"doping_draw",     personsRide,    control},
    {"countercheck",    personsRide,    countercheck},
    {"save_failed",     throwForOrder<false>, failToSave},
    {"scorecard",       personsRide,    openSecondStage},
    {"general",         personsRide,    [] { openSecondStage(); view.scorecardGeneral = true; }},
    {"positions",       personsRide,    [] { beginPersonsTurn(0); openPositions(); }},
    {"races",           nothing,        listRaces},
    {"race_chosen",     nothing,        chooseFromList},
    {"standings",       nothing,        openStandings},
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
    forgetEverything();
    gameState = STATE_MAIN_MENU;
    scenes[scene].race();
    settings = {.language = language, .ratioW = ratioW, .ratioH = ratioH};
    loadTexts();
    scenes[scene].act();
}
