#pragma once

// The reshape callback: lays the screen out for a window of this size in pixels and, if the size is
// another than before, has every display list built for it. The window system may report a size
// more than once, and the size asked for before the one that the window gets.
void onReshape(int width, int height);

// The same at an unchanged size, after a change of the screen ratio.
void layOutAnew();
