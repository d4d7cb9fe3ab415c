#include "app/game_state.h"
#include "app/host.h"
#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "board/designer.h"
#include "input/keyboard.h"
#include "input/mouse.h"
#include "race/race_state.h"
#include "screen/support/every_control.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "screen/support/scenes.h"
#include "store/race_file.h"
#include "support/fake_host.h"
#include "support/own_folder.h"
#include "screen/support/old_places.h"
#include "ui/layout.h"
#include "ui/manual_pages.h"
#include "ui/race_list.h"
#include "ui/settings_screen.h"
#include "ui/team_setup.h"
#include "ui/texts.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

// Every key and every control is tried in every state. The tables say what acts where; whatever
// they don't name must change nothing at all.

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
constexpr Scenes OVERLAYS = SHEET | GENERAL | WHERE;
constexpr Scenes SHEETS = SHEET | GENERAL | SAVED_SHEET;
// clang-format on

constexpr GameState SAME = static_cast<GameState>(STATE_COUNT); // the state stays

struct Effect {
    GameState to = SAME;
    unsigned parts = NOTHING;
    unsigned mayChange = NOTHING; // in addition, by where exactly the control is met
};

struct ControlAct {
    Scenes scenes;
    Rect (*at)();
    Effect effect;
};

// clang-format off
const ControlAct CONTROL_ACTS[] = {
//   where              which                                what happens
    {MENU,              menuLanguageButton,                  {STATE_LANGUAGE}},
    {MENU,              menuManualButton,                    {STATE_MANUAL}},
    {MENU,              menuSettingsButton,                  {STATE_SETTINGS}},
    {MENU,              menuStartButton,                     {STATE_TEAM_SETUP}},
    {MENU,              menuContinueButton,                  {STATE_RACE_FILES, NOTHING, LIST}},
    {MENU,              exitButton,                          {SAME, PROGRAM}},
    {LANGUAGES,         [] { return languageBox(0); },       {STATE_MAIN_MENU, SETTINGS | FILES}},
    {LANGUAGES,         [] { return languageBox(1); },       {STATE_MAIN_MENU, SETTINGS | FILES}},
    {LANGUAGES,         [] { return languageBox(2); },       {STATE_MAIN_MENU, SETTINGS | FILES}},
    {LANGUAGES,         [] { return languageBox(3); },       {STATE_MAIN_MENU, SETTINGS | FILES}},
    {MANUAL,            manualOkButton,                      {STATE_MAIN_MENU}},
    {MANUAL,            prevPageButton,                      {SAME, PAGE}},
    {MANUAL,            nextPageButton,                      {SAME, PAGE}},
    {OPTIONS,           smoothRadio,                         {SAME, SETTINGS}},
    {OPTIONS,           stepwiseRadio,                       {SAME, SETTINGS}},
    {OPTIONS,           [] { return settingsField(0); },     {SAME, SETTINGS}},
    {OPTIONS,           [] { return settingsField(1); },     {SAME, NOTHING, SETTINGS}},
    {OPTIONS,           defaultButton,                       {SAME, SETTINGS}},
    {OPTIONS,           [] { return ratioRadio(1); },        {SAME, SETTINGS}},
    {OPTIONS,           [] { return ratioRadio(2); },        {SAME, SETTINGS}},
    {OPTIONS,           settingsOkButton,                    {STATE_MAIN_MENU, SETTINGS | FILES}},
    {OPTIONS,           settingsCancelButton,                {STATE_MAIN_MENU, SETTINGS}},
    {TEAMS | NAMED,     [] { return teamNameBox(0); },       {SAME, SETUP}},
    {TEAMS | NAMED,     [] { return teamNameBox(1); },       {SAME, SETUP}},
    {TEAMS | NAMED,     [] { return teamNameBox(2); },       {SAME, SETUP}},
    {TEAMS | NAMED,     [] { return teamNameBox(3); },       {SAME, SETUP}},
    {TEAMS | NAMED,     [] { return teamComputerBox(0); },   {SAME, RACE}},
    {TEAMS | NAMED,     [] { return teamComputerBox(1); },   {SAME, RACE}},
    {TEAMS | NAMED,     [] { return teamComputerBox(2); },   {SAME, RACE}},
    {TEAMS | NAMED,     [] { return teamComputerBox(3); },   {SAME, RACE}},
    {NAMED,             multiStageRadio,                     {SAME, SETUP}},
    {TEAMS,             singleStageRadio,                    {SAME, SETUP}},
    {TEAMS,             raceNameBox,                         {SAME, SETUP}},
    {TEAMS | NAMED,     eventCardsBox,                       {SAME, SETUP}},
    {TEAMS,             teamOkButton,                        {STATE_SETUP_MESSAGE, SETUP}},
    {NAMED,             teamOkButton,                        {STATE_COURSE_SELECT, SETUP}},
    {TEAMS | NAMED,     cornerButton,                        {STATE_MAIN_MENU}},
    {MESSAGE,           dialogOkButton,                      {STATE_TEAM_SETUP}},
    {COURSES,           [] { return courseCell(0); },        {STATE_ORDER_RESULT, RACE | COURSE}},
    {COURSES,           [] { return courseCell(1); },        {STATE_ORDER_RESULT, RACE | COURSE}},
    {COURSES,           [] { return courseCell(2); },        {STATE_ORDER_RESULT, RACE | COURSE}},
    {COURSES,           [] { return courseCell(3); },        {STATE_ORDER_RESULT, RACE | COURSE}},
    {COURSES,           newCourseButton,                     {STATE_COURSE_DESIGN}},
    {COURSES,           savedCourseButton,                   {STATE_COURSE_SAVED, COURSE}},
    {COURSES,           cornerButton,                        {STATE_TEAM_SETUP}},
    {DESIGN,            [] { return sectionRadio(0); },      {SAME, COURSE}},
    {DESIGN,            sprintBox,                           {SAME, COURSE}},
    {DESIGN,            finishBox,                           {SAME, COURSE}},
    {DESIGN | DESIGNED, prevSectionButton,                   {SAME, COURSE}},
    {DESIGN,            addSectionButton,                    {SAME, COURSE}},
    {DESIGNED,          addSectionButton,                    {STATE_ORDER_RESULT, RACE | COURSE}},
    {DESIGNED,          saveCourseButton,                    {SAME, FILES}},
    {DESIGN | DESIGNED, cornerButton,                        {STATE_COURSE_SELECT}},
    {SAVED,             prevCourseButton,                    {SAME, COURSE}},
    {SAVED,             nextCourseButton,                    {SAME, COURSE}},
    {SAVED,             savedOkButton,                       {STATE_ORDER_RESULT, RACE | COURSE}},
    {SAVED,             savedBackButton,                     {STATE_COURSE_SELECT}},
    {THROW,             throwButton,                         {STATE_ORDER_RESULT, RACE}},
    {RESULT,            throwButton,                         {SAME, RACE}},
    {TURN | CARD | DOPED, throwButton,                       {STATE_MOVE, RACE}},
    {TURN | CARD,       dopingButton,                        {STATE_CONFIRM_DOPING}},
    {DOPING,            dialogLeftButton,                    {STATE_DOPING_NUMBER, RACE}},
    {DOPING,            dialogRightButton,                   {STATE_TURN}},
    {NUMBER,            dialogOkButton,                      {STATE_TURN, RACE}},
    {LAYING,            [] { return cardPlace(0); },         {SAME, RACE}},
    {LAYING,            [] { return cardPlace(1); },         {SAME, RACE}},
    {LAYING,            [] { return cardPlace(2); },         {SAME, RACE}},
    {LAYING,            [] { return cardPlace(3); },         {SAME, RACE}},
    {LAYING,            [] { return cardPlace(10); },        {SAME, RACE}},
    {LAYING,            [] { return cardPlace(11); },        {SAME, RACE}},
    {TURN | DOPED,      [] { return cardPlace(12); },        {SAME, RACE}},
    {LAYING,            [] { return cardPlace(13); },        {SAME, RACE}},
    {CARD,              [] { return dicePlace(0); },         {SAME, RACE}},
    {CARD | DOPED,      breakawayBox,                        {SAME, RACE}},
    {FOLLOW,            dialogLeftButton,                    {STATE_TURN, RACE | VIEW}},
    {FOLLOW,            dialogRightButton,                   {STATE_TURN, RACE}},
    {NO_MOVE,           dialogOkButton,                      {STATE_TURN, RACE | VIEW}},
    {QUIT,              dialogLeftButton,                    {STATE_MAIN_MENU}},
    {QUIT,              dialogRightButton,                   {STATE_ORDER_RESULT}},
    {EVENT,             dialogOkButton,                      {STATE_SKIP_HANDIN, RACE}},
    {KIND,              dialogLeftButton,                    {STATE_EVENT_CARD_WHEN, RACE}},
    {KIND,              dialogRightButton,                   {STATE_EVENT_CARD_WHEN, RACE}},
    {WHEN,              dialogLeftButton,                    {STATE_MOVE, RACE}},
    {WHEN,              dialogRightButton,                   {STATE_MOVE, RACE}},
    {EXTRA_DIE,         extraThrowButton,                    {STATE_MOVE, RACE}},
    {NO_CARD,           dialogOkButton,                      {STATE_MOVE}},
    {PAY,               handInOkButton,                      {STATE_MOVE, RACE}},
    {MISS,              handInOkButton,                      {STATE_TURN, RACE | VIEW}},
    {PAY | MISS,        [] { return handInSlot(0); },        {SAME, RACE}},
    {MISS_ALL,          dialogOkButton,                      {STATE_TURN, RACE | VIEW}},
    {DRAW,              dialogOkButton,                      {STATE_DOPING_COUNTERCHECK, RACE}},
    {CHECK,             dialogOkButton,                      {SAME, RACE}},
    {NOT_SAVED,         dialogRightButton,                   {STATE_FINAL_SCORECARD}},
    {FINAL,             scorecardOkButton,                   {STATE_MAIN_MENU}},
    {FINAL | SHEETS,    exportButton,                        {SAME, VIEW | FILES}},
    {SHEET | GENERAL,   scorecardOkButton,                   {STATE_TURN}},
    {SAVED_SHEET,       scorecardOkButton,                   {STATE_RACE_FILES}},
    {SHEET | SAVED_SHEET, generalViewButton,                 {SAME, VIEW}},
    {GENERAL,           stageViewButton,                     {SAME, VIEW}},
    {SHEET,             prevStageButton,                     {SAME, VIEW}},
    {SHEET | SAVED_SHEET, nextStageButton,                   {SAME, VIEW}},
    {WHERE,             positionsOkButton,                   {STATE_TURN}},
    {RACES,             raceListNames,                       {SAME, SETUP | LIST}},
    {CHOSEN,            raceListNames,                       {SAME, NOTHING, SETUP}},
    {RACES | CHOSEN,    listPrevButton,                      {SAME, LIST}},
    {RACES | CHOSEN,    listNextButton,                      {SAME, LIST}},
    {RACES | CHOSEN,    cornerButton,                        {STATE_MAIN_MENU}},
    {CHOSEN,            listOkButton,                        {STATE_COURSE_SELECT, SETUP | RACE}},
    {CHOSEN,            listScorecardButton,                 {STATE_RACE_STANDINGS}},
    {PANEL,             scorecardButton,                     {STATE_SCORECARD}},
    {PANEL,             positionsButton,                     {STATE_POSITIONS}},
    {PANEL,             settingsButton,                      {STATE_SETTINGS}},
    {PANEL,             quitButton,                          {STATE_CONFIRM_QUIT}},
    {LOOK,              viewToggle,                          {SAME, VIEW}},
    {LOOK,              cameraButton,                        {SAME, VIEW}},
    {TABS & ~FOLLOW,    [] { return teamTab(1); },           {SAME, VIEW}},
    {FOLLOW,            [] { return teamTab(0); },           {SAME, VIEW}},
    {TABS,              [] { return teamTab(2); },           {SAME, VIEW}},
    {TABS,              [] { return teamTab(3); },           {SAME, VIEW}},
};

struct KeyAct {
    Scenes scenes;
    Table<std::string_view, LANGUAGE_COUNT> keys;
    Effect effect;
};

constexpr Table<std::string_view, LANGUAGE_COUNT> everywhere(std::string_view keys)
{
    return {{keys, keys, keys, keys}};
}

constexpr std::string_view NAME_KEYS =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 -\t\r\b\x7f"
    "\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF\xD0\xD1\xD2\xD3\xD4\xD5\xD6"
    "\xD8\xD9\xDA\xDB\xDC\xDD\xDE\xDF\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE"
    "\xEF\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF8\xF9\xFA\xFB\xFC\xFD\xFE\xFF";

// A key that stands in two rows of a state does both, in this order.
const KeyAct KEY_ACTS[] = {
//   where                German English French Dutch     what happens
    {MENU,                {{"sS", "sS", "cC", "sS"}},     {STATE_TEAM_SETUP}},
    {MENU,                {{"aA", "mM", "nN", "hH"}},     {STATE_MANUAL}},
    {MENU,                {{"eE", "tT", "pP", "iI"}},     {STATE_SETTINGS}},
    {MENU,                {{"pP", "lL", "hH", "tT"}},     {STATE_LANGUAGE}},
    {MENU,                {{"wW", "cC", "tT", "vV"}},     {STATE_RACE_FILES, NOTHING, LIST}},
    {MENU,                {{"bB", "eE", "fF", "eE"}},     {SAME, PROGRAM}},
    {MANUAL,              everywhere("\r "),              {SAME, PAGE}},
    {MANUAL,              everywhere("\x1boO"),           {STATE_MAIN_MENU}},
    {OPTIONS,             everywhere("\t\r\b\1770123456789"), {SAME, SETTINGS}},
    {TEAMS | NAMED,       everywhere(NAME_KEYS),          {SAME, SETUP}},
    {MESSAGE,             everywhere("\r oO"),            {STATE_TEAM_SETUP}},
    {COURSES,             {{"nN", "cC", "cC", "nN"}},     {STATE_COURSE_DESIGN}},
    {COURSES,             {{"gG", "uU", "uU", "oO"}},     {STATE_COURSE_SAVED, COURSE}},
    {COURSES,             {{"zZ", "bB", "rR", "tT"}},     {STATE_TEAM_SETUP}},
    {DESIGN,              {{"hH", "aA", "aA", "tT"}},     {SAME, COURSE}},
    {DESIGN | DESIGNED,   {{"vV", "pP", "pP", "vV"}},     {SAME, COURSE}},
    {DESIGNED,            everywhere("\r oO"),            {STATE_ORDER_RESULT, RACE | COURSE}},
    {THROW,               {{"wW", "tT", "jJ", "gG"}},     {STATE_ORDER_RESULT, RACE}},
    {RESULT,              {{"nN", "nN", "uU", "vV"}},     {SAME, RACE}},
    {TURN | CARD | DOPED, {{"wW", "tT", "jJ", "gG"}},     {STATE_MOVE, RACE}},
    {CARD | DOPED,        {{"aA", "bB", "dD", "dD"}},     {SAME, RACE}},
    {TURN | CARD,         {{"dD", "dD", "oO", "oO"}},     {STATE_CONFIRM_DOPING}},
    {DOPING,              {{"jJ", "yY", "oO", "jJ"}},     {STATE_DOPING_NUMBER, RACE}},
    {DOPING,              everywhere("nN"),               {STATE_TURN}},
    {NUMBER,              everywhere("\r oO"),            {STATE_TURN, RACE}},
    {EVENT,               everywhere("\r oO"),            {STATE_SKIP_HANDIN, RACE}},
    {KIND,                {{"bB", "bB", "eE", "bB"}},     {STATE_EVENT_CARD_WHEN, RACE}},
    {KIND,                {{"wW", "wW", "aA", "wW"}},     {STATE_EVENT_CARD_WHEN, RACE}},
    {WHEN,                {{"", "iI", "tT", "dD"}},       {STATE_MOVE, RACE}},
    {WHEN,                {{"", "lL", "pP", "lL"}},       {STATE_MOVE, RACE}},
    {WHEN,                {{"", "", "pP", ""}},           {STATE_POSITIONS}}, // both of its meanings
    {EXTRA_DIE,           {{"wW", "tT", "jJ", "gG"}},     {STATE_MOVE, RACE}},
    {NO_CARD,             everywhere("\r oO"),            {STATE_MOVE}},
    {PAY,                 everywhere("\r oO"),            {STATE_MOVE, RACE}},
    {MISS | MISS_ALL,     everywhere("\r oO"),            {STATE_TURN, RACE | VIEW}},
    {DRAW,                everywhere("\r oO"),            {STATE_DOPING_COUNTERCHECK, RACE}},
    {CHECK,               everywhere("\r oO"),            {SAME, RACE}},
    {NOT_SAVED,           everywhere("aA"),               {STATE_FINAL_SCORECARD}},
    {OVERLAYS,            everywhere("\r oO"),            {STATE_TURN}},
    {SAVED_SHEET,         everywhere("\r oO"),            {STATE_RACE_FILES}},
    {FINAL | SHEETS,      everywhere("xX"),               {SAME, VIEW | FILES}},
    {SHEET | SAVED_SHEET, {{"gG", "gG", "gG", "tT"}},     {SAME, VIEW}},
    {GENERAL,             {{"eE", "sS", "eE", "eE"}},     {SAME, VIEW}},
    {RACES | CHOSEN,      {{"zZ", "bB", "rR", "tT"}},     {STATE_MAIN_MENU}},
    {CHOSEN,              everywhere("oO"),               {STATE_COURSE_SELECT, SETUP | RACE}},
    {CHOSEN,              everywhere("sS"),               {STATE_RACE_STANDINGS}},
    {PLACE,               everywhere("\r "),              {SAME, RACE}},
    {MOVE,                everywhere("\r "),              {STATE_TURN, RACE}},
    {MOVE,                everywhere("uU"),               {SAME, RACE}},
    {FOLLOW,              {{"jJ", "yY", "oO", "jJ"}},     {STATE_TURN, RACE | VIEW}},
    {FOLLOW,              everywhere("nN"),               {STATE_TURN, RACE}},
    {NO_MOVE,             everywhere("\r oO"),            {STATE_TURN, RACE | VIEW}},
    {QUIT,                {{"jJ", "yY", "oO", "jJ"}},     {STATE_MAIN_MENU}},
    {QUIT,                everywhere("nN"),               {STATE_ORDER_RESULT}},
    {FINAL,               {{"uU", "qQ", "qQ", "tT"}},     {STATE_MAIN_MENU}},
    {PANEL,               {{"uU", "qQ", "qQ", "tT"}},     {STATE_CONFIRM_QUIT}},
    {PANEL,               {{"eE", "eE", "aA", "iI"}},     {STATE_SETTINGS}},
    {PANEL,               everywhere("sS"),               {STATE_SCORECARD}},
    {PANEL,               everywhere("pP"),               {STATE_POSITIONS}},
    {TABS,                everywhere("\t"),               {SAME, VIEW}},
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

template <typename T> void takeBytes(T& record, const std::string& bytes)
{
    std::memcpy(&record, bytes.data(), sizeof record);
}

std::uintmax_t sizeOfFiles()
{
    std::uintmax_t size = 0;
    for (const char* file : {"courses", "settings", "standings.csv"})
        size += std::filesystem::exists(file) ? std::filesystem::file_size(file) : 0;
    return size;
}

// Everything that input can change.
struct World {
    GameState state = gameState;
    GameState goesBackTo = returnState;
    std::string raceBytes = bytesOf(race);
    std::string occupants = bytesOf(course.courseOccupant);
    RaceSetup setup = raceSetup;
    TeamSetup setupFields = teamSetup;
    Settings chosen = settings;
    Settings backup = settingsBackup;
    SettingsScreen settingsFields = settingsScreen;
    std::string courseLetters = courseText;
    CourseScreens screens = courseScreens;
    int races = static_cast<int>(raceList.raceFileList.size());
    int listPage = raceList.raceListPage;
    RaceHead preview = racePreview;
    View seen = view;
    int page = manualPage;
    int quits = fakeHost.quits;
    int timer = fakeHost.pendingMs;
    std::uintmax_t files = sizeOfFiles();
};

auto setupOf(const World& world)
{
    const RaceSetup& race = world.setup;
    const TeamSetup& fields = world.setupFields;
    return std::tuple(race.teamName, race.multiStage, race.eventCardsOn, race.raceName,
                      race.raceFileName, race.raceBaseName, race.standingsFileName,
                      race.raceStages.size(), fields.teamActiveField, fields.teamCursor,
                      fields.setupMessages);
}

auto settingsOf(const World& world)
{
    const SettingsScreen& fields = world.settingsFields;
    return std::tuple(world.chosen, fields.settingsFieldText, fields.settingsActiveField,
                      fields.settingsCursor);
}

auto courseOf(const World& world)
{
    return std::tuple(world.courseLetters, world.screens);
}

auto listOf(const World& world)
{
    return std::tie(world.races, world.listPage, world.preview.eventCardsOn, world.preview.teamName,
                    world.preview.isHuman);
}

// Where a box was taken hold of is of no account once it is let go.
auto viewOf(const World& world)
{
    View seen = world.seen;
    seen.dragOffsetX = seen.dragOffsetY = 0;
    return seen;
}

unsigned changedParts(const World& before, const World& now)
{
    unsigned parts = NOTHING;
    const auto note = [&parts](bool same, Part part) { parts |= same ? NOTHING : part; };
    note(before.raceBytes == now.raceBytes && before.occupants == now.occupants, RACE);
    note(setupOf(before) == setupOf(now), SETUP);
    note(settingsOf(before) == settingsOf(now), SETTINGS);
    note(courseOf(before) == courseOf(now), COURSE);
    note(viewOf(before) == viewOf(now), VIEW);
    note(listOf(before) == listOf(now), LIST);
    note(before.page == now.page, PAGE);
    note(before.quits == now.quits, PROGRAM);
    note(before.files == now.files, FILES);
    return parts;
}

class Walk
{
public:
    Walk(Scene walked, int inLanguage) : scene(walked), language(inLanguage) { begin(); }

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

    void tryControl(const char* name, const Rect& at)
    {
        attempt(name, effectAt(at), [&] {
            player.hover(at);
            player.click(at);
        });
        const bool camera = (bit(scene) & LOOK) && isMiddleIn(at, cameraButton());
        attempt(std::string("right click on ") + name, {SAME, camera ? VIEW : NOTHING},
                [&] { player.rightClick(at); });
        for (const int button : {GLUT_MIDDLE_BUTTON, 3, 4, 5})
            attempt("button " + std::to_string(button) + " on " + name, {},
                    [&] { clickWith(button, at); });
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
        before = {};
    }

    static bool isMiddleIn(const Rect& at, const Rect& control)
    {
        return control.contains(static_cast<int>(at.x + at.w * 0.5f),
                                static_cast<int>(at.y + at.h * 0.5f));
    }

    static void clickWith(int button, const Rect& at)
    {
        const int x = layout.viewX + static_cast<int>(at.x + at.w * 0.5f);
        const int y = layout.viewY + static_cast<int>(at.y + at.h * 0.5f);
        onMouse(button, GLUT_DOWN, x, y);
        onMouse(button, GLUT_UP, x, y);
    }

    static void add(Effect& sum, const Effect& more)
    {
        if (more.to != SAME)
            sum.to = more.to;
        sum.parts |= more.parts;
        sum.mayChange |= more.mayChange;
    }

    Effect effectAt(const Rect& at) const
    {
        Effect sum;
        for (const ControlAct& act : CONTROL_ACTS)
            if ((act.scenes & bit(scene)) && isMiddleIn(at, act.at()))
                add(sum, act.effect);
        return sum;
    }

    Effect effectOfKey(int key) const
    {
        Effect sum;
        for (const KeyAct& act : KEY_ACTS)
            if ((act.scenes & bit(scene)) &&
                act.keys[language].find(static_cast<char>(key)) != std::string_view::npos)
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
        const World now;
        const GameState to = expected.to == SAME ? before.state : expected.to;
        const unsigned parts = changedParts(before, now);
        const unsigned asked = parts & ~expected.mayChange;
        EXPECT_TRUE(now.state == to && asked == expected.parts && !now.seen.dragActive)
            << nameOf(scene) << ", language " << language << ", " << what << ": state " << now.state
            << " where " << to << " was due, parts " << parts << " where " << expected.parts
            << " were due";
        if (now.state != before.state || parts != NOTHING)
            begin();
    }

    Scene scene;
    int language;
    Player player;
    World before;
};

void tryControls(Walk& walk)
{
    for (const Named& control : CONTROLS)
        for (int i = 0; i < control.count; ++i)
            walk.tryControl((std::string(control.name) + " " + std::to_string(i)).c_str(),
                            control.at(i));
}

} // namespace

TEST(Walk, NothingActsButWhatTheTablesName)
{
    const OwnFolder folder;
    startProgram(640, 512);
    for (int language = 0; language < LANGUAGE_COUNT; ++language)
        for (int scene = 0; scene < SCENE_COUNT; ++scene) {
            Walk walk(static_cast<Scene>(scene), language);
            walk.tryKeys();
            if (language == LANGUAGE_ENGLISH) // controls lie where they lie
                tryControls(walk);
        }
    settings = {};
    loadTexts();
}
