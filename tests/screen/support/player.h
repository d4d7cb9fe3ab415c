#pragma once

#include "app/settings.h"
#include "screen/support/gl_window.h"
#include "support/fake_host.h"
#include "support/own_folder.h"
#include "support/races.h"
#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/places.h"
#include "ui/texts.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

#include <string_view>
#include <vector>

// A point of the drawing area: the middle of what is clicked, unless told otherwise.
struct Spot {
    Spot(float atX, float atY) : x(atX), y(atY) {}
    Spot(const Rect& at) : x(at.x + at.w * 0.5f), y(at.y + at.h * 0.5f) {}
    Spot(Control control) : Spot(placeOf(control)) {}

    float x, y;
};

// Somebody at the screen. Works the callbacks that GLUT would call, and finds each control where it
// is drawn.
struct Player {
    int held = 0;    // modifier keys, as GLUT's bits
    int pace = 1000; // ms from one press to the next

    void click(Spot at, int button = GLUT_LEFT_BUTTON);
    void click(std::initializer_list<Control> controls); // one after the other
    void doubleClick(Control control);                   // 90 ms from press to press
    void press(Spot at, int button = GLUT_LEFT_BUTTON);
    void release(Spot at, int button = GLUT_LEFT_BUTTON);
    void dragTo(Spot at);
    void hover(Spot at);
    void keyDown(char key);
    void keyUp(char key);
    void key(char key);
    void type(std::string_view keys);
    void special(std::initializer_list<int> glutKeys);
    void special(int glutKey) { special({glutKey}); }
};

// The program just started, in a folder of its own, and somebody at the screen.
class ScreenTest : public testing::Test
{
protected:
    void SetUp() override { startProgram(1280, 1024); }

    // A race of four computer teams that waits for the first "Next".
    static void startRaceOn(std::string_view text);

    // From there to the first computer rider in motion, so many ticks on.
    void goToFirstMove(int ticks = 0);

    OwnFolder here;
    Player player;
};

std::vector<Control> everyControl();

// Every control's, and then every other of ui/places.
std::vector<Rect> everyPlace();
