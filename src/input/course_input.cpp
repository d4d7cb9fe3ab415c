#include "input/course_input.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "board/course.h"
#include "board/designer.h"
#include "input/actions.h"
#include "input/keys.h"
#include "play/start.h"
#include "store/courses_file.h"
#include "ui/access_keys.h"
#include "ui/controls.h"

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

static void raceOnDesign()
{
    appendRunOut();
    startRace();
}

// The one button that adds sections until the course is finished, and then starts the race.
static void addOrStart()
{
    if (designFinished()) {
        raceOnDesign();
        return;
    }
    addSection();
    redrawNow();
}

static void takeBack()
{
    undoSection();
    redrawNow();
}

static void save()
{
    if (!designFinished())
        return;
    courseScreens.saveFailed = !saveDesign();
    redrawNow();
}

static void releaseInSectionList(int x, int y)
{
    const int count = nextSections().designChoiceCount;
    if (count == 0 || !sectionRadios(count).contains(x, y))
        return;
    const Rect first = sectionRadio(0);
    chooseSection(static_cast<int>((static_cast<float>(y) - first.y) / first.h));
    redrawNow();
}

void releaseInCourseDesigner(int x, int y)
{
    // The message about a failed save has been seen.
    if (courseScreens.saveFailed) {
        courseScreens.saveFailed = false;
        redrawNow();
    }
    if (addSectionButton().contains(x, y))
        return addOrStart();
    if (prevSectionButton().contains(x, y))
        return takeBack();
    if (saveCourseButton().contains(x, y))
        return save();
    if (cornerButton().contains(x, y))
        return enter(STATE_COURSE_SELECT);
    if (sprintBox().contains(x, y))
        toggleSprint();
    else if (finishBox().contains(x, y))
        toggleFinish();
    else
        return releaseInSectionList(x, y);
    redrawNow();
}

void keyInCourseDesigner(unsigned char key)
{
    const bool confirms = isConfirming(key);
    if (designFinished() ? confirms : isAccessKey(CONTROL_ADD_SECTION, key))
        addOrStart();
    else if (isAccessKey(CONTROL_PREVIOUS_SECTION, key))
        takeBack();
}

static void showRecord(int index)
{
    if (index < 0 || index >= countSavedCourses())
        return;
    courseScreens.savedCourseIndex = index;
    courseText = readSavedCourse(index);
    redrawNow();
}

void releaseInSavedCourses(int x, int y)
{
    if (prevCourseButton().contains(x, y))
        showRecord(courseScreens.savedCourseIndex - 1);
    else if (nextCourseButton().contains(x, y))
        showRecord(courseScreens.savedCourseIndex + 1);
    else if (savedBackButton().contains(x, y))
        enter(STATE_COURSE_SELECT);
    else if (savedOkButton().contains(x, y) && !courseText.empty())
        raceOnDesign();
}
