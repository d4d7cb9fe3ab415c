#include "board/designer.h"
#include "screen/support/player.h"
#include "screen/support/scenes.h"
#include "store/race_file.h"
#include "ui/manual_pages.h"
#include "ui/race_list.h"
#include "ui/settings_screen.h"
#include "ui/team_setup.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <tuple>

// Every key and every control is tried in every state. The tables say what acts where, on the press
// or the release, by which letter, and what it may change; whatever they don't name must change
// nothing at all. They are written by what the game is to do, not by the rows of ui/controls.

namespace
{

using enum Scene;

using Scenes = std::vector<Scene>;

Scenes operator+(Scenes a, const Scenes& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

const Scenes LOOK_AND_PANEL = {ORDER_THROW, ORDER_RESULT, PLACE,   TURN,      TURN_WITH_CARD,
                               DOPED,       MOVE,         ANIMATE, EVENT_DIE, HANDIN};
const Scenes PANEL = LOOK_AND_PANEL + Scenes{EVENT_HANDIN};
const Scenes LOOK = LOOK_AND_PANEL + Scenes{FOLLOW, EVENT_CARD, CARD_KIND, CARD_WHEN};
const Scenes TEAM_TURN =
    LOOK_AND_PANEL + Scenes{EVENT_CARD,  CARD_KIND,     CARD_WHEN,    EVENT_HANDIN, NO_MOVE,
                            QUIT,        EVENT_NO_CARD, SKIP_NO_CARD, DOPING,       DOPING_NUMBER,
                            DOPING_DRAW, COUNTERCHECK,  SAVE_FAILED};
const Scenes TABS = TEAM_TURN + Scenes{FOLLOW};
const Scenes LAYING = {TURN, TURN_WITH_CARD, DOPED, HANDIN};
const Scenes SHEETS = {FINAL, SCORECARD, GENERAL, STANDINGS};

// What an act may change, beside the state.
enum Part : unsigned {
    NOTHING = 0,
    RACE = 1,     // the race, and who stands where
    SETUP = 2,    // teams and stages, the fields and messages of their screen
    SETTINGS = 4, // settings and the fields of their screen
    COURSE = 8,   // the course and what its screens keep
    VIEW = 16,
    PAGE = 32,
    PROGRAM = 64, // ends
    FILES = 128,
    LIST = 256, // of races, and what the file of the one chosen holds
};

constexpr GameState SAME = static_cast<GameState>(STATE_COUNT); // the state stays

struct Effect {
    GameState to = SAME;
    unsigned parts = NOTHING;
    unsigned mayChange = NOTHING; // in addition, by where exactly the control is met
};

// A control, or another place that is clicked.
struct Target {
    Target(Control it) : control(it), place(placeOf(it)) {}
    Target(const Rect& at) : place(at) {}

    Control control = NO_CONTROL;
    Rect place;
};

enum When { PRESS, RELEASE };

// letters: in German, English, French and Dutch, a blank for none.
struct Act {
    When when;
    Scenes scenes;
    Target target;
    const char* letters;
    Effect effect;
};

constexpr const char* OKS = "oooo\r "; // with the keys that say "OK"

constexpr Rect NOWHERE = {-9.0f, -9.0f};

// clang-format off
std::vector<Act> everyAct()
{
    std::vector<Act> acts = {
    //            where                           which                     letters  what happens
        {PRESS,   {TURN, TURN_WITH_CARD, DOPED},  CONTROL_THROW,            "wtjg",  {STATE_MOVE, RACE}},
        {PRESS,   {TURN_WITH_CARD, DOPED},        CONTROL_BREAKAWAY,        "abdd",  {SAME, RACE}},
        {PRESS,   {TURN, TURN_WITH_CARD},         CONTROL_DOPING,           "ddoo",  {STATE_CONFIRM_DOPING}},
        {PRESS,   {EVENT_DIE},                    CONTROL_EXTRA_THROW,      "wtjg",  {STATE_MOVE, RACE}},
        {PRESS,   {EVENT_HANDIN},                 CONTROL_HAND_IN,          OKS,     {STATE_MOVE, RACE}},
        {PRESS,   {HANDIN},                       CONTROL_HAND_IN,          OKS,     {STATE_TURN, RACE | VIEW}},
        {PRESS,   {TURN_WITH_CARD},               dicePlace(0),             "",      {SAME, RACE}},
        {PRESS,   {EVENT_HANDIN, HANDIN},         handInSlot(0),            "",      {SAME, RACE}},
        {PRESS,   {TURN, DOPED},                  cardPlace(12),            "",      {SAME, RACE}},
        {PRESS,   PANEL,                          CONTROL_SCORECARD,        "ssss",  {STATE_SCORECARD}},
        {PRESS,   PANEL,                          CONTROL_POSITIONS,        "pppp",  {STATE_POSITIONS}},
        {PRESS,   PANEL,                          CONTROL_RACE_SETTINGS,    "eeai",  {STATE_SETTINGS}},
        {PRESS,   PANEL,                          CONTROL_QUIT,             "uqqt",  {STATE_CONFIRM_QUIT}},
        {PRESS,   LOOK,                           CONTROL_VIEW,             "",      {SAME, VIEW}},
        {PRESS,   LOOK,                           CONTROL_CAMERA,           "",      {SAME, VIEW}},
        {RELEASE, {MENU},                         CONTROL_START,            "sscs",  {STATE_TEAM_SETUP}},
        {RELEASE, {MENU},                         CONTROL_MANUAL,           "amnh",  {STATE_MANUAL}},
        {RELEASE, {MENU},                         CONTROL_MENU_SETTINGS,    "etpi",  {STATE_SETTINGS}},
        {RELEASE, {MENU},                         CONTROL_LANGUAGE,         "plht",  {STATE_LANGUAGE}},
        {RELEASE, {MENU},                         CONTROL_CONTINUE,         "wctv",  {STATE_RACE_FILES, NOTHING, LIST}},
        {RELEASE, {MENU},                         CONTROL_EXIT,             "befe",  {SAME, PROGRAM}},
        {RELEASE, {MANUAL},                       CONTROL_MANUAL_OK,        "oooo",  {STATE_MAIN_MENU}},
        {RELEASE, {MANUAL},                       CONTROL_PREVIOUS_PAGE,    "",      {SAME, PAGE}},
        {RELEASE, {MANUAL},                       CONTROL_NEXT_PAGE,        "",      {SAME, PAGE}},
        {RELEASE, {OPTIONS},                      CONTROL_SMOOTH,           "",      {SAME, SETTINGS}},
        {RELEASE, {OPTIONS},                      CONTROL_STEPWISE,         "",      {SAME, SETTINGS}},
        {RELEASE, {OPTIONS},                      settingsField(0),         "",      {SAME, SETTINGS}},
        {RELEASE, {OPTIONS},                      settingsField(1),         "",      {SAME, NOTHING, SETTINGS}},
        {RELEASE, {OPTIONS},                      CONTROL_DEFAULT,          "",      {SAME, SETTINGS}},
        {RELEASE, {OPTIONS},                      CONTROL_RATIO_54,         "",      {}},
        {RELEASE, {OPTIONS},                      CONTROL_RATIO_43,         "",      {SAME, SETTINGS}},
        {RELEASE, {OPTIONS},                      CONTROL_RATIO_1610,       "",      {SAME, SETTINGS}},
        {RELEASE, {OPTIONS},                      CONTROL_SETTINGS_OK,      "",      {STATE_MAIN_MENU, SETTINGS | FILES}},
        {RELEASE, {OPTIONS},                      CONTROL_SETTINGS_CANCEL,  "",      {STATE_MAIN_MENU, SETTINGS}},
        {RELEASE, {TEAMS_NAMED},                  CONTROL_MULTI_STAGE,      "",      {SAME, SETUP}},
        {RELEASE, {TEAMS},                        CONTROL_MULTI_STAGE,      "",      {}},
        {RELEASE, {TEAMS},                        CONTROL_SINGLE_STAGE,     "",      {SAME, SETUP}},
        {RELEASE, {TEAMS_NAMED},                  CONTROL_SINGLE_STAGE,     "",      {}},
        {RELEASE, {TEAMS},                        raceNameBox(),            "",      {SAME, SETUP}},
        {RELEASE, {TEAMS, TEAMS_NAMED},           CONTROL_EVENT_CARDS,      "",      {SAME, SETUP}},
        {RELEASE, {TEAMS},                        CONTROL_TEAM_OK,          "",      {STATE_SETUP_MESSAGE, SETUP}},
        {RELEASE, {TEAMS_NAMED},                  CONTROL_TEAM_OK,          "",      {STATE_COURSE_SELECT, SETUP}},
        {RELEASE, {TEAMS, TEAMS_NAMED},           CONTROL_TEAM_BACK,        "",      {STATE_MAIN_MENU}},
        {RELEASE, {SETUP_MESSAGE},                CONTROL_SETUP_MESSAGE_OK, OKS,     {STATE_TEAM_SETUP}},
        {RELEASE, {COURSES},                      CONTROL_CREATE_COURSE,    "nccn",  {STATE_COURSE_DESIGN}},
        {RELEASE, {COURSES},                      CONTROL_SAVED_COURSE,     "guuo",  {STATE_COURSE_SAVED, COURSE}},
        {RELEASE, {COURSES},                      CONTROL_COURSE_BACK,      "zbrt",  {STATE_TEAM_SETUP}},
        {RELEASE, {DESIGN},                       sectionRadio(0),          "",      {SAME, COURSE}},
        {RELEASE, {DESIGN},                       CONTROL_SPRINT,           "",      {SAME, COURSE}},
        {RELEASE, {DESIGN},                       CONTROL_FINISH,           "",      {SAME, COURSE}},
        {RELEASE, {DESIGN, DESIGN_FINISHED},      CONTROL_PREVIOUS_SECTION, "vppv",  {SAME, COURSE}},
        {RELEASE, {DESIGN},                       CONTROL_ADD_SECTION,      "haat",  {SAME, COURSE}},
        {RELEASE, {DESIGN_FINISHED},              CONTROL_DESIGN_OK,        OKS,     {STATE_ORDER_RESULT, RACE | COURSE}},
        {RELEASE, {DESIGN_FINISHED},              CONTROL_SAVE_COURSE,      "",      {SAME, FILES}},
        {RELEASE, {DESIGN, DESIGN_FINISHED},      CONTROL_DESIGN_BACK,      "",      {STATE_COURSE_SELECT}},
        {RELEASE, {SAVED},                        CONTROL_PREVIOUS_COURSE,  "",      {SAME, COURSE}},
        {RELEASE, {SAVED},                        CONTROL_NEXT_COURSE,      "",      {SAME, COURSE}},
        {RELEASE, {SAVED},                        CONTROL_SAVED_OK,         "",      {STATE_ORDER_RESULT, RACE | COURSE}},
        {RELEASE, {SAVED},                        CONTROL_SAVED_BACK,       "",      {STATE_COURSE_SELECT}},
        {RELEASE, {ORDER_THROW},                  CONTROL_ORDER_THROW,      "wtjg",  {STATE_ORDER_RESULT, RACE}},
        {RELEASE, {ORDER_RESULT},                 CONTROL_NEXT,             "nnuv",  {SAME, RACE}},
        {RELEASE, {DOPING},                       CONTROL_DOPING_YES,       "jyoj",  {STATE_DOPING_NUMBER, RACE}},
        {RELEASE, {DOPING},                       CONTROL_DOPING_NO,        "nnnn",  {STATE_TURN}},
        {RELEASE, {DOPING_NUMBER},                CONTROL_DOPING_NUMBER_OK, OKS,     {STATE_TURN, RACE}},
        {RELEASE, {FOLLOW},                       CONTROL_FOLLOW_YES,       "jyoj",  {STATE_TURN, RACE | VIEW}},
        {RELEASE, {FOLLOW},                       CONTROL_FOLLOW_NO,        "nnnn",  {STATE_TURN, RACE}},
        {RELEASE, {NO_MOVE},                      CONTROL_NO_MOVE_OK,       OKS,     {STATE_TURN, RACE | VIEW}},
        {RELEASE, {QUIT},                         CONTROL_QUIT_YES,         "jyoj",  {STATE_MAIN_MENU}},
        {RELEASE, {QUIT},                         CONTROL_QUIT_NO,          "nnnn",  {STATE_ORDER_RESULT}},
        {RELEASE, {EVENT_CARD},                   CONTROL_EVENT_OK,         OKS,     {STATE_SKIP_HANDIN, RACE}},
        {RELEASE, {CARD_KIND},                    CONTROL_BLUE,             "bbeb",  {STATE_EVENT_CARD_WHEN, RACE}},
        {RELEASE, {CARD_KIND},                    CONTROL_WHITE,            "wwaw",  {STATE_EVENT_CARD_WHEN, RACE}},
        {RELEASE, {CARD_WHEN},                    CONTROL_IMMEDIATELY,      " itd",  {STATE_MOVE, RACE}},
        {RELEASE, {CARD_WHEN},                    CONTROL_LATER,            " lpl",  {STATE_MOVE, RACE}},
        {RELEASE, {CARD_WHEN},                    NOWHERE,                  "  p ",  {STATE_POSITIONS}}, // as well
        {RELEASE, {EVENT_NO_CARD},                CONTROL_NO_EVENT_OK,      OKS,     {STATE_MOVE}},
        {RELEASE, {SKIP_NO_CARD},                 CONTROL_NO_CARD_OK,       OKS,     {STATE_TURN, RACE | VIEW}},
        {RELEASE, {DOPING_DRAW},                  CONTROL_DOPING_DRAW_OK,   OKS,     {STATE_DOPING_COUNTERCHECK, RACE}},
        {RELEASE, {COUNTERCHECK},                 CONTROL_COUNTERCHECK_OK,  OKS,     {SAME, RACE}},
        {RELEASE, {SAVE_FAILED},                  CONTROL_RETRY,            "rrrr",  {}},
        {RELEASE, {SAVE_FAILED},                  CONTROL_ABORT,            "aaaa",  {STATE_FINAL_SCORECARD}},
        {RELEASE, {FINAL},                        CONTROL_SHEET_QUIT,       "uqqt",  {STATE_MAIN_MENU}},
        {RELEASE, SHEETS,                         CONTROL_EXPORT,           "xxxx",  {SAME, VIEW | FILES}},
        {RELEASE, {SCORECARD, GENERAL},           CONTROL_SHEET_OK,         OKS,     {STATE_TURN}},
        {RELEASE, {STANDINGS},                    CONTROL_SHEET_OK,         OKS,     {STATE_RACE_FILES}},
        {RELEASE, {SCORECARD, STANDINGS},         CONTROL_GENERAL,          "gggt",  {SAME, VIEW}},
        {RELEASE, {GENERAL},                      CONTROL_STAGE,            "esee",  {SAME, VIEW}},
        {RELEASE, {SCORECARD},                    CONTROL_PREVIOUS_STAGE,   "",      {SAME, VIEW}},
        {RELEASE, {SCORECARD, STANDINGS},         CONTROL_NEXT_STAGE,       "",      {SAME, VIEW}},
        {RELEASE, {POSITIONS},                    CONTROL_POSITIONS_OK,     OKS,     {STATE_TURN}},
        {RELEASE, {RACES},                        raceListNames(),          "",      {SAME, SETUP | LIST}},
        {RELEASE, {RACE_CHOSEN},                  raceListNames(),          "",      {SAME, NOTHING, SETUP}},
        {RELEASE, {RACES, RACE_CHOSEN},           CONTROL_LIST_PREVIOUS,    "",      {SAME, LIST}},
        {RELEASE, {RACES, RACE_CHOSEN},           CONTROL_LIST_NEXT,        "",      {SAME, LIST}},
        {RELEASE, {RACES, RACE_CHOSEN},           CONTROL_LIST_BACK,        "zbrt",  {STATE_MAIN_MENU}},
        {RELEASE, {RACE_CHOSEN},                  CONTROL_LIST_OK,          "oooo",  {STATE_COURSE_SELECT, SETUP | RACE}},
        {RELEASE, {RACE_CHOSEN},                  CONTROL_LIST_SCORECARD,   "ssss",  {STATE_RACE_STANDINGS}},
    };
    for (const int slot : {0, 1, 2, 3, 10, 11, 13})
        acts.push_back({PRESS, LAYING, cardPlace(slot), "", {SAME, RACE}});
    for (int i = 0; i < 4; ++i) {
        const auto ofTeam = [i](Control first) { return static_cast<Control>(first + i); };
        acts.push_back({RELEASE, {LANGUAGES}, languageBox(i), "", {STATE_MAIN_MENU, SETTINGS | FILES, SETUP}});
        acts.push_back({RELEASE, {TEAMS, TEAMS_NAMED}, teamNameBox(i), "", {SAME, SETUP}});
        acts.push_back({RELEASE, {TEAMS, TEAMS_NAMED}, ofTeam(CONTROL_COMPUTER_1), "", {SAME, RACE}});
        acts.push_back({RELEASE, {COURSES}, courseCell(i), "", {STATE_ORDER_RESULT, RACE | COURSE}});
        // The team in view is that of the rider on turn, in one scene of his follower.
        acts.push_back({RELEASE, TEAM_TURN, ofTeam(CONTROL_TAB_1), "", {SAME, i == 0 ? NOTHING : VIEW}});
        acts.push_back({RELEASE, {FOLLOW}, ofTeam(CONTROL_TAB_1), "", {SAME, i == 1 ? NOTHING : VIEW}});
    }
    return acts;
}

// Keys that GLUT calls special are counted on from 256.
using Keys = std::u16string;

Keys between(int first, int last)
{
    Keys keys;
    for (int key = first; key <= last; ++key)
        keys += static_cast<char16_t>(key);
    return keys;
}

Keys special(int first, int last)
{
    return between(256 + first, 256 + last);
}

struct KeyAct {
    Scenes scenes;
    Keys keys;
    Effect effect;
};

const Keys EDITING = u"\t\r\b\x7f" + special(GLUT_KEY_LEFT, GLUT_KEY_RIGHT) +
                     special(GLUT_KEY_HOME, GLUT_KEY_END);
const Keys NAMING = EDITING + u" -" + special(GLUT_KEY_DOWN, GLUT_KEY_DOWN) + between('0', '9') +
                    between('A', 'Z') + between('a', 'z') + between(0xC0, 0xD6) +
                    between(0xD8, 0xF6) + between(0xF8, 0xFF);

// clang-format off
const KeyAct KEY_ACTS[] = {
//   where                   which                                   what happens
    {{MANUAL},               u"\r " + special(GLUT_KEY_LEFT, GLUT_KEY_END), {SAME, PAGE}},
    {{MANUAL},               u"\x1b",                                {STATE_MAIN_MENU}},
    {{OPTIONS},              EDITING + between('0', '9'),            {SAME, SETTINGS}},
    {{TEAMS, TEAMS_NAMED},   NAMING,                                 {SAME, SETUP}},
    {{PLACE},                u"\r ",                                 {SAME, RACE}},
    {{MOVE},                 u"\r ",                                 {STATE_TURN, RACE}},
    {{MOVE},                 u"uU",                                  {SAME, RACE}},
    {{PLACE, MOVE},          special(GLUT_KEY_LEFT, GLUT_KEY_DOWN),  {SAME, RACE}},
    {TABS,                   u"\t",                                  {SAME, VIEW}},
    {LAYING,                 special(GLUT_KEY_F1, GLUT_KEY_F8),      {SAME, RACE}},
    {{EVENT_HANDIN},         special(GLUT_KEY_F7, GLUT_KEY_F7),      {SAME, RACE}},
    {{SCORECARD},            special(GLUT_KEY_LEFT, GLUT_KEY_LEFT),  {SAME, VIEW}},
    {{SCORECARD, STANDINGS}, special(GLUT_KEY_RIGHT, GLUT_KEY_RIGHT), {SAME, VIEW}},
};
// clang-format on

// Bytes of a plain record: exact, with no list of its fields that could fall behind. Only of a
// record itself, not of a copy, whose padding may hold anything.
template <typename T> std::string bytesOf(const T& record)
{
    static_assert(std::is_trivially_copyable_v<T>);
    return {reinterpret_cast<const char*>(&record), sizeof record};
}

std::uintmax_t sizeOfFiles()
{
    std::uintmax_t size = 0;
    for (const char* file : {"courses", "settings", "standings.csv"})
        size += std::filesystem::exists(file) ? std::filesystem::file_size(file) : 0;
    return size;
}

// Everything that input can change, in the order of the parts.
auto worldNow()
{
    const RaceSetup& r = raceSetup;
    const SettingsScreen& s = settingsScreen;
    const View& v = view;
    return std::tuple(
        std::tuple(bytesOf(race), bytesOf(course.courseOccupant)),
        std::tuple(r.teamName, r.multiStage, r.eventCardsOn, r.raceName, r.raceFileName,
                   r.raceBaseName, r.standingsFileName, r.raceStages.size(),
                   teamSetup.teamActiveField, teamSetup.teamCursor, teamSetup.setupMessages),
        std::tuple(settings, s.settingsFieldText, s.settingsActiveField, s.settingsCursor),
        std::tuple(courseText, courseScreens),
        std::tuple(v.viewMode, v.cameraIndex, v.otherCameraIndex, v.shownTeam, v.scorecardGeneral,
                   v.scorecardStage, v.exportStatus),
        manualPage, fakeHost.quits, sizeOfFiles(),
        std::tuple(raceList.raceFileList.size(), raceList.raceListPage, racePreview.eventCardsOn,
                   racePreview.teamName, racePreview.isHuman));
}

using World = decltype(worldNow());

unsigned partsChanged(const World& before)
{
    const World now = worldNow();
    return [&]<std::size_t... I>(std::index_sequence<I...>)
    {
        return ((std::get<I>(before) == std::get<I>(now) ? 0u : 1u << I) | ...);
    }
    (std::make_index_sequence<std::tuple_size_v<World>>());
}

Effect operator+(const Effect& a, const Effect& b)
{
    return {b.to == SAME ? a.to : b.to, a.parts | b.parts, a.mayChange | b.mayChange};
}

bool isIn(const Keys& keys, int key)
{
    return keys.find(static_cast<char16_t>(key)) != Keys::npos;
}

class Walk
{
public:
    Walk(Scene walked, int inLanguage) : scene(walked), language(inLanguage)
    {
        std::erase_if(acts, [&](const Act& act) { return !takesPlace(act); });
        begin();
    }

    void tryKeys()
    {
        for (const int held : {0, GLUT_ACTIVE_SHIFT, GLUT_ACTIVE_CTRL, GLUT_ACTIVE_ALT}) {
            if (held && language != LANGUAGE_ENGLISH)
                break; // the letters are other ones, what is held isn't
            player.held = held;
            const bool idle = held & (GLUT_ACTIVE_CTRL | GLUT_ACTIVE_ALT);
            for (int key = 1; key < 256 + 128; ++key)
                attempt("key " + std::to_string(key), idle ? Effect{} : effectOfKey(key), [&] {
                    key < 256 ? player.key(static_cast<char>(key)) : player.special(key - 256);
                });
        }
        player.held = 0;
    }

    void tryPlace(int number, const Rect& at)
    {
        const std::string place = " in place " + std::to_string(number);
        const Effect pressed = effectAt(at, PRESS);
        const Effect byPointer = {SAME, NOTHING, SETTINGS | COURSE}; // by its getting there
        attempt("press" + place, pressed + byPointer, [&] {
            player.hover(at);
            player.press(at);
        });
        attempt("click" + place, pressed + effectAt(at, RELEASE), [&] {
            player.hover(at);
            player.click(at);
        });
        const bool camera =
            std::ranges::count(LOOK, scene) && isMiddleIn(at, placeOf(CONTROL_CAMERA));
        for (const int button : {GLUT_MIDDLE_BUTTON, GLUT_RIGHT_BUTTON, 3, 4, 5})
            attempt("button " + std::to_string(button) + place,
                    {SAME, camera && button == GLUT_RIGHT_BUTTON ? VIEW : NOTHING},
                    [&] { player.click(at, button); });
    }

    // What is live is drawn bright, and nothing else.
    void lookAtControls()
    {
        const auto controlOf = [](const Act& act) { return act.target.control; };
        for (const Control control : everyControl())
            EXPECT_EQ(isLive(control), std::ranges::count(acts, control, controlOf) > 0)
                << nameOf(scene) << ", control " << control;
    }

private:
    void begin()
    {
        std::filesystem::remove("settings");
        std::filesystem::remove("standings.csv");
        settings.ratioW = 5.0;
        settings.ratioH = 4.0;
        setScene(scene, language);
        raceSetup.teamName[0] = "Typed"; // unlike in the files
        if (scene == LANGUAGES)
            settings.language = -1;
        courseScreens.saveFailed = false;
        before = worldNow();
        stateBefore = gameState;
    }

    template <typename Some> bool takesPlace(const Some& act) const
    {
        return std::ranges::count(act.scenes, scene) > 0;
    }

    static bool isMiddleIn(const Rect& at, const Rect& control)
    {
        const Spot middle = at;
        return control.contains(static_cast<int>(middle.x), static_cast<int>(middle.y));
    }

    Effect effectAt(const Rect& at, When when) const
    {
        Effect sum;
        for (const Act& act : acts)
            if (act.when == when && isMiddleIn(at, act.target.place))
                sum = sum + act.effect;
        return sum;
    }

    bool isLetterOf(const Act& act, int key) const
    {
        const std::string_view letters = act.letters;
        const int small = key >= 'A' && key <= 'Z' ? key + 'a' - 'A' : key;
        return !letters.empty() &&
               ((letters[static_cast<std::size_t>(language)] == small && small != ' ') ||
                (letters == OKS && isIn(u"\r ", key)));
    }

    Effect effectOfKey(int key) const
    {
        Effect sum;
        for (const Act& act : acts)
            if (isLetterOf(act, key))
                sum = sum + act.effect;
        for (const KeyAct& act : KEY_ACTS)
            if (takesPlace(act) && isIn(act.keys, key))
                sum = sum + act.effect;
        return sum;
    }

    template <typename Try> void attempt(const std::string& what, const Effect& expected, Try tryIt)
    {
        std::srand(11);
        tryIt();
        const GameState to = expected.to == SAME ? stateBefore : expected.to;
        const unsigned changed = partsChanged(before);
        EXPECT_TRUE(gameState == to && (changed & ~expected.mayChange) == expected.parts)
            << nameOf(scene) << ", language " << language << ", " << what << ": state " << gameState
            << " where " << to << " was due, parts " << changed << " where " << expected.parts
            << " were due";
        if (gameState != stateBefore || changed != NOTHING)
            begin();
    }

    Scene scene;
    int language;
    std::vector<Act> acts = everyAct();
    Player player;
    World before;
    GameState stateBefore;
};

using WalkTest = ScreenTest;

} // namespace

TEST_F(WalkTest, NothingActsButWhatTheTablesName)
{
    resizeScreen(640, 512);
    const std::vector<Rect> places = everyPlace();
    for (int language = 0; language < LANGUAGE_COUNT; ++language)
        for (const Scene scene : everyScene()) {
            if (HasFailure())
                return; // one scene tells enough
            Walk walk(scene, language);
            walk.lookAtControls();
            walk.tryKeys();
            if (language == LANGUAGE_ENGLISH) // controls lie where they lie
                for (std::size_t i = 0; i < places.size(); ++i)
                    walk.tryPlace(static_cast<int>(i), places[i]);
        }
}
