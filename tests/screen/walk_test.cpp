#include "app/game_state.h"
#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "board/designer.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "screen/support/scenes.h"
#include "store/race_file.h"
#include "support/fake_host.h"
#include "support/own_folder.h"
#include "ui/layout.h"
#include "ui/manual_pages.h"
#include "ui/places.h"
#include "ui/race_list.h"
#include "ui/settings_screen.h"
#include "ui/team_setup.h"
#include "ui/texts.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

// Every key and every control is tried in every state. The tables say what acts where, on the press
// or the release, by which letter, and what it may change; whatever they don't name must change
// nothing at all. They are written by what the game is to do, not by the rows of ui/controls.

namespace
{

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

// clang-format off
using Scenes = std::uint64_t;

constexpr Scenes bit(Scene scene) { return Scenes{1} << scene; }
static_assert(SCENE_COUNT <= 64);

constexpr Scenes
    MENU = bit(SCENE_MENU), LANGUAGES = bit(SCENE_LANGUAGES), MANUAL = bit(SCENE_MANUAL),
    OPTIONS = bit(SCENE_SETTINGS), TEAMS = bit(SCENE_TEAMS), NAMED = bit(SCENE_TEAMS_NAMED),
    MESSAGE = bit(SCENE_SETUP_MESSAGE), COURSES = bit(SCENE_COURSES), DESIGN = bit(SCENE_DESIGN),
    DESIGNED = bit(SCENE_DESIGN_FINISHED), SAVED = bit(SCENE_SAVED),
    THROW = bit(SCENE_ORDER_THROW), RESULT = bit(SCENE_ORDER_RESULT), PLACE = bit(SCENE_PLACE),
    TURN = bit(SCENE_TURN), CARD = bit(SCENE_TURN_WITH_CARD), MOVE = bit(SCENE_MOVE),
    ANIMATE = bit(SCENE_ANIMATE), FOLLOW = bit(SCENE_FOLLOW), NO_MOVE = bit(SCENE_NO_MOVE),
    QUIT = bit(SCENE_QUIT), FINAL = bit(SCENE_FINAL), EVENT = bit(SCENE_EVENT_CARD),
    KIND = bit(SCENE_CARD_KIND), WHEN = bit(SCENE_CARD_WHEN), EXTRA_DIE = bit(SCENE_EVENT_DIE),
    PAY = bit(SCENE_EVENT_HANDIN), NO_CARD = bit(SCENE_EVENT_NO_CARD), MISS = bit(SCENE_HANDIN),
    MISS_ALL = bit(SCENE_SKIP_NO_CARD), DOPING = bit(SCENE_DOPING),
    NUMBER = bit(SCENE_DOPING_NUMBER), DOPED = bit(SCENE_DOPED), DRAW = bit(SCENE_DOPING_DRAW),
    CHECK = bit(SCENE_COUNTERCHECK), NOT_SAVED = bit(SCENE_SAVE_FAILED),
    SHEET = bit(SCENE_SCORECARD), GENERAL = bit(SCENE_GENERAL), WHERE = bit(SCENE_POSITIONS),
    RACES = bit(SCENE_RACES), CHOSEN = bit(SCENE_RACE_CHOSEN), SAVED_SHEET = bit(SCENE_STANDINGS);

constexpr Scenes PANEL = THROW | RESULT | PLACE | TURN | CARD | DOPED | MOVE | ANIMATE | EXTRA_DIE | PAY | MISS;
constexpr Scenes LOOK = (PANEL & ~PAY) | FOLLOW | EVENT | KIND | WHEN;
constexpr Scenes TABS = LOOK | PAY | NO_MOVE | QUIT | NO_CARD | MISS_ALL | DOPING | NUMBER | DRAW | CHECK | NOT_SAVED;
constexpr Scenes LAYING = TURN | CARD | DOPED | MISS;
constexpr Scenes SHEETS = SHEET | GENERAL | SAVED_SHEET;
// clang-format on

constexpr GameState SAME = static_cast<GameState>(STATE_COUNT); // the state stays

struct Effect {
    GameState to = SAME;
    unsigned parts = NOTHING;
    unsigned mayChange = NOTHING; // in addition, by where exactly the control is met
};

// A control, or another place that is clicked.
struct Spot {
    Spot(Control it) : control(it), place(placeOf(it)) {}
    Spot(const Rect& at) : place(at) {}

    Control control = NO_CONTROL;
    Rect place;
};

// Its letters in German, English, French and Dutch, a blank for none.
constexpr const char* OKS = "oooo\r "; // with the keys that say "OK"

struct Act {
    Scenes scenes;
    Spot spot;
    const char* letters;
    Effect effect;
};

// clang-format off
std::vector<Act> pressActs()
{
    std::vector<Act> acts = {
    //   where                 which                     letters    what happens
        {TURN | CARD | DOPED,  CONTROL_THROW,            "wtjg",    {STATE_MOVE, RACE}},
        {CARD | DOPED,         CONTROL_BREAKAWAY,        "abdd",    {SAME, RACE}},
        {TURN | CARD,          CONTROL_DOPING,           "ddoo",    {STATE_CONFIRM_DOPING}},
        {EXTRA_DIE,            CONTROL_EXTRA_THROW,      "wtjg",    {STATE_MOVE, RACE}},
        {PAY,                  CONTROL_HAND_IN,          OKS,       {STATE_MOVE, RACE}},
        {MISS,                 CONTROL_HAND_IN,          OKS,       {STATE_TURN, RACE | VIEW}},
        {CARD,                 dicePlace(0),             "",        {SAME, RACE}},
        {PAY | MISS,           handInSlot(0),            "",        {SAME, RACE}},
        {TURN | DOPED,         cardPlace(12),            "",        {SAME, RACE}},
        {PANEL,                CONTROL_SCORECARD,        "ssss",    {STATE_SCORECARD}},
        {PANEL,                CONTROL_POSITIONS,        "pppp",    {STATE_POSITIONS}},
        {PANEL,                CONTROL_RACE_SETTINGS,    "eeai",    {STATE_SETTINGS}},
        {PANEL,                CONTROL_QUIT,             "uqqt",    {STATE_CONFIRM_QUIT}},
        {LOOK,                 CONTROL_VIEW,             "",        {SAME, VIEW}},
        {LOOK,                 CONTROL_CAMERA,           "",        {SAME, VIEW}},
    };
    for (const int slot : {0, 1, 2, 3, 10, 11, 13})
        acts.push_back({LAYING, cardPlace(slot), "", {SAME, RACE}});
    return acts;
}

std::vector<Act> releaseActs()
{
    std::vector<Act> acts = {
    //   where                 which                     letters    what happens
        {MENU,                 CONTROL_START,            "sscs",    {STATE_TEAM_SETUP}},
        {MENU,                 CONTROL_MANUAL,           "amnh",    {STATE_MANUAL}},
        {MENU,                 CONTROL_MENU_SETTINGS,    "etpi",    {STATE_SETTINGS}},
        {MENU,                 CONTROL_LANGUAGE,         "plht",    {STATE_LANGUAGE}},
        {MENU,                 CONTROL_CONTINUE,         "wctv",    {STATE_RACE_FILES, NOTHING, LIST}},
        {MENU,                 CONTROL_EXIT,             "befe",    {SAME, PROGRAM}},
        {MANUAL,               CONTROL_MANUAL_OK,        "oooo",    {STATE_MAIN_MENU}},
        {MANUAL,               CONTROL_PREVIOUS_PAGE,    "",        {SAME, PAGE}},
        {MANUAL,               CONTROL_NEXT_PAGE,        "",        {SAME, PAGE}},
        {OPTIONS,              CONTROL_SMOOTH,           "",        {SAME, SETTINGS}},
        {OPTIONS,              CONTROL_STEPWISE,         "",        {SAME, SETTINGS}},
        {OPTIONS,              settingsField(0),         "",        {SAME, SETTINGS}},
        {OPTIONS,              settingsField(1),         "",        {SAME, NOTHING, SETTINGS}},
        {OPTIONS,              CONTROL_DEFAULT,          "",        {SAME, SETTINGS}},
        {OPTIONS,              CONTROL_RATIO_54,         "",        {}},
        {OPTIONS,              CONTROL_RATIO_43,         "",        {SAME, SETTINGS}},
        {OPTIONS,              CONTROL_RATIO_1610,       "",        {SAME, SETTINGS}},
        {OPTIONS,              CONTROL_SETTINGS_OK,      "",        {STATE_MAIN_MENU, SETTINGS | FILES}},
        {OPTIONS,              CONTROL_SETTINGS_CANCEL,  "",        {STATE_MAIN_MENU, SETTINGS}},
        {NAMED,                CONTROL_MULTI_STAGE,      "",        {SAME, SETUP}},
        {TEAMS,                CONTROL_MULTI_STAGE,      "",        {}},
        {TEAMS,                CONTROL_SINGLE_STAGE,     "",        {SAME, SETUP}},
        {NAMED,                CONTROL_SINGLE_STAGE,     "",        {}},
        {TEAMS,                raceNameBox(),            "",        {SAME, SETUP}},
        {TEAMS | NAMED,        CONTROL_EVENT_CARDS,      "",        {SAME, SETUP}},
        {TEAMS,                CONTROL_TEAM_OK,          "",        {STATE_SETUP_MESSAGE, SETUP}},
        {NAMED,                CONTROL_TEAM_OK,          "",        {STATE_COURSE_SELECT, SETUP}},
        {TEAMS | NAMED,        CONTROL_TEAM_BACK,        "",        {STATE_MAIN_MENU}},
        {MESSAGE,              CONTROL_SETUP_MESSAGE_OK, OKS,       {STATE_TEAM_SETUP}},
        {COURSES,              CONTROL_CREATE_COURSE,    "nccn",    {STATE_COURSE_DESIGN}},
        {COURSES,              CONTROL_SAVED_COURSE,     "guuo",    {STATE_COURSE_SAVED, COURSE}},
        {COURSES,              CONTROL_COURSE_BACK,      "zbrt",    {STATE_TEAM_SETUP}},
        {DESIGN,               sectionRadio(0),          "",        {SAME, COURSE}},
        {DESIGN,               CONTROL_SPRINT,           "",        {SAME, COURSE}},
        {DESIGN,               CONTROL_FINISH,           "",        {SAME, COURSE}},
        {DESIGN | DESIGNED,    CONTROL_PREVIOUS_SECTION, "vppv",    {SAME, COURSE}},
        {DESIGN,               CONTROL_ADD_SECTION,      "haat",    {SAME, COURSE}},
        {DESIGNED,             CONTROL_DESIGN_OK,        OKS,       {STATE_ORDER_RESULT, RACE | COURSE}},
        {DESIGNED,             CONTROL_SAVE_COURSE,      "",        {SAME, FILES}},
        {DESIGN | DESIGNED,    CONTROL_DESIGN_BACK,      "",        {STATE_COURSE_SELECT}},
        {SAVED,                CONTROL_PREVIOUS_COURSE,  "",        {SAME, COURSE}},
        {SAVED,                CONTROL_NEXT_COURSE,      "",        {SAME, COURSE}},
        {SAVED,                CONTROL_SAVED_OK,         "",        {STATE_ORDER_RESULT, RACE | COURSE}},
        {SAVED,                CONTROL_SAVED_BACK,       "",        {STATE_COURSE_SELECT}},
        {THROW,                CONTROL_ORDER_THROW,      "wtjg",    {STATE_ORDER_RESULT, RACE}},
        {RESULT,               CONTROL_NEXT,             "nnuv",    {SAME, RACE}},
        {DOPING,               CONTROL_DOPING_YES,       "jyoj",    {STATE_DOPING_NUMBER, RACE}},
        {DOPING,               CONTROL_DOPING_NO,        "nnnn",    {STATE_TURN}},
        {NUMBER,               CONTROL_DOPING_NUMBER_OK, OKS,       {STATE_TURN, RACE}},
        {FOLLOW,               CONTROL_FOLLOW_YES,       "jyoj",    {STATE_TURN, RACE | VIEW}},
        {FOLLOW,               CONTROL_FOLLOW_NO,        "nnnn",    {STATE_TURN, RACE}},
        {NO_MOVE,              CONTROL_NO_MOVE_OK,       OKS,       {STATE_TURN, RACE | VIEW}},
        {QUIT,                 CONTROL_QUIT_YES,         "jyoj",    {STATE_MAIN_MENU}},
        {QUIT,                 CONTROL_QUIT_NO,          "nnnn",    {STATE_ORDER_RESULT}},
        {EVENT,                CONTROL_EVENT_OK,         OKS,       {STATE_SKIP_HANDIN, RACE}},
        {KIND,                 CONTROL_BLUE,             "bbeb",    {STATE_EVENT_CARD_WHEN, RACE}},
        {KIND,                 CONTROL_WHITE,            "wwaw",    {STATE_EVENT_CARD_WHEN, RACE}},
        {WHEN,                 CONTROL_IMMEDIATELY,      " itd",    {STATE_MOVE, RACE}},
        {WHEN,                 CONTROL_LATER,            " lpl",    {STATE_MOVE, RACE}},
        {NO_CARD,              CONTROL_NO_EVENT_OK,      OKS,       {STATE_MOVE}},
        {MISS_ALL,             CONTROL_NO_CARD_OK,       OKS,       {STATE_TURN, RACE | VIEW}},
        {DRAW,                 CONTROL_DOPING_DRAW_OK,   OKS,       {STATE_DOPING_COUNTERCHECK, RACE}},
        {CHECK,                CONTROL_COUNTERCHECK_OK,  OKS,       {SAME, RACE}},
        {NOT_SAVED,            CONTROL_RETRY,            "rrrr",    {}},
        {NOT_SAVED,            CONTROL_ABORT,            "aaaa",    {STATE_FINAL_SCORECARD}},
        {FINAL,                CONTROL_SHEET_QUIT,       "uqqt",    {STATE_MAIN_MENU}},
        {FINAL | SHEETS,       CONTROL_EXPORT,           "xxxx",    {SAME, VIEW | FILES}},
        {SHEET | GENERAL,      CONTROL_SHEET_OK,         OKS,       {STATE_TURN}},
        {SAVED_SHEET,          CONTROL_SHEET_OK,         OKS,       {STATE_RACE_FILES}},
        {SHEET | SAVED_SHEET,  CONTROL_GENERAL,          "gggt",    {SAME, VIEW}},
        {GENERAL,              CONTROL_STAGE,            "esee",    {SAME, VIEW}},
        {SHEET,                CONTROL_PREVIOUS_STAGE,   "",        {SAME, VIEW}},
        {SHEET | SAVED_SHEET,  CONTROL_NEXT_STAGE,       "",        {SAME, VIEW}},
        {WHERE,                CONTROL_POSITIONS_OK,     OKS,       {STATE_TURN}},
        {RACES,                raceListNames(),          "",        {SAME, SETUP | LIST}},
        {CHOSEN,               raceListNames(),          "",        {SAME, NOTHING, SETUP}},
        {RACES | CHOSEN,       CONTROL_LIST_PREVIOUS,    "",        {SAME, LIST}},
        {RACES | CHOSEN,       CONTROL_LIST_NEXT,        "",        {SAME, LIST}},
        {RACES | CHOSEN,       CONTROL_LIST_BACK,        "zbrt",    {STATE_MAIN_MENU}},
        {CHOSEN,               CONTROL_LIST_OK,          "oooo",    {STATE_COURSE_SELECT, SETUP | RACE}},
        {CHOSEN,               CONTROL_LIST_SCORECARD,   "ssss",    {STATE_RACE_STANDINGS}},
    };
    for (int i = 0; i < 4; ++i) {
        acts.push_back({LANGUAGES, languageBox(i), "", {STATE_MAIN_MENU, SETTINGS | FILES}});
        acts.push_back({TEAMS | NAMED, teamNameBox(i), "", {SAME, SETUP}});
        acts.push_back({TEAMS | NAMED, static_cast<Control>(CONTROL_COMPUTER_1 + i), "", {SAME, RACE}});
        acts.push_back({COURSES, courseCell(i), "", {STATE_ORDER_RESULT, RACE | COURSE}});
        // The team in view is that of the rider on turn, in one scene of his follower.
        const Scenes inView = i == 0 ? TABS & ~FOLLOW : i == 1 ? FOLLOW : 0;
        acts.push_back({TABS & ~inView, static_cast<Control>(CONTROL_TAB_1 + i), "", {SAME, VIEW}});
        acts.push_back({inView, static_cast<Control>(CONTROL_TAB_1 + i), "", {}});
    }
    return acts;
}

struct KeyAct {
    Scenes scenes;
    const char* keys;
    Effect effect;
    int language = -1; // only of this one
};

constexpr const char* NAME_KEYS =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 -\t\r\b\x7f"
    "\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF\xD0\xD1\xD2\xD3\xD4\xD5\xD6"
    "\xD8\xD9\xDA\xDB\xDC\xDD\xDE\xDF\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE"
    "\xEF\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF8\xF9\xFA\xFB\xFC\xFD\xFE\xFF";

// Keys that are no control's.
const KeyAct KEY_ACTS[] = {
    {MANUAL,        "\r ",                    {SAME, PAGE}},
    {MANUAL,        "\x1b",                   {STATE_MAIN_MENU}},
    {OPTIONS,       "\t\r\b\1770123456789",   {SAME, SETTINGS}},
    {TEAMS | NAMED, NAME_KEYS,                {SAME, SETUP}},
    {PLACE,         "\r ",                    {SAME, RACE}},
    {MOVE,          "\r ",                    {STATE_TURN, RACE}},
    {MOVE,          "uU",                     {SAME, RACE}},
    {TABS,          "\t",                     {SAME, VIEW}},
    {WHEN,          "pP",                     {STATE_POSITIONS}, LANGUAGE_FRENCH}, // both of its meanings
};

struct SpecialAct {
    Scenes scenes;
    int first, last;
    Effect effect;
};

const SpecialAct SPECIAL_ACTS[] = {
//   where            from                to                   what happens
    {MANUAL,          GLUT_KEY_LEFT,      GLUT_KEY_END,        {SAME, PAGE}},
    {OPTIONS,         GLUT_KEY_LEFT,      GLUT_KEY_RIGHT,      {SAME, SETTINGS}},
    {OPTIONS,         GLUT_KEY_HOME,      GLUT_KEY_END,        {SAME, SETTINGS}},
    {TEAMS | NAMED,   GLUT_KEY_LEFT,      GLUT_KEY_DOWN,       {SAME, SETUP}},
    {TEAMS | NAMED,   GLUT_KEY_HOME,      GLUT_KEY_END,        {SAME, SETUP}},
    {PLACE,           GLUT_KEY_LEFT,      GLUT_KEY_DOWN,       {SAME, RACE}},
    {MOVE,            GLUT_KEY_LEFT,      GLUT_KEY_DOWN,       {SAME, RACE}},
    {LAYING,          GLUT_KEY_F1,        GLUT_KEY_F8,         {SAME, RACE}},
    {PAY,             GLUT_KEY_F7,        GLUT_KEY_F7,         {SAME, RACE}},
    {SHEET,           GLUT_KEY_LEFT,      GLUT_KEY_LEFT,       {SAME, VIEW}},
    {SHEET | SAVED_SHEET, GLUT_KEY_RIGHT, GLUT_KEY_RIGHT,      {SAME, VIEW}},
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

// Where a box was taken hold of is of no account once it is let go.
View viewNow()
{
    View seen = view;
    seen.dragOffsetX = seen.dragOffsetY = 0;
    return seen;
}

// Everything that input can change, in the order of the parts.
auto worldNow()
{
    const RaceSetup& r = raceSetup;
    const SettingsScreen& s = settingsScreen;
    return std::tuple(
        std::tuple(bytesOf(race), bytesOf(course.courseOccupant)),
        std::tuple(r.teamName, r.multiStage, r.eventCardsOn, r.raceName, r.raceFileName,
                   r.raceBaseName, r.standingsFileName, r.raceStages.size(),
                   teamSetup.teamActiveField, teamSetup.teamCursor, teamSetup.setupMessages),
        std::tuple(settings, s.settingsFieldText, s.settingsActiveField, s.settingsCursor),
        std::tuple(courseText, courseScreens), viewNow(), manualPage, fakeHost.quits, sizeOfFiles(),
        std::tuple(raceList.raceFileList.size(), raceList.raceListPage, racePreview.eventCardsOn,
                   racePreview.teamName, racePreview.isHuman));
}

using World = decltype(worldNow());

template <std::size_t... I>
unsigned changedParts(const World& before, const World& now, std::index_sequence<I...>)
{
    return ((std::get<I>(before) == std::get<I>(now) ? 0u : 1u << I) | ...);
}

class Walk
{
public:
    Walk(Scene walked, int inLanguage)
        : scene(walked), language(inLanguage), onPress(pressActs()), onRelease(releaseActs())
    {
        begin();
    }

    void tryKeys()
    {
        for (const int held : {0, GLUT_ACTIVE_SHIFT, GLUT_ACTIVE_CTRL, GLUT_ACTIVE_ALT}) {
            player.held = held;
            if (held && language != LANGUAGE_ENGLISH)
                break; // the letters are other ones, what is held isn't
            const bool idle = held & (GLUT_ACTIVE_CTRL | GLUT_ACTIVE_ALT);
            for (int key = 1; key < 256; ++key)
                attempt("key " + std::to_string(key), idle ? Effect{} : effectOfKey(key),
                        [&] { player.key(static_cast<char>(key)); });
            for (int key = 1; key < 128; ++key)
                attempt("special key " + std::to_string(key),
                        idle ? Effect{} : effectOfSpecial(key), [&] { player.special(key); });
        }
        player.held = 0;
    }

    void tryPlace(int number, const Rect& at)
    {
        const std::string place = " in place " + std::to_string(number);
        Effect clicked = effectAt(onPress, at);
        Effect pressed = clicked;
        pressed.mayChange = SETTINGS | COURSE; // by the pointer getting there
        attempt("press" + place, pressed, [&] {
            player.hover(at);
            player.press(at);
            view.dragActive = false;
        });
        add(clicked, effectAt(onRelease, at));
        attempt("click" + place, clicked, [&] {
            player.hover(at);
            player.click(at);
        });
        const bool camera = (bit(scene) & LOOK) && isMiddleIn(at, placeOf(CONTROL_CAMERA));
        for (const int button : {GLUT_MIDDLE_BUTTON, GLUT_RIGHT_BUTTON, 3, 4, 5})
            attempt("button " + std::to_string(button) + place,
                    {SAME, camera && button == GLUT_RIGHT_BUTTON ? VIEW : NOTHING},
                    [&] { player.click(at, button); });
    }

    // What is live is drawn bright, and nothing else.
    void lookAtControls()
    {
        for (int i = 0; i < CONTROL_COUNT; ++i) {
            const auto acts = [&](const Act& act) {
                return act.spot.control == i && (act.scenes & bit(scene));
            };
            EXPECT_EQ(isLive(static_cast<Control>(i)),
                      std::ranges::any_of(onPress, acts) || std::ranges::any_of(onRelease, acts))
                << nameOf(scene) << ", control " << i;
        }
    }

private:
    void begin()
    {
        std::filesystem::remove("settings");
        std::filesystem::remove("standings.csv");
        settings.ratioW = 5.0;
        settings.ratioH = 4.0;
        setScene(scene, language);
        // Typed names, which no choice of a language changes.
        raceSetup.teamName[0] = raceSetup.teamName[2] = raceSetup.teamName[3] = "Typed";
        if (scene != SCENE_SETUP_MESSAGE)
            raceSetup.teamName[1] = "Ab c";
        if (scene == SCENE_LANGUAGES)
            settings.language = -1;
        courseScreens.saveFailed = false;
        before = worldNow();
        stateBefore = gameState;
    }

    static bool isMiddleIn(const Rect& at, const Rect& control)
    {
        return control.contains(static_cast<int>(at.x + at.w * 0.5f),
                                static_cast<int>(at.y + at.h * 0.5f));
    }

    static void add(Effect& sum, const Effect& more)
    {
        if (more.to != SAME)
            sum.to = more.to;
        sum.parts |= more.parts;
        sum.mayChange |= more.mayChange;
    }

    Effect effectAt(const std::vector<Act>& acts, const Rect& at) const
    {
        Effect sum;
        for (const Act& act : acts)
            if ((act.scenes & bit(scene)) && isMiddleIn(at, act.spot.place))
                add(sum, act.effect);
        return sum;
    }

    static bool isIn(std::string_view keys, int key)
    {
        return keys.find(static_cast<char>(key)) != std::string_view::npos;
    }

    bool isLetterOf(const Act& act, int key) const
    {
        const std::string_view letters = act.letters;
        const int small = key >= 'A' && key <= 'Z' ? key + 'a' - 'A' : key;
        return !letters.empty() &&
               ((letters[static_cast<std::size_t>(language)] == small && small != ' ') ||
                (letters == OKS && isIn("\r ", key)));
    }

    Effect effectOfKey(int key) const
    {
        Effect sum;
        for (const std::vector<Act>* acts : {&onRelease, &onPress})
            for (const Act& act : *acts)
                if ((act.scenes & bit(scene)) && isLetterOf(act, key))
                    add(sum, act.effect);
        for (const KeyAct& act : KEY_ACTS)
            if ((act.scenes & bit(scene)) && isIn(act.keys, key) &&
                (act.language == -1 || act.language == language))
                add(sum, act.effect);
        return sum;
    }

    Effect effectOfSpecial(int key) const
    {
        for (const SpecialAct& act : SPECIAL_ACTS)
            if ((act.scenes & bit(scene)) && key >= act.first && key <= act.last)
                return act.effect;
        return {};
    }

    template <typename Act> void attempt(const std::string& what, const Effect& expected, Act act)
    {
        std::srand(11);
        act();
        const GameState to = expected.to == SAME ? stateBefore : expected.to;
        constexpr std::make_index_sequence<std::tuple_size_v<World>> parts;
        const unsigned changed = changedParts(before, worldNow(), parts);
        EXPECT_TRUE(gameState == to && (changed & ~expected.mayChange) == expected.parts)
            << nameOf(scene) << ", language " << language << ", " << what << ": state " << gameState
            << " where " << to << " was due, parts " << changed << " where " << expected.parts
            << " were due";
        if (gameState != stateBefore || changed != NOTHING)
            begin();
    }

    Scene scene;
    int language;
    std::vector<Act> onPress;
    std::vector<Act> onRelease;
    Player player;
    World before;
    GameState stateBefore;
};

} // namespace

TEST(Walk, NothingActsButWhatTheTablesName)
{
    const OwnFolder folder;
    startProgram(640, 512);
    const std::vector<Rect> places = everyPlace();
    for (int language = 0; language < LANGUAGE_COUNT; ++language)
        for (int scene = 0; scene < SCENE_COUNT && !HasFailure(); ++scene) {
            Walk walk(static_cast<Scene>(scene), language);
            walk.lookAtControls();
            walk.tryKeys();
            if (language == LANGUAGE_ENGLISH) // controls lie where they lie
                for (std::size_t i = 0; i < places.size(); ++i)
                    walk.tryPlace(static_cast<int>(i), places[i]);
        }
    settings = {};
    loadTexts();
}
