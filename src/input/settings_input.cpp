#include "input/settings_input.h"

#include "app/host.h"
#include "app/settings.h"
#include "input/text_field.h"
#include "play/overlays.h"
#include "store/settings_file.h"
#include "ui/keys.h"
#include "ui/layout.h"
#include "ui/places.h"
#include "ui/reshape.h"
#include "ui/settings_screen.h"

#include <GL/freeglut.h>

#include <cstdlib>
#include <utility>

static TextField activeField()
{
    return {settingsScreen.settingsFieldText[settingsScreen.settingsActiveField],
            settingsScreen.settingsCursor, SETTINGS_DIGITS_MAX};
}

static void activate(int field)
{
    settingsScreen.settingsActiveField = field;
    settingsScreen.settingsCursor = 0;
}

void chooseMovement(int smooth)
{
    settings.smoothMovement = smooth;
    activate(firstOpenSettingsField());
    redrawNow();
}

static bool ratioDiffers(double w, double h)
{
    return settings.ratioW != w || settings.ratioH != h;
}

void chooseRatio(const ScreenRatio& choice)
{
    // Who picks what the program had guessed makes it his own choice.
    settingsScreen.guessGivenUp |= std::exchange(ratioChosenByProgram, false);
    if (!ratioDiffers(choice.w, choice.h))
        return;
    settings.ratioW = choice.w;
    settings.ratioH = choice.h;
    activate(firstOpenSettingsField());
    redrawNow();
}

// Of the settings themselves only the kind of movement changes at once. The ratio stays.
void takeDefaultSettings()
{
    const Settings defaults;
    settings.smoothMovement = defaults.smoothMovement;
    fillSettingsFields(defaults);
    redrawNow();
}

// An empty field counts as 0.
static int numberIn(int field)
{
    return std::atoi(settingsScreen.settingsFieldText[field].c_str());
}

// Whether the ratio of the settings gives another drawing area than the one laid out.
static bool drawingAreaChanges()
{
    const int shownW = layout.viewW;
    const int shownH = layout.viewH;
    updateDrawingArea();
    return layout.viewW != shownW || layout.viewH != shownH;
}

// The file failing to be written is no reason to refuse the settings for this run.
void confirmSettings()
{
    settings.stepTime = numberIn(FIELD_STEP_TIME);
    settings.stepDistance = static_cast<float>(numberIn(FIELD_STEP_DISTANCE));
    settings.stepDelay = numberIn(FIELD_STEP_DELAY);
    fillSettingsFields(settings);
    settingsScreen.guessGivenUp = false;
    writeSettings();
    if (drawingAreaChanges() || ratioDiffers(settingsBackup.ratioW, settingsBackup.ratioH))
        layOutAnew();
    closeOverlay();
}

// Another size of the window meanwhile has been laid out for the ratio that is given up here.
void cancelSettings()
{
    settings.smoothMovement = settingsBackup.smoothMovement;
    if (!ratioChosenByProgram) {
        settings.ratioW = settingsBackup.ratioW;
        settings.ratioH = settingsBackup.ratioH;
        ratioChosenByProgram = std::exchange(settingsScreen.guessGivenUp, false);
    }
    fillSettingsFields(settings);
    if (drawingAreaChanges())
        layOutAnew();
    closeOverlay();
}

void releaseInSettingsFields(int x, int y)
{
    for (int field = 0; field < SETTINGS_FIELD_COUNT; ++field) {
        const Rect box = settingsField(field);
        if (!settingsFieldOpen(field) || !box.contains(x, y))
            continue;
        activate(field);
        cursorFromClick(activeField(), x, static_cast<int>(box.x), static_cast<int>(box.w));
        return redrawNow();
    }
}

// The next field that is open, from the last one to the first; backward the one before.
static int neighbourField(bool backward)
{
    int field = settingsScreen.settingsActiveField;
    do
        field = (field + (backward ? SETTINGS_FIELD_COUNT - 1 : 1)) % SETTINGS_FIELD_COUNT;
    while (!settingsFieldOpen(field));
    return field;
}

void keyInSettings(unsigned char key, bool backward)
{
    if (key == KEY_TAB || key == KEY_ENTER)
        activate(neighbourField(backward));
    else if (key == KEY_BACKSPACE)
        eraseBefore(activeField());
    else if (key == KEY_DELETE)
        eraseAt(activeField());
    else if (key >= '0' && key <= '9')
        typeCharacter(activeField(), static_cast<char>(key));
    else
        return;
    redrawNow();
}

static void moveToField(int field)
{
    if (field >= 0 && field < SETTINGS_FIELD_COUNT && settingsFieldOpen(field))
        activate(field);
}

void specialInSettings(int key)
{
    switch (key) {
    case GLUT_KEY_LEFT:
        moveTextCursor(activeField(), -1);
        break;
    case GLUT_KEY_RIGHT:
        moveTextCursor(activeField(), 1);
        break;
    case GLUT_KEY_HOME:
        cursorToStart(activeField());
        break;
    case GLUT_KEY_END:
        cursorToEnd(activeField());
        break;
    case GLUT_KEY_UP:
        moveToField(settingsScreen.settingsActiveField - 1);
        break;
    case GLUT_KEY_DOWN:
        moveToField(settingsScreen.settingsActiveField + 1);
        break;
    default:
        return;
    }
    redrawNow();
}
