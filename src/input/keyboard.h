#pragma once

// The keyboard callbacks. Keys act when they are released, so a held key acts once; the place of
// the pointer isn't used. They call only what the mouse calls too, but for steering, placing,
// and Alt and Enter, which change between the whole screen and a window.

// Only remembers how a key was pressed: who lets go of Shift before the letter gets his capital.
void onKeyDown(unsigned char key, int x, int y);
void onKeyUp(unsigned char key, int x, int y);
void onSpecialUp(int key, int x, int y);

// The modifier keys held down, as GLUT's bits. glutGetModifiers, unless a test puts its own.
extern int (*heldModifiers)();
