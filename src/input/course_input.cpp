#include "input/course_input.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "board/course.h"
#include "board/designer.h"
#include "play/start.h"
#include "store/courses_file.h"
#include "ui/places.h"

void openCourseDesigner()
{
    startDesign();
    lookFromAbove();
    enter(STATE_COURSE_DESIGN);
}

void openSavedCourses()
{
    courseScreens.savedCourseIndex = 0;
    courseText = readSavedCourse(0);
    enter(STATE_COURSE_SAVED);
}

void raceOnDesign()
{
    appendRunOut();
    startRace();
}

void addToDesign()
{
    addSection();
    redrawNow();
}

void takeBackFromDesign()
{
    undoSection();
    redrawNow();
}

void keepDesign()
{
    courseScreens.saveFailed = !saveDesign();
    redrawNow();
}

void turnSavedCourses(int records)
{
    const int index = courseScreens.savedCourseIndex + records;
    if (index < 0 || index >= countSavedCourses())
        return;
    courseScreens.savedCourseIndex = index;
    courseText = readSavedCourse(index);
    redrawNow();
}

void releaseInSectionList(int x, int y)
{
    const int count = nextSections().designChoiceCount;
    if (count == 0 || !sectionRadios(count).contains(x, y))
        return;
    const Rect first = sectionRadio(0);
    chooseSection(static_cast<int>((static_cast<float>(y) - first.y) / first.h));
    redrawNow();
}

void forgetSaveFailure()
{
    if (!courseScreens.saveFailed)
        return;
    courseScreens.saveFailed = false;
    redrawNow();
}
