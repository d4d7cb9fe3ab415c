#pragma once

// What a window has to say for itself on X11. On other platforms these do nothing. Call them once
// there is a window.

// Tells the desktop whose window this is: its class, by which a desktop finds the entry in its
// menu, its title, and its icon in four sizes.
void introduceWindow();

// Makes OpenGL draw in the size that the window has by now. Mesa's software renderer asks for it
// only when a window is taken up and after each swap: the first frame would be drawn, and its
// memory touched, for the size in which the window was opened.
void takeUpWindowAnew();

// How many dots to an inch the desktop draws its texts with, by its resource "Xft.dpi"; 0 if it
// doesn't say.
double dotsPerInch();

// Where there are several monitors, puts the window on the main one, for a window manager to make
// it full-screen there. True if there is no window manager and the window covers that monitor
// already: a full screen of GLUT's would cover all of them.
bool coverMainMonitor();

// Whether there is a window manager that can show the window full-screen. It is asked directly:
// GLUT would do so only when its loop begins, by which time the window could have its size, and
// can't be told when the manager changes its mind.
bool managerMakesFullScreen();

// Asks it to begin or to end that, and whether it is doing so. Only where it can.
void askForFullScreen(bool full);
bool managerShowsFullScreen();
