#pragma once

// Drafting: when a rider has moved, the one who stood directly behind him may jump along and land
// directly behind him again, then the one behind that one, and so on.

// One link of the chain. (startRow, startLane) is where the rider in front began, (endRow, endLane)
// where he ended, moves what a follower's way may cost. Ends in nextTurn or in a person's prompt.
void followChain(int startRow, int startLane, int moves, int endRow, int endLane);

// A person's answers in STATE_FOLLOW_PROMPT; ignored in any other state.
void followYes();
void followNo();
