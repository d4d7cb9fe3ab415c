#pragma once

// The lap titles of courseText in a white frame: a line of names and a line of marks for each lap,
// the frame for four laps at the most. The frame begins so many pixels to the left of the text.
void drawCourseTable(float x, float y, float step, int laps, float frameInset);
