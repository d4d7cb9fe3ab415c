#include "board/designer.h"

#include "board/course.h"

#include <algorithm>

CourseScreens courseScreens;

static constexpr int LAPS_MAX = 5; // by the laps driven, which count from 1
static constexpr int START_2 = 6;

static bool isDigit(char letter)
{
    return letter >= '0' && letter <= '8';
}

static int sectionOf(char letter)
{
    return letter - '0';
}

static char digitOf(int section)
{
    return static_cast<char>('0' + section);
}

static bool endsIn(std::string_view text, char letter)
{
    return !text.empty() && text.back() == letter;
}

// The last section of a course, whatever mark stands behind it; -1 for an empty course.
static int lastSection(std::string_view text)
{
    const auto last = std::find_if(text.rbegin(), text.rend(), isDigit);
    return last == text.rend() ? -1 : sectionOf(*last);
}

static void clearBoxes()
{
    courseScreens.designSprintChecked = false;
    courseScreens.designFinishChecked = false;
}

static bool lapsFull()
{
    return countCourseLaps(courseText, LAPS_DRIVEN) >= LAPS_MAX;
}

NextSections nextSections()
{
    if (courseText.empty())
        return {.section = {0, START_2}, .designChoiceCount = 2};
    if (designFinished())
        return {};
    NextSections next;
    for (const int section : sectionSuccessors[lastSection(courseText)])
        if (section != -1)
            next.section[next.designChoiceCount++] = section;
    return next;
}

int previewedSection()
{
    const NextSections next = nextSections();
    if (next.designChoiceCount == 0)
        return lastSection(courseText);
    return next.section[std::clamp(courseScreens.designChoice, 0, next.designChoiceCount - 1)];
}

int designSprintCount()
{
    return static_cast<int>(std::ranges::count(courseText, 'S'));
}

bool designFinished()
{
    return endsIn(courseText, 'F') || (!courseText.empty() && lapsFull());
}

bool sprintChoosable()
{
    return finishChoosable() && designSprintCount() < SPRINT_COUNT;
}

bool finishChoosable()
{
    return !courseText.empty() && !endsIn(courseText, 'F');
}

bool sectionUndoable()
{
    return !courseText.empty();
}

void startDesign()
{
    courseText.clear();
    courseScreens.designChoice = 0;
    courseScreens.saveFailed = false;
    clearBoxes();
}

void addSection()
{
    const NextSections next = nextSections();
    if (next.designChoiceCount == 0 || courseScreens.designChoice >= next.designChoiceCount)
        return;
    courseText += digitOf(next.section[courseScreens.designChoice]);
    if (courseScreens.designFinishChecked || lapsFull())
        courseText += 'F';
    else if (courseScreens.designSprintChecked && designSprintCount() < SPRINT_COUNT)
        courseText += 'S';
    courseScreens.designChoice = 0;
    clearBoxes();
}

void undoSection()
{
    courseScreens.designChoice = 0;
    if (courseText.empty())
        return;
    clearBoxes();
    courseScreens.designSprintChecked = endsIn(courseText, 'S');
    courseScreens.designFinishChecked = endsIn(courseText, 'F');
    if (!isDigit(courseText.back()))
        courseText.pop_back();
    courseText.pop_back();
}

void chooseSection(int choice)
{
    if (choice >= 0 && choice < nextSections().designChoiceCount)
        courseScreens.designChoice = choice;
}

void toggleSprint()
{
    if (sprintChoosable())
        courseScreens.designSprintChecked = !courseScreens.designSprintChecked;
}

void toggleFinish()
{
    if (finishChoosable())
        courseScreens.designFinishChecked = !courseScreens.designFinishChecked;
}

// Behind the last section of the loop comes its first; the start sections are no part of it.
static int onwardFrom(int section)
{
    const int next = section + 1;
    return next == START_2 || next == SECTION_COUNT ? 1 : next;
}

void appendRunOut()
{
    if (!endsIn(courseText, 'F'))
        return;
    const int first = onwardFrom(lastSection(courseText));
    courseText += digitOf(first);
    courseText += digitOf(onwardFrom(first));
}

static bool mayFollow(int before, int section)
{
    const auto& successors = sectionSuccessors[before];
    return std::ranges::find(successors, section) != successors.end();
}

// The designer closes a course where its last lap ends.
static bool goesOnTooLong(std::string_view text)
{
    const std::string_view beforeLast = text.substr(0, text.find_last_of("012345678"));
    return countCourseLaps(beforeLast, LAPS_DRIVEN) >= LAPS_MAX;
}

// Whether the character may stand at this place behind a start section. That one bears no mark: on
// its rows the riders are placed.
static bool fitsBehind(std::string_view before, char letter)
{
    if (isDigit(letter))
        return before.back() != 'F' && mayFollow(lastSection(before), sectionOf(letter));
    return before.size() > 1 && isDigit(before.back()) && (letter == 'S' || letter == 'F');
}

bool isFinishedDesign(std::string_view text)
{
    if (!endsIn(text, 'F') || (text.front() != '0' && text.front() != '6') ||
        std::ranges::count(text, 'S') > SPRINT_COUNT || goesOnTooLong(text))
        return false;
    for (std::size_t i = 1; i < text.size(); ++i)
        if (!fitsBehind(text.substr(0, i), text[i]))
            return false;
    return true;
}
