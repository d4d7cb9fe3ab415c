#pragma once

// The language screen and the manual.

// From the main menu. The manual opens on its first page.
void openLanguages();
void openManual();

// The language under the pointer, in pixels of the drawing area, becomes that of the settings; -1
// where there is none.
void hoverLanguage(int x, int y);

// A release anywhere on the language screen: keeps the language that is lit, if one is, and goes
// back to the main menu in it.
void chooseLanguage();

// So many pages on, as far as there are any.
void turnManual(int pages);

// The keys of the manual that are no button's.
void keyInManual(unsigned char key);
void specialInManual(int key);
