#pragma once

// Strength cards and dice on the race screen, in pixels of the drawing area.

constexpr int CARD_WON_IN_USE = 98; // the won card used at once, see bonusMoves

// A strength card of a team at (x, y): a slot 0 to 17, CARD_WON_IN_USE or DOPING_CARD. brightness
// is 1 for a card that can be played now and 0.5 for any other.
void drawCard(float x, float y, int team, int card, float brightness);

enum DiceMode { DICE_TURN = 0, DICE_EXTRA = 1 };
void drawDice(DiceMode mode);
