#pragma once

// Steering, undo and the end of a move.

// A step of a person's rider: 'L', 'M' or 'R'. Ignored outside STATE_MOVE, without moves left, and
// where the step rule refuses.
void stepRider(char letter);

// Takes the last step back, down to the start square. Only in STATE_MOVE.
void undoStep();

// Ends a person's move. A rider past the finish must use up his moves, so that the line can't be
// blocked by one who stops just behind it; before that the call is ignored.
void endHumanMove();

// Ends a computer rider's move on the last square of his route.
void endComputerMove();
