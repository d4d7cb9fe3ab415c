#include "input/menu_input.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/settings.h"
#include "input/actions.h"
#include "play/overlays.h"
#include "store/settings_file.h"
#include "ui/keys.h"
#include "ui/manual_pages.h"
#include "ui/places.h"
#include "ui/texts.h"

#include <GL/freeglut.h>

void openLanguages()
{
    enter(STATE_LANGUAGE);
}

void openManual()
{
    manualPage = 0;
    enter(STATE_MANUAL);
}

static int languageUnder(int x, int y)
{
    for (int language = 0; language < LANGUAGE_COUNT; ++language)
        if (languageBox(language).contains(x, y))
            return language;
    return -1;
}

void hoverLanguage(int x, int y)
{
    const int hovered = languageUnder(x, y);
    if (hovered == settings.language)
        return;
    settings.language = hovered;
    redrawNow();
}

// The file failing to be written is no reason to refuse the language for this run.
void chooseLanguage()
{
    if (settings.language == -1)
        return;
    writeSettings();
    loadTexts();
    toMainMenu();
}

static void showPage(int page)
{
    if (page < 0 || page >= manualPageCount || page == manualPage)
        return;
    manualPage = page;
    redrawNow();
}

void turnManual(int pages)
{
    showPage(manualPage + pages);
}

void keyInManual(unsigned char key)
{
    if (key == KEY_ENTER || key == KEY_SPACE)
        turnManual(1);
    else if (key == KEY_ESCAPE)
        toMainMenu();
}

void specialInManual(int key)
{
    switch (key) {
    case GLUT_KEY_LEFT:
    case GLUT_KEY_UP:
    case GLUT_KEY_PAGE_UP:
        return turnManual(-1);
    case GLUT_KEY_RIGHT:
    case GLUT_KEY_DOWN:
    case GLUT_KEY_PAGE_DOWN:
        return turnManual(1);
    case GLUT_KEY_HOME:
        return showPage(0);
    case GLUT_KEY_END:
        return showPage(manualPageCount - 1);
    default:
        return;
    }
}
