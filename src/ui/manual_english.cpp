#include "ui/texts_language.h"

const char MANUAL_ENGLISH[] =
    "<1>Manual for PC Version of Gravelon</1>"
    "This manual tells how the PC version is worked. The rules of the game stand in the booklet "
    "of the board game."
    "<2>Main Menu</2>"
    "Language selection changes the language of all texts, and Manual opens these pages. Settings "
    "holds the movement of the computer's riders and the screen ratio. Start begins a new race; "
    "Continue existing race goes on with a race of several stages. Exit ends the program at once."
    "<2>Shortcuts</2>"
    "The underlined letter of a button is its key. In this manual the arrow keys turn the pages, "
    "Home and End go to the first and the last page, and Esc goes back to the main menu.";
