#pragma once

// The whole board with the four teams round it and a line from each rider to his place, where the
// board layer of the last frame put him.
void drawPositions();
