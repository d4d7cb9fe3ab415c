#pragma once

#include <string>

// One line of text that is being edited. text is Latin-1, capacity the most characters it holds,
// cursor counts the characters in front of it: 0 to the end of the text, at most on the last place.
struct TextField {
    std::string& text;
    int& cursor;
    int capacity;
};

// Puts a character in at the cursor. What it pushes beyond the capacity falls off; on the last
// place it overwrites.
void typeCharacter(TextField field, char character);

void eraseBefore(TextField field); // Backspace
void eraseAt(TextField field);     // Delete

// Moves the cursor by so many characters, within the text.
void moveTextCursor(TextField field, int characters);
void cursorToStart(TextField field);
void cursorToEnd(TextField field);

// The cursor for a click in a box that begins at pixel boxX and is boxW wide: on the character hit,
// or at the start if the text is shorter.
void cursorFromClick(TextField field, int x, int boxX, int boxW);
