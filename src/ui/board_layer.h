#pragma once

// The board with its riders, in a viewport of its own: from above, or in perspective. Brings the
// places of all riders up to date on the way.
void drawBoardLayer();
