#include "input/setup_input.h"

#include "app/host.h"
#include "input/actions.h"
#include "input/keys.h"
#include "input/text_field.h"
#include "play/overlays.h"
#include "race/race_state.h"
#include "ui/controls.h"
#include "ui/team_setup.h"

#include <GL/freeglut.h>

static constexpr int RACE_NAME_FIELD = TEAM_COUNT;

static int fieldCount()
{
    return raceSetup.multiStage ? TEAM_COUNT + 1 : TEAM_COUNT;
}

static TextField activeField()
{
    std::string& text = teamSetup.teamActiveField == RACE_NAME_FIELD
                            ? raceSetup.raceName
                            : raceSetup.teamName[teamSetup.teamActiveField];
    return {text, teamSetup.teamCursor, NAME_LENGTH_MAX};
}

static void activate(int field)
{
    teamSetup.teamActiveField = field;
    teamSetup.teamCursor = 0;
}

static void clickField(int field, int x, const Rect& box)
{
    activate(field);
    cursorFromClick(activeField(), x, static_cast<int>(box.x), static_cast<int>(box.w));
}

static void changePlayer(int team)
{
    for (int place = 0; place < RIDERS_PER_TEAM; ++place) {
        auto& isHuman = race.riders[team * RIDERS_PER_TEAM + place].isHuman;
        isHuman = isHuman ? 0 : 1;
    }
}

static void chooseStages(bool several)
{
    raceSetup.multiStage = several;
    if (!several && teamSetup.teamActiveField == RACE_NAME_FIELD)
        activate(RACE_NAME_FIELD - 1);
}

static bool releaseInTeamRows(int x, int y)
{
    for (int team = 0; team < TEAM_COUNT; ++team) {
        if (teamNameBox(team).contains(x, y)) {
            clickField(team, x, teamNameBox(team));
            return true;
        }
        if (teamComputerBox(team).contains(x, y)) {
            changePlayer(team);
            return true;
        }
    }
    return false;
}

static bool releaseInRaceOptions(int x, int y)
{
    if (raceSetup.multiStage && raceNameBox().contains(x, y))
        clickField(RACE_NAME_FIELD, x, raceNameBox());
    else if (multiStageRadio().contains(x, y))
        chooseStages(true);
    else if (singleStageRadio().contains(x, y))
        chooseStages(false);
    else if (eventCardsBox().contains(x, y))
        raceSetup.eventCardsOn = !raceSetup.eventCardsOn;
    else
        return false;
    return true;
}

void releaseInTeamSetup(int x, int y)
{
    if (teamOkButton().contains(x, y))
        confirmTeamSetup();
    else if (cornerButton().contains(x, y))
        toMainMenu();
    else if (releaseInTeamRows(x, y) || releaseInRaceOptions(x, y))
        redrawNow();
}

// Letters of the West European alphabets, as team names hold them.
static bool isNameCharacter(unsigned char key)
{
    const bool letter = (key >= 'a' && key <= 'z') || (key >= 'A' && key <= 'Z');
    const bool accented = key >= 0xC0 && key != 0xD7 && key != 0xF7;
    return letter || accented || (key >= '0' && key <= '9') || key == ' ' || key == '-';
}

void keyInTeamSetup(unsigned char key, bool backward)
{
    if (key == KEY_TAB || key == KEY_ENTER)
        activate((teamSetup.teamActiveField + (backward ? fieldCount() - 1 : 1)) % fieldCount());
    else if (key == KEY_BACKSPACE)
        eraseBefore(activeField());
    else if (key == KEY_DELETE)
        eraseAt(activeField());
    else if (isNameCharacter(key))
        typeCharacter(activeField(), static_cast<char>(key));
    else
        return;
    redrawNow();
}

void specialInTeamSetup(int key)
{
    const int field = teamSetup.teamActiveField;
    if (key == GLUT_KEY_LEFT)
        moveTextCursor(activeField(), -1);
    else if (key == GLUT_KEY_RIGHT)
        moveTextCursor(activeField(), 1);
    else if (key == GLUT_KEY_HOME)
        cursorToStart(activeField());
    else if (key == GLUT_KEY_END)
        cursorToEnd(activeField());
    else if (key == GLUT_KEY_UP && field > 0)
        activate(field - 1);
    else if (key == GLUT_KEY_DOWN && field + 1 < fieldCount())
        activate(field + 1);
    else
        return;
    redrawNow();
}
