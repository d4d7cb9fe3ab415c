#pragma once

#include "app/table.h"

#include <string>
#include <string_view>

// The courses that are ready to race, and the designer that puts a new one together section by
// section. The design in progress is courseText.

constexpr Table<std::string_view, 4> fixedCourses = {"64S5F12", "01S23S7S8F12", "67S8F12",
                                                     "01S23S4S5F12"};

// What the course screens keep.
struct CourseScreens {
    int courseHover = -1;             // fixed course under the mouse, 0 to 3
    int designChoice = 0;             // selected entry of the list of next sections
    bool designSprintChecked = false; // the section that is added next ends in a sprint
    bool designFinishChecked = false; // likewise in the finish; it wins over a sprint
    int savedCourseIndex = 0;         // record shown by the browser of saved courses
    bool saveFailed = false;          // "courses" could not be opened; told until the next click

    friend bool operator==(const CourseScreens&, const CourseScreens&) = default;
};

extern CourseScreens courseScreens;

// The sections that may come next: none behind the finish.
struct NextSections {
    Table<int, 2> section = {-1, -1};
    int designChoiceCount = 0; // 0 to 2
};
NextSections nextSections();

// The section that a picture shows beside the list: the selected one, or the last of a course that
// has its finish.
int previewedSection();

// The sprints in the design so far.
int designSprintCount();

// Whether the course has its finish. The designer closes a course by force behind its fourth lap.
bool designFinished();

// Whether the check boxes can be changed, and whether a section can be taken back.
bool sprintChoosable();
bool finishChoosable();
bool sectionUndoable();

void startDesign(); // an empty course
void addSection();  // the selected section with its marks; nothing once the course is finished
void undoSection(); // the last section, with its marks back in the boxes
void chooseSection(int choice);
void toggleSprint();
void toggleFinish();

// Appends the two sections behind the finish on which the last move of a rider runs out. Only to a
// course that ends in its "F".
void appendRunOut();

// Whether a text is a course as the designer saves it: a start section, sections in the order of
// sectionSuccessors, at most three sprints, and the finish as its last character.
bool isFinishedDesign(std::string_view text);
