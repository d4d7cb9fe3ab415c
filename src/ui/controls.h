#pragma once

#include "ui/rect.h"

// Where each control lies, from the layout of the moment. Drawing and hit tests both ask here, so a
// control is hit exactly where it is seen. An index outside its range gives a place further on in
// the same row or column.
//
// Check boxes and radio buttons answer to their label as well: their rectangle reaches over it to
// the right. For a check box x, y and h are those of the box itself; a radio button's circle stands
// at the left end, at half height.

// Many screens.
Rect cornerButton(); // Exit, Back or OK at the bottom right
Rect dialogBox();
Rect dialogTitleBar();
Rect dialogOkButton();
Rect dialogLeftButton();
Rect dialogRightButton();

// The panel of the race screen.
Rect viewToggle();
Rect cameraButton();
Rect scorecardButton();
Rect positionsButton();
Rect dopingButton();
Rect settingsButton();
Rect quitButton();
Rect cardPanel();         // without its tabs
Rect cardPlace(int slot); // 0 to 13 the set, 14 to 17 the won cards
Rect teamTab(int team);
Rect dicePlace(int die); // 0 left, 1 right
Rect breakawayBox();
Rect throwButton();
Rect handInSlot(int slot);
Rect handInOkButton();
Rect extraCardSlot();
Rect extraDicePlace();
Rect extraThrowButton();

// Main menu. Exit is the corner button.
Rect menuLanguageButton();
Rect menuManualButton();
Rect menuSettingsButton();
Rect menuContinueButton();
Rect menuStartButton();
Rect exitButton();

Rect languageBox(int language);

// Manual.
Rect manualFrame();
Rect manualOkButton();
Rect prevPageButton();
Rect nextPageButton();

// Team setup. Back is the corner button.
Rect teamNameBox(int team);
Rect teamComputerBox(int team);
Rect multiStageRadio();
Rect singleStageRadio();
Rect raceNameBox();
Rect eventCardsBox();
Rect teamOkButton();

// Course selection. Back is the corner button.
Rect coursePicture(int course);
Rect courseCell(int course); // the picture with its caption
Rect savedCourseButton();
Rect newCourseButton();

// Course designer. Back is the corner button.
Rect sectionRadio(int choice);
Rect sectionRadios(int choiceCount); // the list as a whole, half a line above and below included
Rect sprintBox();
Rect finishBox();
Rect prevSectionButton();
Rect addSectionButton();
Rect saveCourseButton();

// Saved courses.
Rect savedCoursePicture();
Rect prevCourseButton();
Rect nextCourseButton();
Rect savedOkButton();
Rect savedBackButton();

// Settings.
Rect movementFrame();
Rect ratioFrame();
Rect smoothRadio();
Rect stepwiseRadio();
Rect settingsField(int field); // 0 step time, 1 step distance, 2 step delay
Rect defaultButton();
Rect ratioRadio(int ratio); // 0 5:4, 1 4:3, 2 16:10
Rect settingsOkButton();
Rect settingsCancelButton();

// Race list. Back is the corner button.
Rect raceListFrame();
Rect raceListNames(); // where names are hit, all columns
Rect listPrevButton();
Rect listNextButton();
Rect listOkButton();
Rect listScorecardButton();

// Scorecard.
Rect scorecardBox(); // the sheet with the space for its buttons
Rect scorecardTitleBar();
Rect scorecardOkButton();
Rect exportButton();
Rect prevStageButton();
Rect nextStageButton();
Rect generalViewButton();
Rect stageViewButton();

// Positions.
Rect overviewPicture();
Rect positionsOkButton();
