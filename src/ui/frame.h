#pragma once

// Set while there is a window to draw in. Behind the window's end no call may reach OpenGL.
extern bool windowOpen;

// Paints the whole window for the present state and swaps the buffers. The display callback, and
// called by the rules in the middle of a step: a frame is complete and right in any state, and
// relies on nothing that an earlier frame left behind. Without a window it does nothing.
void drawFrame();
