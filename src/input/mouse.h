#pragma once

// The mouse callbacks: pressing the controls of the present state, dragging dialogs and scorecard,
// hovering over the course pictures. Places are pixels of the window. Which action takes the press
// and which the release is fixed for each control: those of cards, dice and the side panel take the
// press, all others the release.

void onMouse(int button, int buttonState, int x, int y);
void onDrag(int x, int y);
void onHover(int x, int y);

// Milliseconds that tell a double click from two. GLUT's, unless a test puts its own.
extern int (*mouseClock)();
