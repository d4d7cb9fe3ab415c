#include "support/races.h"

#include "app/settings.h"
#include "board/rider_motion.h"
#include "play/cards.h"
#include "play/doping.h"
#include "play/events.h"
#include "play/movement.h"
#include "play/placing.h"
#include "play/start.h"
#include "play/turn_cycle.h"
#include "race/event_deck.h"
#include "store/race_file.h"
#include "support/fake_host.h"

#include <cstdlib>

void forgetGame()
{
    installFakeHost();
    settings = {};
    raceSetup = {};
    racePreview = {};
    course = {};
    courseText.clear();
    race = {};
    deck = {};
    view = {};
    motion = {};
    returnState = STATE_TRANSIT;
}

void startSeededRace(std::string_view text, unsigned seed)
{
    forgetGame();
    raceSetup.eventCardsOn = raceSetup.multiStage = false;
    std::srand(seed);
    courseText = text;
    startRace();
}

void setUpRace(std::string_view text, const std::vector<Placed>& placed)
{
    startSeededRace(text, 1);
    for (Rider& rider : race.riders)
        rider = {.row = course.finishRow + 1, .lane = 0, .hasMoved = 1, .finished = 1};
    for (const auto& [rider, row, lane, hasMoved] : placed) {
        race.riders[rider] = {.row = row, .lane = lane, .hasMoved = hasMoved};
        course.courseOccupant[row][lane] = rider;
    }
    race.roundNumber = 2;
    race.currentRider = -1;
    race.teamThrow = filled<int, TEAM_COUNT>(2);
    race.placingRow = race.placingLane = -1;
    race.dice = race.playedCards = race.handInCards = filled<int, 2>(-1);
    race.moveBudget = -1;
    gameState = STATE_TRANSIT;
}

void makeHuman(int team)
{
    for (int place = 0; place < RIDERS_PER_TEAM; ++place)
        race.riders[team * RIDERS_PER_TEAM + place].isHuman = 1;
}

void beginPersonsTurn(int rider)
{
    race.currentRider = rider;
    const Rider& record = race.riders[rider];
    course.courseOccupant[record.row][record.lane] = -1;
    race.moveStartRow = static_cast<float>(record.row);
    race.moveStartLane = static_cast<float>(record.lane);
    view.shownTeam = riderTeam(rider);
    gameState = STATE_TURN;
}

void putPersonOnTurn(int rider, Square square)
{
    setUpPersonsRace(ONE_LAP, {{rider, square.row, square.lane}});
    beginPersonsTurn(rider);
}

bool advanceComputerRace()
{
    switch (gameState) {
    case STATE_ORDER_RESULT:
        afterOrderThrow();
        return true;
    case STATE_NO_MOVE:
        leaveRound();
        return true;
    case STATE_EVENT_CARD:
        applyEventCard();
        return true;
    case STATE_EVENT_NO_CARD:
        goOnWithoutEventCard();
        return true;
    case STATE_DOPING_DRAW:
        afterDopingDraw();
        return true;
    case STATE_ANIMATE:
        return runTick();
    default:
        return false;
    }
}

void runComputerRace()
{
    while (advanceComputerRace()) {
    }
}

void setUpPersonsRace(std::string_view text, const std::vector<Placed>& placed)
{
    setUpRace(text, placed);
    for (int team = 0; team < TEAM_COUNT; ++team)
        makeHuman(team);
}

void beginPersonsMove(int rider, int moves)
{
    beginPersonsTurn(rider);
    race.moveBudget = moves;
    race.stepsTaken = 0;
    race.pathSquares[0] = {race.moveStartRow, race.moveStartLane};
    gameState = STATE_MOVE;
}

void steer(std::string_view letters)
{
    for (const char letter : letters)
        stepRider(letter);
}

void pickCards(std::initializer_list<int> slots)
{
    for (const int slot : slots)
        pickCard(slot);
}

void leaveCards(int team, std::initializer_list<int> slots)
{
    for (int slot = 0; slot < SET_CARD_COUNT; ++slot)
        race.cardUsed[team][slot] = CARD_SPENT;
    for (const int slot : slots)
        race.cardUsed[team][slot] = CARD_AVAILABLE;
}

std::vector<int> spentCards(int team)
{
    std::vector<int> spent;
    for (int slot = 0; slot < SET_CARD_COUNT; ++slot)
        if (race.cardUsed[team][slot] == CARD_SPENT)
            spent.push_back(slot);
    return spent;
}

void giveWonCard(int slot, int rider, int value)
{
    const int team = riderTeam(rider);
    race.cardUsed[team][slot] = CARD_AVAILABLE;
    race.wonCardRider[team][slot - SET_CARD_COUNT] = rider;
    race.wonCardValue[team][slot - SET_CARD_COUNT] = value;
}
