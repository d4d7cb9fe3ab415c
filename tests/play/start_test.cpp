#include "play/start.h"

#include "race/event_deck.h"
#include "support/races.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

// Two persons' teams have ridden a race, with what a computer race doesn't use in use as well.
static void rideARace()
{
    startSeededRace(ONE_LAP, 4);
    runComputerRace();
    makeHuman(0);
    makeHuman(2);
    race.wonCardRider[1] = race.wonCardValue[1] = {5, 5, 6, 6};
    race.riders[7].disqualified = race.riders[7].offBoard = race.riders[7].skipTurns = 1;
    race.dopingNumber[3] = 4;
    view = {.viewMode = VIEW_PERSPECTIVE, .cameraIndex = 7, .otherCameraIndex = 2, .shownTeam = 3};
}

TEST(Start, OfASecondRaceIsAsFreshAsOfTheFirst)
{
    rideARace();
    returnState = STATE_ANIMATE;
    courseText = FROM_START_2;
    std::srand(5);
    startRace();
    EXPECT_EQ(gameState, STATE_ORDER_THROW);
    EXPECT_EQ(returnState, STATE_TRANSIT);
    for (const auto& cards : race.cardUsed)
        for (int slot = 0; slot < CARD_SLOT_COUNT; ++slot)
            EXPECT_EQ(cards[slot], slot < SET_CARD_COUNT ? CARD_AVAILABLE : CARD_NONE);
    EXPECT_EQ(race.wonCardRider[1], (Table<int, WON_CARD_COUNT>{-1, -1, -1, -1}));
    for (const Rider& rider : race.riders)
        EXPECT_FALSE(rider.row != -1 || rider.finished || rider.hasMoved || rider.disqualified ||
                     rider.offBoard || rider.skipTurns);
    EXPECT_EQ(race.teamThrow, (filled<int, TEAM_COUNT>(-1)));
    EXPECT_EQ(race.resultSlots, (filled<int, RESULT_SLOT_COUNT>(-1)));
    EXPECT_EQ(race.dopingNumber, (filled<int, RIDER_COUNT>(-1)));
    EXPECT_EQ(race.sprintWinner, -1);
    EXPECT_EQ(race.roundNumber, 1);
    EXPECT_EQ((Square{race.placingRow, race.placingLane}), (Square{0, 4}));
    EXPECT_EQ(course.courseOccupant, gridOf(-1));
    EXPECT_EQ((std::array{view.viewMode, view.cameraIndex, view.otherCameraIndex, view.shownTeam}),
              (std::array<int, 4>{VIEW_FLAT, 1, 3, 0}));
    const auto cards = deck.eventDeck;
    startSeededRace(FROM_START_2, 5);
    EXPECT_EQ(cards, deck.eventDeck); // shuffled anew from the printed order
}

TEST(Start, TeamsOptionsAndStagesLastFromRaceToRace)
{
    rideARace();
    raceSetup.teamName[3] = "Lions";
    raceSetup.eventCardsOn = raceSetup.multiStage = true;
    raceSetup.raceStages.resize(2);
    deck.eventCardPos = 17;
    startRace();
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        EXPECT_EQ(race.riders[rider].isHuman, riderTeam(rider) % 2 == 0) << rider;
    EXPECT_EQ(raceSetup.teamName[3], "Lions");
    EXPECT_TRUE(raceSetup.eventCardsOn && raceSetup.multiStage);
    EXPECT_EQ(raceSetup.raceStages.size(), 2u);
    EXPECT_EQ(deck.eventCardPos, 17);
}
