#pragma once

// The score sheet over whatever is on the screen, as score_pages tells it: the picture of the paper
// sheet with pawns and numbers laid on it, and its controls.
void drawScorecard();
