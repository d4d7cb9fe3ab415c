#pragma once

// The score sheet, over the race, behind a stage or over the list of races, and the overview of the
// positions. Positions are pixels of the drawing area, where the left button was let go; keys are
// as GLUT gives them. The dragging of the sheet is the mouse's own.

void releaseInScorecard(int x, int y);
void keyInScorecard(unsigned char key);

// The arrows turn the pages of the stages.
void specialInScorecard(int key);

void releaseInPositions(int x, int y);
void keyInPositions(unsigned char key);
