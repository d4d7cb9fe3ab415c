#pragma once

#include <span>

// Strength cards and dice on the race screen, in pixels of the drawing area.

constexpr int CARD_WON_IN_USE = 98; // the won card used at once, see bonusMoves

// A strength card of a team at (x, y): a slot 0 to 17, CARD_WON_IN_USE or DOPING_CARD. brightness
// is 1 for a card that can be played now and 0.5 for any other.
void drawCard(float x, float y, int team, int card, float brightness);

struct PlacedCard {
    float x = 0.0f;
    float y = 0.0f;
    int team = 0;
    int card = 0; // as for drawCard
    float brightness = 1.0f;
};

// Draws cards that don't overlap: their shapes first, then what is written on them, since OpenGL is
// much slower where shapes and bitmaps, or bitmaps of two colours, take turns. Bitmaps on one line
// go out together, so cards are best given row by row.
void drawCards(std::span<const PlacedCard> cards);

enum DiceMode { DICE_TURN = 0, DICE_EXTRA = 1 };
void drawDice(DiceMode mode);
