#include "ui/controls.h"

#include "app/settings.h"
#include "app/table.h"
#include "board/course.h"
#include "board/designer.h"
#include "play/doping.h"
#include "race/race_state.h"
#include "ui/keys.h"
#include "ui/layout.h"
#include "ui/manual_pages.h"
#include "ui/places.h"
#include "ui/race_list.h"
#include "ui/score_pages.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <string>

namespace
{

using L = Layout;

// A button from four metrics, or what is worked out otherwise.
struct Place {
    float Layout::*x = nullptr;
    float Layout::*y = nullptr;
    float Layout::*w = nullptr;
    float Layout::*h = nullptr;
    Rect (*workedOut)() = nullptr;
};

// A text of the current language, or one of all of them.
struct Label {
    std::string Texts::*text = nullptr;
    std::string_view fixed = {};
};

enum Traits : unsigned {
    CONFIRMS = 1,   // Enter, Space and O press it
    ONCE = 2,       // another question like it may come in its place
    GROWS_LEFT = 4, // for a label that is too long
    GROWS_RIGHT = 8,
};

struct Row {
    Control control;
    Place place;
    Label label;
    Table<int, LANGUAGE_COUNT>
        letter; // the place in the label of the letter that presses it, or -1
    StateSet states;
    Moment moment;
    unsigned traits = 0;
    bool (*open)() = nullptr; // what else it takes to act
};

constexpr Place at(Rect (*workedOut)())
{
    return {.workedOut = workedOut};
}

template <int team> Rect teamTab()
{
    const float w = layout.cardPanelW * 0.25f;
    return {layout.cardPanelX + static_cast<float>(team) * w, layout.teamTabsY, w,
            layout.teamTabsH};
}

template <int team> Rect computerBox()
{
    return checkBoxArea(layout.teamCheckX,
                        layout.teamNameY + static_cast<float>(team) * layout.teamRowStep,
                        layout.teamCheckSize);
}

// Reaches as far as the column of the extra die, whose button stands beside the label.
Rect breakawayBox()
{
    return {layout.breakawayX, layout.breakawayY, layout.hudCol3X - layout.breakawayX,
            layout.breakawaySize};
}

template <float Layout::*x, float Layout::*y, float Layout::*size> Rect checkBox()
{
    return checkBoxArea(layout.*x, layout.*y, layout.*size);
}

template <float Layout::*y> Rect stageRadio()
{
    return radioArea(layout.stageRadioX, layout.*y, layout.stageRowH,
                     layout.stageRadioX + layout.stageRowH + LABEL_ROOM);
}

template <float Layout::*x, float Layout::*y, float Layout::*frameX> Rect settingsRadio()
{
    return radioArea(layout.*x, layout.*y, layout.settingsRowH,
                     layout.*frameX + layout.settingsFrameW);
}

template <float Layout::*y> Rect ratioRadio()
{
    return settingsRadio<&L::ratioRadioX, y, &L::ratioFrameX>();
}

template <float Layout::*y> Rect movementRadio()
{
    return settingsRadio<&L::movementRadioX, y, &L::movementFrameX>();
}

bool cardLaid()
{
    return race.playedCards[0] != -1 || race.playedCards[1] != -1;
}

bool handInComplete()
{
    return gameState == STATE_SKIP_HANDIN || race.handInCards[0] != -1;
}

bool designOpen()
{
    return !designFinished();
}

bool courseShown()
{
    return !courseText.empty();
}

bool pagesBefore()
{
    return manualPage > 0;
}

bool pagesBehind()
{
    return manualPage + 1 < manualPageCount;
}

constexpr Label OK = {.fixed = "OK"};
constexpr Label LESS = {.fixed = "<"};
constexpr Label MORE = {.fixed = ">"};
constexpr Table<int, LANGUAGE_COUNT> FIRST = {0, 0, 0, 0};
constexpr Table<int, LANGUAGE_COUNT> NONE = {-1, -1, -1, -1};

// clang-format off
constexpr Place CORNER =         {&L::cornerButtonX, &L::cornerButtonY,          &L::buttonW, &L::buttonH};
constexpr Place DIALOG_OK =      {&L::dialogOkX,     &L::dialogButtonY,          &L::buttonW, &L::buttonH};
constexpr Place DIALOG_LEFT =    {&L::dialogLeftX,   &L::dialogButtonY,          &L::buttonW, &L::buttonH};
constexpr Place DIALOG_RIGHT =   {&L::dialogRightX,  &L::dialogButtonY,          &L::buttonW, &L::buttonH};
constexpr Place SHEET_LEAVE =    {&L::scorecardOkX,  &L::scorecardBottomButtonY, &L::buttonW, &L::buttonH};
constexpr Place DICE_BUTTON =    {&L::diceX,         &L::throwButtonY,           &L::cardH,   &L::throwButtonH};
constexpr Place DESIGN_MIDDLE =  {&L::addButtonX,    &L::designButtonY,          &L::designButtonW, &L::buttonH};

constexpr StateSet SETUP = in(STATE_TEAM_SETUP);
constexpr StateSet DESIGN = in(STATE_COURSE_DESIGN);
constexpr StateSet LIST = in(STATE_RACE_FILES);
constexpr StateSet MENU = in(STATE_MAIN_MENU);

// Of two live controls in one place, or with one letter, the upper one counts.
constexpr Table<Row, CONTROL_COUNT> rows = {{
// control                 place                                                                               label                         letter: de en fr nl  acts in               when
{CONTROL_THROW,            DICE_BUTTON,                                                                        {&Texts::throwDice},          FIRST,               in(STATE_TURN),         ON_PRESS},
{CONTROL_ORDER_THROW,      DICE_BUTTON,                                                                        {&Texts::throwDice},          FIRST,               in(STATE_ORDER_THROW),  ON_RELEASE},
{CONTROL_NEXT,             DICE_BUTTON,                                                                        {&Texts::next},               {0, 0, 1, 0},        in(STATE_ORDER_RESULT), ON_RELEASE},
{CONTROL_EXTRA_THROW,      {&L::hudCol3X, &L::extraThrowY, &L::cardH, &L::throwButtonH},                       {&Texts::throwDice},          FIRST,               in(STATE_EVENT_DIE),    ON_PRESS, GROWS_RIGHT},
{CONTROL_BREAKAWAY,        at(breakawayBox),                                                                   {&Texts::breakaway},          FIRST,               in(STATE_TURN),         ON_PRESS, 0, cardLaid},
{CONTROL_DOPING,           {&L::sideButtonX, &L::dopingButtonY, &L::sideButtonW, &L::buttonH},                 {&Texts::doping},             {0, 0, 1, 1},        in(STATE_TURN),         ON_PRESS, GROWS_LEFT, mayDope},
{CONTROL_HAND_IN,          {&L::diceX, &L::handInOkY, &L::cardH, &L::throwButtonH},                            OK,                           FIRST,               in(STATE_SKIP_HANDIN, STATE_EVENT_HANDIN), ON_PRESS_HAND_IN, CONFIRMS | ONCE, handInComplete},
{CONTROL_TAB_1,            at(teamTab<0>),                                                                     {},                           NONE,                TEAM_TAB_STATES,        ON_RELEASE_TAB},
{CONTROL_TAB_2,            at(teamTab<1>),                                                                     {},                           NONE,                TEAM_TAB_STATES,        ON_RELEASE_TAB},
{CONTROL_TAB_3,            at(teamTab<2>),                                                                     {},                           NONE,                TEAM_TAB_STATES,        ON_RELEASE_TAB},
{CONTROL_TAB_4,            at(teamTab<3>),                                                                     {},                           NONE,                TEAM_TAB_STATES,        ON_RELEASE_TAB},
{CONTROL_QUIT,             {&L::cornerButtonX, &L::cornerButtonY, &L::sideButtonW, &L::buttonH},               {&Texts::quit},               {1, 0, 0, 1},        RACE_PANEL_STATES,      ON_PRESS_PANEL, GROWS_LEFT},
{CONTROL_SCORECARD,        {&L::sideButtonX, &L::scorecardButtonY, &L::sideButtonW, &L::buttonH},              {&Texts::scorecard},          FIRST,               RACE_PANEL_STATES,      ON_PRESS_PANEL, GROWS_LEFT},
{CONTROL_POSITIONS,        {&L::sideButtonX, &L::positionsButtonY, &L::sideButtonW, &L::buttonH},              {&Texts::positions},          FIRST,               RACE_PANEL_STATES,      ON_PRESS_PANEL, GROWS_LEFT},
{CONTROL_RACE_SETTINGS,    {&L::sideButtonX, &L::settingsButtonY, &L::sideButtonW, &L::buttonH},               {&Texts::settings},           {0, 1, 1, 0},        RACE_PANEL_STATES,      ON_PRESS_PANEL, GROWS_LEFT},
{CONTROL_VIEW,             {&L::viewToggleX, &L::hudY, &L::viewToggleW, &L::buttonH},                          {},                           NONE,                CAMERA_STATES,          ON_PRESS_CAMERA},
{CONTROL_CAMERA,           {&L::cameraButtonX, &L::hudY, &L::buttonH, &L::buttonH},                            {},                           NONE,                CAMERA_STATES,          ON_PRESS_CAMERA},

{CONTROL_FOLLOW_YES,       DIALOG_LEFT,                                                                        {&Texts::yes},                FIRST,               in(STATE_FOLLOW_PROMPT),       ON_RELEASE_BOX, ONCE},
{CONTROL_FOLLOW_NO,        DIALOG_RIGHT,                                                                       {&Texts::no},                 FIRST,               in(STATE_FOLLOW_PROMPT),       ON_RELEASE_BOX, ONCE},
{CONTROL_QUIT_YES,         DIALOG_LEFT,                                                                        {&Texts::yes},                FIRST,               in(STATE_CONFIRM_QUIT),        ON_RELEASE_BOX, ONCE},
{CONTROL_QUIT_NO,          DIALOG_RIGHT,                                                                       {&Texts::no},                 FIRST,               in(STATE_CONFIRM_QUIT),        ON_RELEASE_BOX, ONCE},
{CONTROL_DOPING_YES,       DIALOG_LEFT,                                                                        {&Texts::yes},                FIRST,               in(STATE_CONFIRM_DOPING),      ON_RELEASE_BOX, ONCE},
{CONTROL_DOPING_NO,        DIALOG_RIGHT,                                                                       {&Texts::no},                 FIRST,               in(STATE_CONFIRM_DOPING),      ON_RELEASE_BOX, ONCE},
{CONTROL_BLUE,             DIALOG_LEFT,                                                                        {&Texts::blue},               {0, 0, 2, 0},        in(STATE_EVENT_CARD_KIND),     ON_RELEASE_BOX, ONCE},
{CONTROL_WHITE,            DIALOG_RIGHT,                                                                       {&Texts::white},              {0, 0, 2, 0},        in(STATE_EVENT_CARD_KIND),     ON_RELEASE_BOX, ONCE},
{CONTROL_IMMEDIATELY,      DIALOG_LEFT,                                                                        {&Texts::immediately},        {-1, 0, 0, 0},       in(STATE_EVENT_CARD_WHEN),     ON_RELEASE_BOX, ONCE},
{CONTROL_LATER,            DIALOG_RIGHT,                                                                       {&Texts::later},              {-1, 0, 0, 0},       in(STATE_EVENT_CARD_WHEN),     ON_RELEASE_BOX, ONCE},
{CONTROL_RETRY,            DIALOG_LEFT,                                                                        {&Texts::retry},              FIRST,               in(STATE_SAVE_FAILED),         ON_RELEASE_BOX, ONCE},
{CONTROL_ABORT,            DIALOG_RIGHT,                                                                       {&Texts::abort},              FIRST,               in(STATE_SAVE_FAILED),         ON_RELEASE_BOX, ONCE},
{CONTROL_EVENT_OK,         DIALOG_OK,                                                                          OK,                           FIRST,               in(STATE_EVENT_CARD),          ON_RELEASE_BOX, CONFIRMS | ONCE},
{CONTROL_NO_EVENT_OK,      DIALOG_OK,                                                                          OK,                           FIRST,               in(STATE_EVENT_NO_CARD),       ON_RELEASE_BOX, CONFIRMS | ONCE},
{CONTROL_NO_MOVE_OK,       DIALOG_OK,                                                                          OK,                           FIRST,               in(STATE_NO_MOVE),             ON_RELEASE_BOX, CONFIRMS | ONCE},
{CONTROL_NO_CARD_OK,       DIALOG_OK,                                                                          OK,                           FIRST,               in(STATE_SKIP_NO_CARD),        ON_RELEASE_BOX, CONFIRMS | ONCE},
{CONTROL_DOPING_NUMBER_OK, DIALOG_OK,                                                                          OK,                           FIRST,               in(STATE_DOPING_NUMBER),       ON_RELEASE_BOX, CONFIRMS | ONCE},
{CONTROL_DOPING_DRAW_OK,   DIALOG_OK,                                                                          OK,                           FIRST,               in(STATE_DOPING_DRAW),         ON_RELEASE_BOX, CONFIRMS | ONCE},
{CONTROL_COUNTERCHECK_OK,  DIALOG_OK,                                                                          OK,                           FIRST,               in(STATE_DOPING_COUNTERCHECK), ON_RELEASE_BOX, CONFIRMS | ONCE},
{CONTROL_SETUP_MESSAGE_OK, DIALOG_OK,                                                                          OK,                           FIRST,               in(STATE_SETUP_MESSAGE),       ON_RELEASE_BOX, CONFIRMS | ONCE},

{CONTROL_SHEET_OK,         SHEET_LEAVE,                                                                        OK,                           FIRST,               in(STATE_SCORECARD, STATE_RACE_STANDINGS), ON_RELEASE_BOX, CONFIRMS},
{CONTROL_SHEET_QUIT,       SHEET_LEAVE,                                                                        {&Texts::quit},               {1, 0, 0, 1},        in(STATE_FINAL_SCORECARD), ON_RELEASE_BOX, GROWS_RIGHT},
{CONTROL_EXPORT,           {&L::exportButtonX, &L::scorecardBottomButtonY, &L::exportButtonW, &L::buttonH},    {&Texts::exportButton},       {1, 1, 1, 1},        SCORECARD_STATES,       ON_RELEASE_BOX, GROWS_LEFT},
{CONTROL_GENERAL,          {&L::generalViewButtonX, &L::scorecardBottomButtonY, &L::stageViewButtonW, &L::buttonH}, {&Texts::general},       {0, 0, 0, -1},       SCORECARD_STATES,       ON_RELEASE_BOX, 0, mayShowGeneral},
{CONTROL_STAGE,            {&L::stageViewButtonX, &L::scorecardBottomButtonY, &L::stageViewButtonW, &L::buttonH}, {&Texts::stageTab},        {0, 0, 4, 0},        SCORECARD_STATES,       ON_RELEASE_BOX, 0, mayShowStage},
{CONTROL_PREVIOUS_STAGE,   {&L::prevStageX, &L::stageArrowY, &L::stageArrowW, &L::buttonH},                    LESS,                         NONE,                SCORECARD_STATES,       ON_RELEASE_BOX, 0, mayTurnBack},
{CONTROL_NEXT_STAGE,       {&L::nextStageX, &L::stageArrowY, &L::stageArrowW, &L::buttonH},                    MORE,                         NONE,                SCORECARD_STATES,       ON_RELEASE_BOX, 0, mayTurnOn},
{CONTROL_POSITIONS_OK,     CORNER,                                                                             OK,                           FIRST,               in(STATE_POSITIONS),    ON_RELEASE_BOX, CONFIRMS},

{CONTROL_START,            {&L::menuButtonX, &L::menuStartY, &L::menuButtonW, &L::menuButtonH},                {&Texts::start},              FIRST,               MENU,                   ON_RELEASE},
{CONTROL_MANUAL,           {&L::menuButtonX, &L::menuManualY, &L::menuButtonW, &L::menuButtonH},               {&Texts::manualButton},       FIRST,               MENU,                   ON_RELEASE},
{CONTROL_MENU_SETTINGS,    {&L::menuButtonX, &L::menuSettingsY, &L::menuButtonW, &L::menuButtonH},             {&Texts::settings},           {0, 2, 0, 0},        MENU,                   ON_RELEASE},
{CONTROL_LANGUAGE,         {&L::menuButtonX, &L::menuLanguageY, &L::menuButtonW, &L::menuButtonH},             {&Texts::languageSelection},  {1, 0, 1, 0},        MENU,                   ON_RELEASE},
{CONTROL_CONTINUE,         {&L::menuButtonX, &L::menuContinueY, &L::menuButtonW, &L::menuButtonH},             {&Texts::continueRace},       {0, 0, 3, 0},        MENU,                   ON_RELEASE},
{CONTROL_EXIT,             CORNER,                                                                             {&Texts::exit},               FIRST,               MENU,                   ON_RELEASE},
{CONTROL_MANUAL_OK,        CORNER,                                                                             OK,                           FIRST,               in(STATE_MANUAL),       ON_RELEASE},
{CONTROL_PREVIOUS_PAGE,    {&L::prevPageX, &L::cornerButtonY, &L::pageButtonW, &L::buttonH},                   {&Texts::previousPage},       NONE,                in(STATE_MANUAL),       ON_RELEASE, 0, pagesBefore},
{CONTROL_NEXT_PAGE,        {&L::nextPageX, &L::cornerButtonY, &L::pageButtonW, &L::buttonH},                   {&Texts::nextPage},           NONE,                in(STATE_MANUAL),       ON_RELEASE, 0, pagesBehind},

{CONTROL_TEAM_OK,          {&L::teamOkX, &L::teamOkY, &L::buttonW, &L::buttonH},                               OK,                           NONE,                SETUP,                  ON_RELEASE},
{CONTROL_TEAM_BACK,        CORNER,                                                                             {&Texts::teamBack},           NONE,                SETUP,                  ON_RELEASE},
{CONTROL_COMPUTER_1,       at(computerBox<0>),                                                                 {&Texts::computerPlayer},     NONE,                SETUP,                  ON_RELEASE},
{CONTROL_COMPUTER_2,       at(computerBox<1>),                                                                 {&Texts::computerPlayer},     NONE,                SETUP,                  ON_RELEASE},
{CONTROL_COMPUTER_3,       at(computerBox<2>),                                                                 {&Texts::computerPlayer},     NONE,                SETUP,                  ON_RELEASE},
{CONTROL_COMPUTER_4,       at(computerBox<3>),                                                                 {&Texts::computerPlayer},     NONE,                SETUP,                  ON_RELEASE},
{CONTROL_MULTI_STAGE,      at(stageRadio<&L::multiStageY>),                                                    {&Texts::multipleStages},     NONE,                SETUP,                  ON_RELEASE},
{CONTROL_SINGLE_STAGE,     at(stageRadio<&L::singleStageY>),                                                   {&Texts::singleStage},        NONE,                SETUP,                  ON_RELEASE},
{CONTROL_EVENT_CARDS,      at(checkBox<&L::eventCheckX, &L::eventCheckY, &L::teamCheckSize>),                  {&Texts::enableEventCards},   NONE,                SETUP,                  ON_RELEASE},

{CONTROL_CREATE_COURSE,    {&L::newCourseButtonX, &L::courseButtonY, &L::courseButtonW, &L::buttonH},          {&Texts::createNewCourse},    FIRST,               in(STATE_COURSE_SELECT), ON_RELEASE},
{CONTROL_SAVED_COURSE,     {&L::savedCourseButtonX, &L::courseButtonY, &L::courseButtonW, &L::buttonH},        {&Texts::useSavedCourse},     FIRST,               in(STATE_COURSE_SELECT), ON_RELEASE},
{CONTROL_COURSE_BACK,      CORNER,                                                                             {&Texts::courseBack},         FIRST,               in(STATE_COURSE_SELECT), ON_RELEASE},
{CONTROL_ADD_SECTION,      DESIGN_MIDDLE,                                                                      {&Texts::addSection},         FIRST,               DESIGN,                 ON_RELEASE, 0, designOpen},
{CONTROL_DESIGN_OK,        DESIGN_MIDDLE,                                                                      OK,                           FIRST,               DESIGN,                 ON_RELEASE, CONFIRMS, designFinished},
{CONTROL_PREVIOUS_SECTION, {&L::prevSectionButtonX, &L::designButtonY, &L::designButtonW, &L::buttonH},        {&Texts::previousSection},    FIRST,               DESIGN,                 ON_RELEASE},
{CONTROL_SAVE_COURSE,      {&L::saveCourseButtonX, &L::designButtonY, &L::designButtonW, &L::buttonH},         {&Texts::saveCourse},         NONE,                DESIGN,                 ON_RELEASE, ONCE | GROWS_LEFT, designFinished},
{CONTROL_DESIGN_BACK,      CORNER,                                                                             {&Texts::courseBack},         NONE,                DESIGN,                 ON_RELEASE},
{CONTROL_SPRINT,           at(checkBox<&L::sprintCheckX, &L::sprintCheckY, &L::designCheckSize>),              {&Texts::sprint},             NONE,                DESIGN,                 ON_RELEASE, 0, sprintChoosable},
{CONTROL_FINISH,           at(checkBox<&L::finishCheckX, &L::finishCheckY, &L::designCheckSize>),              {&Texts::finish},             NONE,                DESIGN,                 ON_RELEASE, 0, finishChoosable},
{CONTROL_PREVIOUS_COURSE,  {&L::prevCourseButtonX, &L::savedButtonY, &L::savedButtonW, &L::buttonH},           {&Texts::previousCourse},     NONE,                in(STATE_COURSE_SAVED), ON_RELEASE},
{CONTROL_NEXT_COURSE,      {&L::nextCourseButtonX, &L::savedButtonY, &L::savedButtonW, &L::buttonH},           {&Texts::nextCourse},         NONE,                in(STATE_COURSE_SAVED), ON_RELEASE},
{CONTROL_SAVED_BACK,       {&L::cornerButtonX, &L::cornerButtonY, &L::savedButtonW, &L::buttonH},              {&Texts::savedBack},          NONE,                in(STATE_COURSE_SAVED), ON_RELEASE},
{CONTROL_SAVED_OK,         {&L::savedOkX, &L::savedButtonY, &L::buttonW, &L::buttonH},                         OK,                           NONE,                in(STATE_COURSE_SAVED), ON_RELEASE, 0, courseShown},

{CONTROL_SETTINGS_OK,      {&L::settingsOkX, &L::settingsOkY, &L::buttonW, &L::buttonH},                       OK,                           NONE,                in(STATE_SETTINGS),     ON_RELEASE},
{CONTROL_SETTINGS_CANCEL,  {&L::settingsCancelX, &L::settingsOkY, &L::buttonW, &L::buttonH},                   {&Texts::cancel},             NONE,                in(STATE_SETTINGS),     ON_RELEASE, GROWS_RIGHT},
{CONTROL_DEFAULT,          {&L::defaultButtonX, &L::defaultButtonY, &L::defaultButtonW, &L::buttonH},          {&Texts::defaultValues},      NONE,                in(STATE_SETTINGS),     ON_RELEASE},
{CONTROL_SMOOTH,           at(movementRadio<&L::smoothRadioY>),                                                {&Texts::smoothMovement},     NONE,                in(STATE_SETTINGS),     ON_RELEASE},
{CONTROL_STEPWISE,         at(movementRadio<&L::stepwiseRadioY>),                                              {&Texts::stepwiseMovement},   NONE,                in(STATE_SETTINGS),     ON_RELEASE},
{CONTROL_RATIO_54,         at(ratioRadio<&L::ratio54Y>),                                                       {&Texts::ratio54},            NONE,                in(STATE_SETTINGS),     ON_RELEASE},
{CONTROL_RATIO_43,         at(ratioRadio<&L::ratio43Y>),                                                       {&Texts::ratio43},            NONE,                in(STATE_SETTINGS),     ON_RELEASE},
{CONTROL_RATIO_1610,       at(ratioRadio<&L::ratio1610Y>),                                                     {&Texts::ratio1610},          NONE,                in(STATE_SETTINGS),     ON_RELEASE},

{CONTROL_LIST_OK,          {&L::listOkX, &L::listButtonY, &L::buttonW, &L::buttonH},                           OK,                           FIRST,               LIST,                   ON_RELEASE, 0, raceChosen},
{CONTROL_LIST_SCORECARD,   {&L::listScorecardX, &L::listButtonY, &L::buttonW, &L::buttonH},                    {&Texts::scorecard},          FIRST,               LIST,                   ON_RELEASE, GROWS_LEFT, raceChosen},
{CONTROL_LIST_BACK,        CORNER,                                                                             {&Texts::courseBack},         FIRST,               LIST,                   ON_RELEASE},
{CONTROL_LIST_PREVIOUS,    {&L::listPrevX, &L::listArrowY, &L::buttonW, &L::buttonH},                          LESS,                         NONE,                LIST,                   ON_RELEASE, 0, racesBefore},
{CONTROL_LIST_NEXT,        {&L::listNextX, &L::listArrowY, &L::buttonW, &L::buttonH},                          MORE,                         NONE,                LIST,                   ON_RELEASE, 0, racesBehind},
}};
// clang-format on

constexpr bool eachInItsPlace()
{
    for (int i = 0; i < CONTROL_COUNT; ++i)
        if (rows[i].control != i)
            return false;
    return true;
}
static_assert(eachInItsPlace(), "a control has no row, or the rows are in another order");

char lowerCase(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

bool isLetterOf(Control control, unsigned char key)
{
    const int index = accessIndex(control);
    const std::string_view label = controlLabel(control);
    return index >= 0 && index < static_cast<int>(label.size()) &&
           lowerCase(label[static_cast<std::size_t>(index)]) == lowerCase(static_cast<char>(key));
}

// The first live control for which choose(row) is true.
template <typename Choose> Control firstLive(Choose choose)
{
    for (const Row& row : rows)
        if (choose(row) && isLive(row.control))
            return row.control;
    return NO_CONTROL;
}

} // namespace

// A button is as wide as its label needs, also where the window is small and letters aren't. It
// grows to both sides unless another button stands close to one.
static Rect withRoomForLabel(Rect place, const Row& row)
{
    constexpr float leastMargin = 1.0f;
    constexpr float margin = 2.0f; // of a button that has grown
    const float labelW = static_cast<float>(textWidth(controlLabel(row.control), FONT_BODY));
    if (labelW + 2.0f * leastMargin <= place.w)
        return place;
    const float lacking = labelW + 2.0f * margin - place.w;
    const float toLeft = (row.traits & GROWS_LEFT) != 0    ? lacking
                         : (row.traits & GROWS_RIGHT) != 0 ? 0.0f
                                                           : lacking * 0.5f;
    return {place.x - toLeft, place.y, place.w + lacking, place.h};
}

Rect placeOf(Control control)
{
    const Row& row = rows[control];
    const Place& place = row.place;
    if (place.workedOut)
        return place.workedOut();
    return withRoomForLabel({layout.*place.x, layout.*place.y, layout.*place.w, layout.*place.h},
                            row);
}

Moment momentOf(Control control)
{
    return rows[control].moment;
}

bool isLive(Control control)
{
    const Row& row = rows[control];
    return row.states.contains(gameState) && (!row.open || row.open());
}

bool asksOnce(Control control)
{
    return (rows[control].traits & ONCE) != 0;
}

std::string_view controlLabel(Control control)
{
    const Label& label = rows[control].label;
    return label.text ? std::string_view(texts.*label.text) : label.fixed;
}

int accessIndex(Control control)
{
    const int language = settings.language;
    if (language < 0 || language >= LANGUAGE_COUNT)
        return NO_ACCESS_KEY;
    return rows[control].letter[language];
}

Control controlAt(int x, int y, Moment moment)
{
    return firstLive([=](const Row& row) {
        return row.moment == moment && placeOf(row.control).contains(x, y);
    });
}

Control controlOfKey(unsigned char key, bool panel)
{
    const auto asked = [=](const Row& row) { return (row.moment == ON_PRESS_PANEL) == panel; };
    if (isConfirming(key)) {
        const Control confirmed =
            firstLive([=](const Row& row) { return asked(row) && (row.traits & CONFIRMS) != 0; });
        if (confirmed != NO_CONTROL)
            return confirmed;
    }
    return firstLive([=](const Row& row) { return asked(row) && isLetterOf(row.control, key); });
}

void drawControl(Control control)
{
    drawControl(control, isLive(control));
}

void drawControl(Control control, bool bright)
{
    const Rect place = placeOf(control);
    drawButton(place.x, place.y, place.w, place.h, bright, controlLabel(control),
               accessIndex(control));
}

void drawCheckControl(Control control, bool checked)
{
    const Rect place = placeOf(control);
    drawCheckBox(static_cast<int>(place.x), static_cast<int>(place.y), static_cast<int>(place.h),
                 controlLabel(control), accessIndex(control), isLive(control), checked);
}
