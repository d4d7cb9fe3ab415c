#pragma once

// Turns one random number and the cards that currentRider has laid into dice; paints.
void throwDice();
