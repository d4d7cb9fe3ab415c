#include "input/acts.h"

#include "app/host.h"
#include "app/settings.h"
#include "app/table.h"
#include "board/designer.h"
#include "input/actions.h"
#include "input/course_input.h"
#include "input/menu_input.h"
#include "input/race_list_input.h"
#include "input/scorecard_input.h"
#include "input/settings_input.h"
#include "input/setup_input.h"
#include "play/cards.h"
#include "play/doping.h"
#include "play/events.h"
#include "play/following.h"
#include "play/hand_in.h"
#include "play/overlays.h"
#include "play/placing.h"
#include "play/stage_end.h"
#include "play/turn_cycle.h"
#include "race/race_state.h"

namespace
{

struct Act {
    Control control;
    void (*run)();
};

// clang-format off
constexpr Table<Act, CONTROL_COUNT> acts = {{
    {CONTROL_THROW,            humanThrow},
    {CONTROL_ORDER_THROW,      throwForOrder},
    {CONTROL_NEXT,             afterOrderThrow},
    {CONTROL_EXTRA_THROW,      throwExtraDie},
    {CONTROL_BREAKAWAY,        toggleBreakaway},
    {CONTROL_DOPING,           askDoping},
    {CONTROL_HAND_IN,          confirmHandIn},
    {CONTROL_TAB_1,            [] { showTeam(0); }},
    {CONTROL_TAB_2,            [] { showTeam(1); }},
    {CONTROL_TAB_3,            [] { showTeam(2); }},
    {CONTROL_TAB_4,            [] { showTeam(3); }},
    {CONTROL_QUIT,             openQuitConfirm},
    {CONTROL_SCORECARD,        openScorecard},
    {CONTROL_POSITIONS,        openPositions},
    {CONTROL_RACE_SETTINGS,    openSettings},
    {CONTROL_VIEW,             toggleView},
    {CONTROL_CAMERA,           [] { changeCamera(CAMERA_NEXT); }},

    {CONTROL_FOLLOW_YES,       followYes},
    {CONTROL_FOLLOW_NO,        followNo},
    {CONTROL_QUIT_YES,         toMainMenu},
    {CONTROL_QUIT_NO,          closeOverlay},
    {CONTROL_DOPING_YES,       confirmDoping},
    {CONTROL_DOPING_NO,        closeOverlay},
    {CONTROL_BLUE,             [] { receiveWonCard(BLUE_CARD); }},
    {CONTROL_WHITE,            [] { receiveWonCard(WHITE_CARD); }},
    {CONTROL_IMMEDIATELY,      [] { useWonCard(true); }},
    {CONTROL_LATER,            [] { useWonCard(false); }},
    {CONTROL_RETRY,            retrySave},
    {CONTROL_ABORT,            abortSave},
    {CONTROL_EVENT_OK,         applyEventCard},
    {CONTROL_NO_EVENT_OK,      goOnWithoutEventCard},
    {CONTROL_NO_MOVE_OK,       leaveRound},
    {CONTROL_NO_CARD_OK,       confirmHandIn},
    {CONTROL_DOPING_NUMBER_OK, takeDopingCard},
    {CONTROL_DOPING_DRAW_OK,   afterDopingDraw},
    {CONTROL_COUNTERCHECK_OK,  nextCountercheck},
    {CONTROL_SETUP_MESSAGE_OK, [] { enter(STATE_TEAM_SETUP); }},

    {CONTROL_SHEET_OK,         leaveScorecard},
    {CONTROL_SHEET_QUIT,       leaveScorecard},
    {CONTROL_EXPORT,           exportSheet},
    {CONTROL_GENERAL,          showGeneral},
    {CONTROL_STAGE,            showLastStage},
    {CONTROL_PREVIOUS_STAGE,   turnStageBack},
    {CONTROL_NEXT_STAGE,       turnStageOn},
    {CONTROL_POSITIONS_OK,     closeOverlay},

    {CONTROL_START,            openTeamSetup},
    {CONTROL_MANUAL,           openManual},
    {CONTROL_MENU_SETTINGS,    openSettings},
    {CONTROL_LANGUAGE,         openLanguages},
    {CONTROL_CONTINUE,         openRaceFiles},
    {CONTROL_EXIT,             quitProgram},
    {CONTROL_MANUAL_OK,        toMainMenu},
    {CONTROL_PREVIOUS_PAGE,    [] { turnManual(-1); }},
    {CONTROL_NEXT_PAGE,        [] { turnManual(1); }},

    {CONTROL_TEAM_OK,          confirmTeamSetup},
    {CONTROL_TEAM_BACK,        toMainMenu},
    {CONTROL_COMPUTER_1,       [] { changePlayer(0); }},
    {CONTROL_COMPUTER_2,       [] { changePlayer(1); }},
    {CONTROL_COMPUTER_3,       [] { changePlayer(2); }},
    {CONTROL_COMPUTER_4,       [] { changePlayer(3); }},
    {CONTROL_MULTI_STAGE,      [] { chooseStages(true); }},
    {CONTROL_SINGLE_STAGE,     [] { chooseStages(false); }},
    {CONTROL_EVENT_CARDS,      toggleEventCards},

    {CONTROL_CREATE_COURSE,    openCourseDesigner},
    {CONTROL_SAVED_COURSE,     openSavedCourses},
    {CONTROL_COURSE_BACK,      leaveCourseSelection},
    {CONTROL_ADD_SECTION,      addToDesign},
    {CONTROL_DESIGN_OK,        raceOnDesign},
    {CONTROL_PREVIOUS_SECTION, takeBackFromDesign},
    {CONTROL_SAVE_COURSE,      keepDesign},
    {CONTROL_DESIGN_BACK,      [] { enter(STATE_COURSE_SELECT); }},
    {CONTROL_SPRINT,           [] { toggleSprint(); redrawNow(); }},
    {CONTROL_FINISH,           [] { toggleFinish(); redrawNow(); }},
    {CONTROL_PREVIOUS_COURSE,  [] { turnSavedCourses(-1); }},
    {CONTROL_NEXT_COURSE,      [] { turnSavedCourses(1); }},
    {CONTROL_SAVED_BACK,       [] { enter(STATE_COURSE_SELECT); }},
    {CONTROL_SAVED_OK,         raceOnDesign},

    {CONTROL_SETTINGS_OK,      confirmSettings},
    {CONTROL_SETTINGS_CANCEL,  cancelSettings},
    {CONTROL_DEFAULT,          takeDefaultSettings},
    {CONTROL_SMOOTH,           [] { chooseMovement(1); }},
    {CONTROL_STEPWISE,         [] { chooseMovement(0); }},
    {CONTROL_RATIO_54,         [] { chooseRatio(SCREEN_RATIOS[0]); }},
    {CONTROL_RATIO_43,         [] { chooseRatio(SCREEN_RATIOS[1]); }},
    {CONTROL_RATIO_1610,       [] { chooseRatio(SCREEN_RATIOS[2]); }},

    {CONTROL_LIST_OK,          continueRace},
    {CONTROL_LIST_SCORECARD,   openStandings},
    {CONTROL_LIST_BACK,        toMainMenu},
    {CONTROL_LIST_PREVIOUS,    [] { turnRaceList(-1); }},
    {CONTROL_LIST_NEXT,        [] { turnRaceList(1); }},
}};
// clang-format on

constexpr bool everyControlActs()
{
    for (int i = 0; i < CONTROL_COUNT; ++i)
        if (acts[i].control != i || !acts[i].run)
            return false;
    return true;
}
static_assert(everyControlActs(), "a control has no act, or the acts are in another order");

} // namespace

void actOn(Control control)
{
    acts[control].run();
}
