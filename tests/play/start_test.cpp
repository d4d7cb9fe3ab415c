#include "play/start.h"

#include "play/overlays.h"
#include "race/event_deck.h"
#include "support/races.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

// Two persons' teams have ridden a race before, with everything in use that a race can use.
TEST(Start, OfASecondRaceIsAsFreshAsOfTheFirst)
{
    startSeededRace(ONE_LAP, 4);
    runComputerRace();
    makeHuman(0);
    makeHuman(2);
    race.cardUsed = filled2<int, TEAM_COUNT, CARD_SLOT_COUNT>(CARD_SPENT);
    for (Rider& rider : race.riders)
        rider.disqualified = rider.offBoard = rider.skipTurns = rider.pendingHandIn = 1;
    race.dopingNumber[3] = 4;
    race.breakaway = race.bonusMoves = race.extraMoves = race.extraDie = 1;
    view = {.viewMode = VIEW_PERSPECTIVE, .cameraIndex = 7, .otherCameraIndex = 2, .shownTeam = 3};
    returnState = STATE_ANIMATE;
    toMainMenu();
    EXPECT_EQ(race.sprintWinner, -1); // nobody is yellow in the team setup

    courseText = FROM_START_2;
    std::srand(5);
    startRace();
    EXPECT_EQ(gameState, STATE_ORDER_THROW);
    EXPECT_EQ(returnState, STATE_TRANSIT);
    EXPECT_EQ((Square{race.placingRow, race.placingLane}), (Square{0, 4}));
    EXPECT_EQ((std::array{view.viewMode, view.cameraIndex, view.otherCameraIndex, view.shownTeam}),
              (std::array<int, 4>{VIEW_FLAT, 1, 3, 0}));
    for (const auto& cards : race.cardUsed)
        for (int slot = 0; slot < CARD_SLOT_COUNT; ++slot)
            EXPECT_EQ(cards[slot], slot < SET_CARD_COUNT ? CARD_AVAILABLE : CARD_NONE);
    for (int rider = 0; rider < RIDER_COUNT; ++rider) {
        const Rider& fresh = race.riders[rider];
        EXPECT_EQ(fresh.isHuman, riderTeam(rider) % 2 == 0); // as it was
        EXPECT_FALSE(fresh.disqualified || fresh.offBoard || fresh.skipTurns ||
                     fresh.pendingHandIn);
        EXPECT_EQ(race.dopingNumber[rider], -1);
    }
    EXPECT_EQ(race.extraDie, -1);
    EXPECT_FALSE(race.breakaway || race.bonusMoves || race.extraMoves);
    const auto cards = deck.eventDeck;
    startSeededRace(FROM_START_2, 5);
    EXPECT_EQ(cards, deck.eventDeck); // shuffled anew from the printed order
}
