#include "ui/card_panel.h"

#include "app/game_state.h"
#include "app/view.h"
#include "board/course.h"
#include "play/cards.h"
#include "race/card_rules.h"
#include "race/race_state.h"
#include "race/rider_place.h"
#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/places.h"
#include "ui/strength_cards.h"
#include "ui/text.h"
#include "ui/widgets.h"

constexpr int BLACK_TEAM = 2; // its colour would hide text and panel

constexpr float BRIGHT = 1.0f;
constexpr float DIM = 0.5f;

static int cardsIn(const Table<int, 2>& places)
{
    return (places[0] != -1 ? 1 : 0) + (places[1] != -1 ? 1 : 0);
}

// Whether one more card may be laid in the present state; outside the states in which cards are
// laid the question doesn't arise.
static bool placeFree()
{
    if (gameState == STATE_TURN)
        return cardsIn(race.playedCards) <
               (terrainOf(race.currentRider) == TERRAIN_COBBLES ? 1 : 2);
    return !cardsActive() || cardsIn(race.handInCards) < handInSlotCount();
}

static bool shownRiderMayUse(int value)
{
    if (race.roundNumber == 1 || race.currentRider == -1)
        return false;
    if (riderTeam(race.currentRider) != view.shownTeam)
        return false;
    if (value == BLUE_CARD && terrainOf(race.currentRider) == TERRAIN_MOUNTAIN)
        return false;
    return placeFree();
}

static bool setCardUsable(int slot)
{
    return cardsActive() && shownRiderMayUse(cardValue[slot]) &&
           (cardOwner[slot] == -1 || cardOwner[slot] == riderPlace(race.currentRider));
}

// Bright in any state of its owner's turn.
static bool wonCardUsable(int k)
{
    return shownRiderMayUse(race.wonCardValue[view.shownTeam][k]) &&
           race.wonCardRider[view.shownTeam][k] == race.currentRider;
}

static bool usable(int slot)
{
    return slot < SET_CARD_COUNT ? setCardUsable(slot) : wonCardUsable(slot - SET_CARD_COUNT);
}

// Slots of the upper row are even, those of the lower one odd.
static void drawTeamCards()
{
    Table<PlacedCard, CARD_SLOT_COUNT> cards{};
    int count = 0;
    for (const int row : {0, 1}) {
        for (int slot = row; slot < CARD_SLOT_COUNT; slot += 2) {
            if (race.cardUsed[view.shownTeam][slot] != CARD_AVAILABLE)
                continue;
            const Rect place = cardPlace(slot);
            cards[count++] = {place.x, place.y, view.shownTeam, slot, usable(slot) ? BRIGHT : DIM};
        }
    }
    drawCards({cards.begin(), static_cast<std::size_t>(count)});
}

static Colour tabColour(int team, bool selected)
{
    if (team == BLACK_TEAM)
        return selected ? disabledGrey : BLACK;
    return selected ? teamColour[team] : teamColourDim[team];
}

// The names behind all four fields: OpenGL is slower where shapes and bitmaps take turns.
static void drawTabs()
{
    for (int team = 0; team < TEAM_COUNT; ++team) {
        const Rect tab = placeOf(static_cast<Control>(CONTROL_TAB_1 + team));
        setColour(tabColour(team, team == view.shownTeam));
        fillRect(tab.x, tab.y, tab.w, tab.h);
    }
    constexpr float titleH = 16.0f;
    for (int team = 0; team < TEAM_COUNT; ++team) {
        const Rect tab = placeOf(static_cast<Control>(CONTROL_TAB_1 + team));
        const Font font = tab.h < titleH ? FONT_BODY : FONT_TITLE;
        setColour(team == view.shownTeam ? WHITE : disabledGrey);
        drawText(tab.x + tab.w * 0.5f, tab.y + tab.h * 0.6f, ALIGN_CENTRE,
                 cutToWidth(raceSetup.teamName[team], tab.w - 4.0f, font), font);
    }
}

void drawCardPanel()
{
    const Rect panel = cardPanel();
    const float border = layout.panelBorder;
    setColour(WHITE);
    fillRect(panel.x - border, panel.y - border, panel.w + 2.0f * border,
             panel.h + layout.teamTabsH + 2.0f * border);

    setColour(view.shownTeam == BLACK_TEAM ? BLACK : teamColourDim[view.shownTeam], 0.75f);
    fillRect(panel.x, panel.y, panel.w, panel.h);
    drawTabs();
    drawTeamCards();
}
