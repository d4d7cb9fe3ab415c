#include "input/setup_input.h"

#include "app/host.h"
#include "input/text_field.h"
#include "race/race_state.h"
#include "ui/keys.h"
#include "ui/places.h"
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

void changePlayer(int team)
{
    for (int place = 0; place < RIDERS_PER_TEAM; ++place) {
        auto& isHuman = race.riders[team * RIDERS_PER_TEAM + place].isHuman;
        isHuman = isHuman ? 0 : 1;
    }
    redrawNow();
}

void chooseStages(bool several)
{
    raceSetup.multiStage = several;
    if (!several && teamSetup.teamActiveField == RACE_NAME_FIELD)
        activate(RACE_NAME_FIELD - 1);
    redrawNow();
}

void toggleEventCards()
{
    raceSetup.eventCardsOn = !raceSetup.eventCardsOn;
    redrawNow();
}

bool releaseInNameFields(int x, int y)
{
    for (int field = 0; field < fieldCount(); ++field) {
        const Rect box = field == RACE_NAME_FIELD ? raceNameBox() : teamNameBox(field);
        if (!box.contains(x, y))
            continue;
        clickField(field, x, box);
        redrawNow();
        return true;
    }
    return false;
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
