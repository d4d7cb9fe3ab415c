#pragma once

// What GLUT leaves undone on X11. On other platforms these do nothing.

// A held key reports one release, when it is let go, however long it was held and however busy the
// program was meanwhile. Call once there is a window.
void reportHeldKeysOnce();

// Shift and Tab arrive as the Tab character. Call once there is a window.
void reportShiftTab();
