#pragma once

// The dialog box of the present state, on top of what is drawn already. Nothing in a state without.
void drawDialog();
