#pragma once

#include "app/table.h"
#include "board/course.h"

#include <cstdint>
#include <string>
#include <vector>

// Every record and table of a race, and nothing that acts on them.
//
// -1 means "none" in nearly every index and value: a rider, a card slot, a die, a row.

constexpr int RIDER_COUNT = 16;
constexpr int TEAM_COUNT = 4;
constexpr int RIDERS_PER_TEAM = 4;
constexpr int SET_CARD_COUNT = 14; // slots 0 to 13, the same set for each team
constexpr int WON_CARD_COUNT = 4;  // slots 14 to 17
constexpr int CARD_SLOT_COUNT = SET_CARD_COUNT + WON_CARD_COUNT;
constexpr int DOPING_CARD = 99; // in a slot of playedCards
constexpr int BLUE_CARD = 6;
constexpr int WHITE_CARD = 5;
constexpr int PATH_SQUARES_MAX = 50;
constexpr int RESULT_SLOT_COUNT = 25;
constexpr int SPRINT_PLACES = 3;
constexpr int FINISH_SLOT = SPRINT_COUNT * SPRINT_PLACES; // slot of the finish's first place
constexpr int NAME_LENGTH_MAX = 12;
constexpr int PACKED_COURSE_SIZE = 14; // bytes for the 28 characters of a course

constexpr int CARD_AVAILABLE = 0;
constexpr int CARD_SPENT = 1;
constexpr int CARD_NONE = -1; // a slot for won cards that has never held one

struct Rider {
    int row = -1; // on the course; -1 until placed; kept while off the board
    int lane = -1;
    int skipTurns = 0;        // turns still to miss
    int offBoard = 0;         // lifted off the board until a round end
    int pendingHandIn = 0;    // caught in a crash and has yet to answer
    int hasMoved = 0;         // had his turn in this round, or has none to come
    std::uint8_t isHuman = 0; // the same for all four riders of a team
    int finished = 0;         // off the board for good
    int disqualified = 0;
    double heading = 0.0; // radians, for drawing
    float x = 0.0f;       // board units, for drawing
    float y = 0.0f;
};

struct PathSquare {
    float row = 0.0f;
    float lane = 0.0f;
};

// All that a new race or stage starts afresh.
struct RaceState {
    Table<Rider, RIDER_COUNT> riders{};

    // Cards of each team: CARD_AVAILABLE, CARD_SPENT or CARD_NONE.
    Table2<int, TEAM_COUNT, CARD_SLOT_COUNT> cardUsed{};
    Table2<int, TEAM_COUNT, WON_CARD_COUNT> wonCardRider{};
    Table2<int, TEAM_COUNT, WON_CARD_COUNT> wonCardValue{};

    Table<int, TEAM_COUNT> teamThrow{}; // -1 to throw yet, 0 out of the re-throw
    int firstPlacer = -1;               // rider who is placed first
    int placingRow = 0;                 // cursor; -1 and -1 when placing is over
    int placingLane = 0;

    // The turn in hand.
    int currentRider = -1;
    Table<int, 2> dice{};        // the values that count, thrown or from cards
    Table<int, 2> playedCards{}; // card slot in place of each die, or DOPING_CARD
    int breakaway = 0;           // nobody may follow this move
    int movesTotal = 0;          // dice sum, what the search calls a big or small throw
    int moveBudget = 0;          // squares that the rider may move, -1 before the throw
    int stepsTaken = 0;
    int extraMoves = 0; // from an event card or a card handed in for it
    int bonusMoves = 0; // value of a won card used at once
    int extraDie = -1;
    int dopingCardValue = 0;
    Table<int, 2> handInCards{};
    int followerRider = -1;
    int eventRider = -1; // who drew the lost turn or crash in hand
    float moveStartRow = 0.0f;
    float moveStartLane = 0.0f;
    float moveEndRow = 0.0f;
    float moveEndLane = 0.0f;
    Table<PathSquare, PATH_SQUARES_MAX> pathSquares{};
    Table<int, RIDER_COUNT> followerPlan{}; // reach of the square each would follow to

    // The race.
    int roundNumber = 1;
    Table<int, RIDER_COUNT> dopingNumber{};
    Table<int, RESULT_SLOT_COUNT> resultSlots{}; // a rider or -1, see scoring
    int sprintWinner = -1;
    Table<int, RIDER_COUNT> riderLapCount{};

    // The doping control at the end of the stage.
    Table<int, 2> dopingDraw{}; // the numbers drawn, 1 to 6; 0 before
    int counterDie = 0;         // the die of the countercheck in hand, 1 to 6; 0 before
    int anyDoping = 0;          // whether the draw caught anybody
};

// One finished stage of a race of several stages.
struct StageRecord {
    Table<std::uint8_t, PACKED_COURSE_SIZE>
        course{}; // packed as race files hold it; nothing reads it
    Table<int, RESULT_SLOT_COUNT> slots{};
};

// What lasts from race to race. isHuman lasts too and stands on the riders.
struct RaceSetup {
    Table<std::string, TEAM_COUNT> teamName; // Latin-1, at most 12 characters
    bool eventCardsOn = true;
    bool multiStage = true;
    std::string raceName;          // Latin-1, at most 12 characters
    std::string raceFileName;      // of the race chosen, with ".race"; empty without one
    std::string raceBaseName;      // the same without the extension
    std::string standingsFileName; // what "Export" writes
    std::vector<StageRecord> raceStages;
};

extern RaceState race;
extern RaceSetup raceSetup;

// The strength cards that each team owns: value and the rider's place in the team, -1 for the four
// cards of the whole team.
// clang-format off
//                                                        0  1  2  3  4  5  6  7  8  9  10  11  12  13
constexpr Table<int, SET_CARD_COUNT> cardValue =    {6, 6, 5, 5, 6, 5, 6, 6, 5, 5,  6,  6,  5,  5};
constexpr Table<int, SET_CARD_COUNT> cardOwner =    {0, 0, 0, 0, 1, 1, 2, 2, 3, 3, -1, -1, -1, -1};
constexpr Table<int, RIDERS_PER_TEAM> riderFirstCard = {0, 4, 6, 8};
// clang-format on

constexpr int riderTeam(int rider)
{
    return rider / RIDERS_PER_TEAM;
}

constexpr int riderPlace(int rider)
{
    return rider % RIDERS_PER_TEAM;
}

// The number that the player sees: 21 to 24, 31 to 34, 41 to 44, 51 to 54.
constexpr int riderNumber(int rider)
{
    return riderTeam(rider) * 10 + 21 + riderPlace(rider);
}

// The front-most of the riders for whom choose(rider) is true: the largest row, on equal rows the
// largest lane, of two on the same square the lower index. -1 if there is none.
template <typename Choose> int frontMostRider(Choose choose)
{
    int front = -1;
    for (int i = 0; i < RIDER_COUNT; ++i) {
        const Rider& rider = race.riders[i];
        if (!choose(rider))
            continue;
        if (front == -1 || rider.row > race.riders[front].row ||
            (rider.row == race.riders[front].row && rider.lane > race.riders[front].lane))
            front = i;
    }
    return front;
}
