#pragma once

#include <string>

// Paints the program's icon into a folder: gravelon.svg, gravelon-<size>.png in the sizes that
// desktops ask for, and window_icon.argb, the pixels that the window shows itself. Says false when
// a file can't be written.
bool paintIcons(const std::string& folder);
