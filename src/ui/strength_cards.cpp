#include "ui/strength_cards.h"

#include "race/race_state.h"
#include "ui/layout.h"
#include "ui/models.h"
#include "ui/places.h"
#include "ui/text.h"
#include "ui/widgets.h"

#include <GL/gl.h>

#include <algorithm>
#include <string>

constexpr Colour cardBlue = {0.0f, 0.0f, 1.0f};

struct CardFace {
    int value = BLUE_CARD;
    std::string rider;
};

static std::string numberInTeam(int team, int place)
{
    return std::to_string(riderNumber(team * RIDERS_PER_TEAM + place));
}

static CardFace setCardFace(int team, int card)
{
    const int owner = cardOwner[card];
    return {cardValue[card], owner == -1 ? "P" : numberInTeam(team, owner)};
}

static CardFace wonCardFace(int team, int slot)
{
    return {race.wonCardValue[team][slot],
            std::to_string(riderNumber(race.wonCardRider[team][slot]))};
}

static CardFace cardFace(int team, int card)
{
    if (card == DOPING_CARD)
        return {race.dopingCardValue, "D"};
    if (card == CARD_WON_IN_USE)
        return {race.bonusMoves, numberInTeam(team, riderPlace(race.currentRider))};
    if (card >= SET_CARD_COUNT)
        return wonCardFace(team, card - SET_CARD_COUNT);
    return setCardFace(team, card);
}

static int valueOf(const PlacedCard& card)
{
    return cardFace(card.team, card.card).value;
}

static void drawBlankCard(const PlacedCard& card)
{
    glPushMatrix();
    glTranslatef(card.x, card.y, 0.0f);
    setColour(valueOf(card) == WHITE_CARD ? WHITE : cardBlue, card.brightness);
    glCallList(lists.cardOuterList);
    setColour(cardBlue, card.brightness);
    glCallList(lists.cardFrameList);
    setColour(WHITE, card.brightness);
    glCallList(lists.cardInnerList);
    glPopMatrix();
}

static void drawCardRider(const PlacedCard& card)
{
    setColour(cardBlue, card.brightness);
    drawText(card.x + layout.cardW * 0.5f, card.y + layout.cardH * 0.35f, ALIGN_CENTRE,
             cardFace(card.team, card.card).rider);
}

static void drawCardValue(const PlacedCard& card)
{
    const bool white = valueOf(card) == WHITE_CARD;
    setColour(white ? cardBlue : WHITE, card.brightness);
    drawText(card.x + layout.cardW * 0.5f, card.y + layout.cardH * 0.85f, ALIGN_CENTRE,
             white ? "5" : "6");
}

void drawCards(std::span<const PlacedCard> cards)
{
    std::ranges::for_each(cards, drawBlankCard);
    std::ranges::for_each(cards, drawCardRider);
    for (const bool white : {false, true})
        for (const PlacedCard& card : cards)
            if ((valueOf(card) == WHITE_CARD) == white)
                drawCardValue(card);
}

void drawCard(float x, float y, int team, int card, float brightness)
{
    const PlacedCard one = {x, y, team, card, brightness};
    drawCards({&one, 1});
}

struct Pip {
    float x, y;    // in sides of the die
    bool faces[7]; // shown by the value 0 to 6
};

// clang-format off
//                                             0      1      2      3      4      5      6
constexpr Pip pips[] = {
    {0.50f, 0.50f, {false, true,  false, true,  false, true,  false}},
    {0.25f, 0.25f, {false, false, true,  true,  true,  true,  true }},
    {0.75f, 0.75f, {false, false, true,  true,  true,  true,  true }},
    {0.75f, 0.25f, {false, false, false, false, true,  true,  true }},
    {0.25f, 0.75f, {false, false, false, false, true,  true,  true }},
    {0.25f, 0.50f, {false, false, false, false, false, false, true }},
    {0.75f, 0.50f, {false, false, false, false, false, false, true }},
};
// clang-format on

static void drawPips(int value)
{
    if (value < 1 || value > 6)
        return;
    for (const Pip& pip : pips) {
        if (!pip.faces[value])
            continue;
        glPushMatrix();
        glTranslatef(pip.x * layout.cardH, pip.y * layout.cardH, 0.0f);
        glCallList(lists.pipList);
        glPopMatrix();
    }
}

static void drawDie(const Rect& place, int value)
{
    glPushMatrix();
    glTranslatef(place.x, place.y, 0.0f);
    glCallList(lists.dieList);
    drawPips(value);
    glPopMatrix();
}

// A card that is played lies on its die.
static void drawTurnDice()
{
    Table<PlacedCard, 2> cards{};
    std::size_t count = 0;
    for (const int place : {0, 1}) {
        const Rect at = dicePlace(place);
        const int card = race.playedCards[place];
        drawDie(at, card == -1 ? race.dice[place] : -1);
        if (card != -1)
            cards.items[count++] = {at.x + (at.w - layout.cardW) * 0.5f, at.y,
                                    riderTeam(race.currentRider), card, 1.0f};
    }
    drawCards({cards.begin(), count});
}

void drawDice(DiceMode mode)
{
    if (mode == DICE_EXTRA)
        drawDie(extraDicePlace(), race.extraDie);
    else
        drawTurnDice();
}
