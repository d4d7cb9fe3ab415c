#include "input/actions.h"

#include "ai/computer_turn.h"
#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "board/course.h"
#include "board/designer.h"
#include "race/race_state.h"
#include "race/start.h"
#include "ui/cameras.h"
#include "ui/team_setup.h"
#include "ui/texts.h"

#include <utility>

static void enter(GameState state)
{
    gameState = state;
    redrawNow();
}

void openTeamSetup()
{
    enter(STATE_TEAM_SETUP);
}

void confirmTeamSetup()
{
    teamSetup.setupMessages.clear();
    for (int team = 0; team < TEAM_COUNT; ++team)
        if (raceSetup.teamName[team].empty())
            teamSetup.setupMessages.push_back(
                withNumber(texts.enterPlayerName, riderNumber(team * RIDERS_PER_TEAM)));
    if (raceSetup.multiStage && raceSetup.raceName.empty())
        teamSetup.setupMessages.push_back(texts.enterRaceName);
    if (!teamSetup.setupMessages.empty()) {
        enter(STATE_SETUP_MESSAGE);
        return;
    }
    raceSetup.raceStages.clear();
    courseText.clear();
    courseScreens.courseHover = -1;
    returnState = gameState;
    enter(STATE_COURSE_SELECT);
}

void closeSetupMessage()
{
    enter(STATE_TEAM_SETUP);
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

void goOnWithoutEventCard()
{
    if (gameState != STATE_EVENT_NO_CARD)
        return;
    if (race.riders[race.currentRider].isHuman) {
        enter(STATE_MOVE);
        return;
    }
    gameState = STATE_COMPUTING;
    planComputerMove(race.movesTotal, {0, 0});
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
