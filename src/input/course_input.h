#pragma once

// The course designer and the browser of saved courses.

// From the course selection.
void openCourseDesigner();
void openSavedCourses();

// A release of the left button, in pixels of the drawing area.
void releaseInCourseDesigner(int x, int y);
void releaseInSavedCourses(int x, int y);

void keyInCourseDesigner(unsigned char key);
