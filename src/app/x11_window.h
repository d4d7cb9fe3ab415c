#pragma once

// Tells the desktop whose window this is: its class, by which a desktop finds the entry in its
// menu, its title, and its icon in four sizes. Call once there is a window; on other platforms than
// X11 it does nothing.
void introduceWindow();
