#pragma once

#include "ui/rect.h"

#include <string_view>

// Somebody at the screen. Works the callbacks that GLUT would call, and finds each control where it
// is drawn.
struct Player {
    int held = 0;    // modifier keys, as GLUT's bits
    int pace = 1000; // ms from one press to the next

    // A press and a release in the middle of the control with this English label, as the present
    // state shows it. Fails the test if the state has none.
    void click(std::string_view label);
    void click(const Rect& at);
    void doubleClick(const Rect& at); // 90 ms from press to press
    void rightClick(const Rect& at);
    void press(float x, float y); // places in the drawing area
    void release(float x, float y);
    void dragTo(float x, float y);
    void hover(const Rect& at);
    void key(char character);
    void special(int glutKey);
};
