#pragma once

#include "ui/controls.h"

#include <string_view>
#include <vector>

// Somebody at the screen. Works the callbacks that GLUT would call, and finds each control where it
// is drawn. A click is a press and a release in the middle.
struct Player {
    int held = 0;    // modifier keys, as GLUT's bits
    int pace = 1000; // ms from one press to the next

    void click(const Rect& at, int button = 0);
    void click(Control control) { click(placeOf(control)); }
    void click(std::initializer_list<Control> controls); // one after the other
    void doubleClick(Control control);                   // 90 ms from press to press
    void rightClick(Control control) { click(placeOf(control), 2); }
    void press(float x, float y); // places in the drawing area
    void release(float x, float y);
    void press(const Rect& at);
    void release(const Rect& at);
    void hold(int ms); // lets time pass
    void dragTo(float x, float y);
    void hover(const Rect& at);
    void type(std::string_view keys);
    void press(char key);
    void release(char key);
    void key(char character) { type({&character, 1}); }
    void special(std::initializer_list<int> glutKeys);
    void special(int glutKey) { special({glutKey}); }
};

// Whether two places have more than an edge in common.
bool overlap(const Rect& a, const Rect& b);

// Every control, and then every other place of ui/places.
std::vector<Rect> everyPlace();
