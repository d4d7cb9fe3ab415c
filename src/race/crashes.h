#pragma once

// How a crash spreads: backwards, through every rider close behind or diagonally behind, in a
// chain. Teams and turns play no part.

// Brings down the rider on (row, lane), who must stand there, and whoever he takes with him: each
// has one turn to miss and has yet to answer for it. Riders with turns to miss already are down and
// take nobody with them. startRow is the row where the crash began.
void crashChain(int row, int lane, int startRow);
