#include "play/start.h"

#include "ai/route_search.h"
#include "app/game_state.h"
#include "app/view.h"
#include "board/course.h"
#include "board/rider_motion.h"
#include "play/placing.h"
#include "race/event_deck.h"
#include "race/race_state.h"

static RaceState freshRace()
{
    RaceState fresh;
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        fresh.riders[rider].isHuman = race.riders[rider].isHuman;
    for (auto& cards : fresh.cardUsed)
        for (int slot = SET_CARD_COUNT; slot < CARD_SLOT_COUNT; ++slot)
            cards[slot] = CARD_NONE;
    fresh.wonCardRider = filled2<int, TEAM_COUNT, WON_CARD_COUNT>(-1);
    fresh.wonCardValue = filled2<int, TEAM_COUNT, WON_CARD_COUNT>(-1);
    fresh.teamThrow = filled<int, TEAM_COUNT>(-1);
    fresh.placingLane = firstStartLane();
    fresh.dice = fresh.playedCards = filled<int, 2>(-1);
    fresh.followerPlan = filled<int, RIDER_COUNT>(-1);
    fresh.dopingNumber = filled<int, RIDER_COUNT>(-1);
    fresh.resultSlots = filled<int, RESULT_SLOT_COUNT>(-1);
    return fresh;
}

void startRace()
{
    race = freshRace();
    assembleCourse();
    view = View{};
    restMotion();
    fillReachTables();
    rebuildEventCards();
    race.currentRider = 0;
    returnState = STATE_TRANSIT;
    enter(STATE_ORDER_THROW);
    if (!race.riders[race.currentRider].isHuman)
        throwForOrder();
}
