#pragma once

// The keyboard callbacks. Keys act when they are released, so a held key acts once; the place of
// the pointer isn't used. They call only what the mouse calls too, but for steering and placing.

// Only remembers how a letter was pressed: who lets go of Shift before the key gets his capital.
void onKeyDown(unsigned char key, int x, int y);
void onKeyUp(unsigned char key, int x, int y);
void onSpecialUp(int key, int x, int y);

// The modifier keys held down, as GLUT's bits. glutGetModifiers, unless a test puts its own.
extern int (*heldModifiers)();
