#pragma once

// The score sheet, over the race, behind a stage or over the list of races. The dragging of the
// sheet is the mouse's own.

// One stage back or on, as far as there are stages.
void turnStageBack();
void turnStageOn();

// The general classification, and back from it to the last stage.
void showGeneral();
void showLastStage();

void exportSheet();

// "Quit" behind a stage, "OK" where there is something to go back to.
void leaveScorecard();

// The Dutch word for "General" has no letter left: it takes that of "Quit" where there is no such
// button.
void keyInScorecard(unsigned char key);

// The arrows turn the pages of the stages.
void specialInScorecard(int key);
