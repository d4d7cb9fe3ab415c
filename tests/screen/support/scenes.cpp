#include "screen/support/scenes.h"

#include "app/settings.h"
#include "board/designer.h"
#include "board/geometry.h"
#include "input/actions.h"
#include "play/cards.h"
#include "play/doping.h"
#include "play/movement.h"
#include "play/start.h"
#include "race/event_deck.h"
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

#include <filesystem>

namespace
{

// What there is before the texts are those of the language: a race, and whose turn it is.

void nothing() {}

void computersThrow()
{
    startSeededRace(ONE_LAP, 11);
}

void personThrows()
{
    computersThrow();
    makeHuman(0);
    startRace();
}

void computersMove()
{
    computersThrow();
    while (gameState == STATE_ORDER_RESULT)
        advanceComputerRace();
    for (int tick = 0; tick < 3; ++tick)
        runTick();
}

// In round 2, a few riders on a flat road, the second right behind the first.
void personsRide()
{
    setUpPersonsRace(ONE_LAP, {{0, 10, 0}, {4, 8, 0}, {3, 5, 2}, {14, 4, 3}});
    for (Rider& rider : race.riders) {
        const BoardPoint at = boardPointOfSquare(rider.row, rider.lane, rider.heading);
        rider.x = at.x;
        rider.y = at.y;
    }
}

void personsTurn()
{
    personsRide();
    beginPersonsTurn(0);
}

template <int RIDER, int MOVES> void personSteers()
{
    personsRide();
    beginPersonsMove(RIDER, MOVES);
    steer("M");
}

void personLeads()
{
    personSteers<0, 1>();
    endHumanMove();
}

void personDraws()
{
    personsTurn();
    race.dice = {3, 4};
    race.movesTotal = race.moveBudget = 7;
    race.pathSquares[0] = {10.0f, 0.0f};
    for (int card = 0; card < EVENT_CARD_COUNT; ++card)
        deck.eventDeck[card] = (card + 14) % EVENT_CARD_COUNT;
    deck.eventCardPos = 0;
}

void personMissesTurns()
{
    personDraws();
    race.eventRider = 0;
    race.riders[0].skipTurns = 2;
}

void personDopes()
{
    personsTurn();
    race.dopingNumber[0] = 4;
}

// What is done with it in the state of the scene.

void openSettingsField()
{
    settings.stepDistance = 345.0f;
    settingsBackup = settings;
    fillSettingsFields(settings);
    settingsScreen.settingsActiveField = FIELD_STEP_DISTANCE;
    settingsScreen.settingsCursor = 1;
}

void setUpTeams()
{
    raceSetup.teamName[1] = "Ab c";
    teamSetup.teamActiveField = 1;
    teamSetup.teamCursor = 2;
}

void failSetup()
{
    setUpTeams();
    raceSetup.teamName = {};
    confirmTeamSetup();
}

void design()
{
    courseText = "01S23";
    courseScreens.designChoice = 1;
}

void finishDesign()
{
    courseText = "01S23S4S5F";
    courseScreens.saveFailed = true;
}

void browse()
{
    for (const char* saved : {"64S5F", "01S23S4S5F", "67S8F"}) {
        courseText = saved;
        saveDesign();
    }
    courseScreens.savedCourseIndex = 1;
    courseText = readSavedCourse(1);
}

void place()
{
    race.currentRider = 0;
    race.placingRow = 1;
    race.placingLane = firstStartLane() + 1;
}

void takeDope()
{
    gameState = STATE_DOPING_NUMBER;
    takeDopingCard();
    race.bonusMoves = WHITE_CARD;
    race.extraDie = 3;
    race.extraMoves = 4;
}

void receiveCard()
{
    gameState = STATE_EVENT_CARD_KIND;
    receiveWonCard(WHITE_CARD);
}

void finish()
{
    for (int slot = 0; slot < RESULT_SLOT_COUNT; ++slot)
        race.resultSlots[slot] = slot * 5 % RIDER_COUNT;
    raceSetup.standingsFileName = "standings.csv";
}

void control()
{
    finish();
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        race.dopingNumber[rider] = rider % 3 + 1;
    race.dopingDraw = {3, 1};
    race.anyDoping = 1;
    race.currentRider = -1;
}

void countercheck()
{
    control();
    race.currentRider = 2;
    race.counterDie = 5;
    race.riders[2].disqualified = 1;
}

void rideTwoStages()
{
    finish();
    StageRecord record;
    record.slots = race.resultSlots;
    raceSetup.multiStage = true;
    raceSetup.raceName = raceSetup.raceBaseName = "Tour";
    raceSetup.raceStages = {record, record};
}

void failToSave()
{
    rideTwoStages();
    raceSetup.raceFileName = "no such folder here/Tour.race";
}

template <bool GENERAL> void openSecondStage()
{
    rideTwoStages();
    view.scorecardStage = 1;
    view.scorecardGeneral = GENERAL;
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
}

void chooseFromList()
{
    listRaces();
    nameRaceFiles(raceBaseNameOf(raceList.raceFileList[45]));
    readRacePreview(raceSetup.raceFileName);
}

struct SceneRecord {
    const char* name;
    GameState state;
    void (*race)();
    void (*act)() = nothing;
    GameState behind = STATE_TRANSIT; // what it leads back to
};

// clang-format off
constexpr SceneRecord scenes[] = {
    {"menu",            STATE_MAIN_MENU,           nothing},
    {"languages",       STATE_LANGUAGE,            nothing},
    {"manual",          STATE_MANUAL,              nothing,        [] { manualPage = 1; }},
    {"settings",        STATE_SETTINGS,            nothing,        openSettingsField, STATE_MAIN_MENU},
    {"teams",           STATE_TEAM_SETUP,          nothing,        setUpTeams},
    {"teams_named",     STATE_TEAM_SETUP,          nothing,        [] { setUpTeams(); raceSetup.multiStage = false; }},
    {"setup_message",   STATE_SETUP_MESSAGE,       nothing,        failSetup},
    {"courses",         STATE_COURSE_SELECT,       nothing,        [] { browse(); courseText.clear(); }, STATE_TEAM_SETUP},
    {"design",          STATE_COURSE_DESIGN,       nothing,        design},
    {"design_finished", STATE_COURSE_DESIGN,       nothing,        finishDesign},
    {"saved",           STATE_COURSE_SAVED,        nothing,        browse},
    {"order_throw",     STATE_ORDER_THROW,         personThrows},
    {"order_result",    STATE_ORDER_RESULT,        computersThrow},
    {"place",           STATE_PLACE_HUMAN,         personThrows,   place},
    {"turn",            STATE_TURN,                personsTurn},
    {"turn_with_card",  STATE_TURN,                personsTurn,    [] { pickCard(12); toggleBreakaway(); }},
    {"move",            STATE_MOVE,                personSteers<3, 6>},
    {"animate",         STATE_ANIMATE,             computersMove,  [] { view.shownTeam = 0; }},
    {"follow",          STATE_FOLLOW_PROMPT,       personLeads},
    {"no_move",         STATE_NO_MOVE,             personsTurn},
    {"quit",            STATE_CONFIRM_QUIT,        computersThrow, nothing, STATE_ORDER_RESULT},
    {"final",           STATE_FINAL_SCORECARD,     computersThrow, finish},
    {"event_card",      STATE_EVENT_CARD,          personDraws},
    {"card_kind",       STATE_EVENT_CARD_KIND,     personDraws},
    {"card_when",       STATE_EVENT_CARD_WHEN,     personDraws,    receiveCard},
    {"event_die",       STATE_EVENT_DIE,           personDraws},
    {"event_handin",    STATE_EVENT_HANDIN,        personDraws,    [] { pickCard(12); }},
    {"event_no_card",   STATE_EVENT_NO_CARD,       personDraws},
    {"handin",          STATE_SKIP_HANDIN,         personMissesTurns, [] { pickCard(12); }},
    {"skip_no_card",    STATE_SKIP_NO_CARD,        personMissesTurns, [] { leaveCards(0, {}); }},
    {"doping",          STATE_CONFIRM_DOPING,      personsTurn,    nothing, STATE_TURN},
    {"doping_number",   STATE_DOPING_NUMBER,       personDopes},
    {"doped",           STATE_TURN,                personDopes,    takeDope},
    {"doping_draw",     STATE_DOPING_DRAW,         personsRide,    control},
    {"countercheck",    STATE_DOPING_COUNTERCHECK, personsRide,    countercheck},
    {"save_failed",     STATE_SAVE_FAILED,         computersThrow, failToSave, STATE_RACE_CLOSED},
    {"scorecard",       STATE_SCORECARD,           personsRide,    openSecondStage<false>, STATE_TURN},
    {"general",         STATE_SCORECARD,           personsRide,    openSecondStage<true>, STATE_TURN},
    {"positions",       STATE_POSITIONS,           personsTurn,    nothing, STATE_TURN},
    {"races",           STATE_RACE_FILES,          nothing,        listRaces},
    {"race_chosen",     STATE_RACE_FILES,          nothing,        chooseFromList},
    {"standings",       STATE_RACE_STANDINGS,      nothing,        [] { chooseFromList(); raceSetup.standingsFileName = "standings.csv"; }, STATE_RACE_FILES},
};
// clang-format on
static_assert(std::size(scenes) == static_cast<int>(Scene::STANDINGS) + 1);

const SceneRecord& recordOf(Scene scene)
{
    return scenes[static_cast<std::size_t>(scene)];
}

} // namespace

std::vector<Scene> everyScene()
{
    std::vector<Scene> all;
    for (std::size_t i = 0; i < std::size(scenes); ++i)
        all.push_back(static_cast<Scene>(i));
    return all;
}

const char* nameOf(Scene scene)
{
    return recordOf(scene).name;
}

void setScene(Scene scene, int language)
{
    const double ratioW = settings.ratioW;
    const double ratioH = settings.ratioH;
    std::filesystem::remove("courses");
    forgetEverything();
    recordOf(scene).race();
    settings = {.language = language, .ratioW = ratioW, .ratioH = ratioH};
    loadTexts();
    gameState = recordOf(scene).state;
    returnState = recordOf(scene).behind;
    recordOf(scene).act();
}
