#pragma once

// The course designer and the browser of saved courses.

// From the course selection.
void openCourseDesigner();
void openSavedCourses();

// The buttons of the designer.
void addToDesign();
void takeBackFromDesign();
void keepDesign();

// Starts a race on the course that has been designed, or on the saved one on view.
void raceOnDesign();

// The saved course so many records further on, if there is one.
void turnSavedCourses(int records);

// A release of the left button beside the designer's buttons, in pixels of the drawing area.
void releaseInSectionList(int x, int y);

// The message about a failed save has been seen.
void forgetSaveFailure();
