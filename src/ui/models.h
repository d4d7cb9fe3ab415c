#pragma once

#include "app/table.h"

// Shapes that return on every frame, compiled into display lists from the layout of the moment.

struct DisplayLists {
    unsigned pawnDiscList = 0;
    unsigned pawnBodyList = 0;
    Table<unsigned, 6> pawnTopLists{}; // 0 flat outline, 1 to 4 the teams' figures, 5 the winner's
    Table<unsigned, 6> pawnTurnedLists{}; // 1 to 5 as above, the figure turned by 90 degrees
    unsigned boardList = 0;
    unsigned slantedBoardList = 0; // the same for the perspective view
    unsigned cardOuterList = 0;
    unsigned cardFrameList = 0;
    unsigned cardInnerList = 0;
    unsigned dieList = 0;
    unsigned pipList = 0;
    unsigned scorecardList = 0;
    unsigned scorecardInnerList = 0;
};

extern DisplayLists lists;

// Deletes the lists of an earlier layout and compiles them anew. Needs a GL context, the layout and
// the textures.
void buildDisplayLists();

enum PawnShape { PAWN_FLAT = 0, PAWN_STANDING = 1 };

// Draws a rider's pawn at the origin of the current coordinates. scale is 1 or 0.7. With highlight
// the last sprint winner stands out in yellow.
void drawRider(int rider, PawnShape shape, bool showNumber, float scale, bool highlight);

constexpr int WINNER_FIGURE = 5;

// Which figure a team's riders carry, 1 to 4.
constexpr int teamFigure(int team)
{
    return 1 + team;
}

// Draws a standing pawn at the origin of the current coordinates, its body in the current colour.
// They have been moved to board point (x, y) and rotated by heading (radians); both are told again
// to choose the side of the figure that the camera in use sees best.
void drawStandingPawn(int figure, float x, float y, double heading);

// Whether the figure rides along its way of travel, rather than stand across it: wherever the
// camera in use sees enough of its side. False without a perspective camera.
bool figureTurned(float x, float y, double heading);
