#include "input/actions.h"

#include "app/files.h"
#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "board/course.h"
#include "board/designer.h"
#include "play/overlays.h"
#include "play/start.h"
#include "race/race_state.h"
#include "store/race_file.h"
#include "ui/cameras.h"
#include "ui/team_setup.h"
#include "ui/texts.h"

#include <algorithm>
#include <utility>

// A name may have got shorter since, by another language or another race.
static void keepCursorInText()
{
    const int field = teamSetup.teamActiveField;
    const std::string& text = field < TEAM_COUNT ? raceSetup.teamName[field] : raceSetup.raceName;
    teamSetup.teamCursor = std::min(teamSetup.teamCursor, static_cast<int>(text.size()));
}

void openTeamSetup()
{
    keepCursorInText();
    enter(STATE_TEAM_SETUP);
}

static void findSetupFaults()
{
    teamSetup.setupMessages.clear();
    for (int team = 0; team < TEAM_COUNT; ++team)
        if (raceSetup.teamName[team].empty())
            teamSetup.setupMessages.push_back(
                withNumber(texts.enterPlayerName, riderNumber(team * RIDERS_PER_TEAM)));
    if (!raceSetup.multiStage)
        return;
    if (raceSetup.raceName.empty())
        teamSetup.setupMessages.push_back(texts.enterRaceName);
    else if (nameTaken(utf8(raceSetup.raceName) + RACE_EXTENSION))
        teamSetup.setupMessages.push_back(withName(texts.raceNameExists, raceSetup.raceName));
}

void confirmTeamSetup()
{
    findSetupFaults();
    if (!teamSetup.setupMessages.empty()) {
        enter(STATE_SETUP_MESSAGE);
        return;
    }
    raceSetup.raceStages.clear();
    if (raceSetup.multiStage) {
        nameRaceFiles(utf8(raceSetup.raceName));
    } else {
        forgetRaceFiles();
        raceSetup.standingsFileName = "standings.csv";
    }
    goToCourses();
}

void nameRaceFiles(const std::string& baseName)
{
    raceSetup.raceBaseName = baseName;
    raceSetup.raceFileName = baseName + RACE_EXTENSION;
    raceSetup.standingsFileName = baseName + ".csv";
}

void forgetRaceFiles()
{
    raceSetup.raceBaseName.clear();
    raceSetup.raceFileName.clear();
    raceSetup.standingsFileName.clear();
}

void goToCourses()
{
    courseText.clear();
    courseScreens.designChoice = 0;
    courseScreens.courseHover = -1;
    openOverlay(STATE_COURSE_SELECT);
}

void chooseHoveredCourse()
{
    if (courseScreens.courseHover == -1)
        return;
    courseText = fixedCourses[courseScreens.courseHover];
    startRace();
}

void leaveCourseSelection()
{
    enter(returnState);
}

void toggleView()
{
    view.viewMode = view.viewMode == VIEW_FLAT ? VIEW_PERSPECTIVE : VIEW_FLAT;
    std::swap(view.cameraIndex, view.otherCameraIndex);
    redrawNow();
}

void changeCamera(CameraStep step)
{
    constexpr int count = PERSPECTIVE_CAMERA_COUNT;
    constexpr int first = FIRST_PERSPECTIVE_CAMERA;
    if (view.viewMode == VIEW_FLAT)
        view.cameraIndex = view.cameraIndex % 2 + 1;
    else {
        const int move = step == CAMERA_NEXT ? 1 : count - 1;
        view.cameraIndex = (view.cameraIndex - first + move) % count + first;
    }
    redrawNow();
}

void showTeam(int team)
{
    view.shownTeam = team;
    redrawNow();
}
