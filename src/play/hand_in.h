#pragma once

// Missed turns, and the strength cards handed in to buy them off. A rider with turns to miss has to
// answer at once, in the middle of the turn in hand.

// The front-most rider whom a crash caught and who has yet to answer, or -1.
int nextPendingRider();

// currentRider, a person: he chooses cards, or is told that he has none.
void askHandIn();

// currentRider, a computer rider: pays what he can.
void computerHandIn();

// The answer to "OK" in STATE_SKIP_HANDIN, STATE_SKIP_NO_CARD and STATE_EVENT_HANDIN.
void confirmHandIn();

// Goes on with the next rider who has to answer; with -1 the turn in hand goes on or is lost.
void resumeAfterHandIn(int next);
