#pragma once

// One tick of the timer that carries a computer rider along his route. Anything but value 0 in
// STATE_ANIMATE is dropped, and with it the chain of ticks. The last tick ends the move and so runs
// the followers and the next turn.
void onMoveTimer(int value);
