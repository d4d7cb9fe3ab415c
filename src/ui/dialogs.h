#pragma once

// The boxes on top: a row of one table for each state that shows one. Where they stand and the
// buttons in them are told in ui/places and ui/controls.

// Whether the present state shows a dialog, which can then be dragged by its title bar.
bool dialogShown();

void drawDialog();
