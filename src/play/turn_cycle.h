#pragma once

// Who is on turn. Runs between any two turns, ends rounds, takes finishers off, ends the stage.

void nextTurn();

// The "OK" to "Rider does not go forward this turn": he is off the board until the round end.
void leaveRound();

// Lifts a rider off the board who misses his turn, or whose turn ends without a step.
void liftOffBoard(int rider);
