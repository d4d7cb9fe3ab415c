#pragma once

#include "ui/controls.h"
#include "ui/dialogs.h"
#include "ui/places.h"

inline Rect cornerButton() { return placeOf(CONTROL_EXIT); }
inline Rect dialogOkButton() { return placeOf(CONTROL_EVENT_OK); }
inline Rect dialogLeftButton() { return placeOf(CONTROL_QUIT_YES); }
inline Rect dialogRightButton() { return placeOf(CONTROL_QUIT_NO); }
inline Rect viewToggle() { return placeOf(CONTROL_VIEW); }
inline Rect cameraButton() { return placeOf(CONTROL_CAMERA); }
inline Rect scorecardButton() { return placeOf(CONTROL_SCORECARD); }
inline Rect positionsButton() { return placeOf(CONTROL_POSITIONS); }
inline Rect dopingButton() { return placeOf(CONTROL_DOPING); }
inline Rect settingsButton() { return placeOf(CONTROL_RACE_SETTINGS); }
inline Rect quitButton() { return placeOf(CONTROL_QUIT); }
inline Rect breakawayBox() { return placeOf(CONTROL_BREAKAWAY); }
inline Rect throwButton() { return placeOf(CONTROL_THROW); }
inline Rect handInOkButton() { return placeOf(CONTROL_HAND_IN); }
inline Rect extraThrowButton() { return placeOf(CONTROL_EXTRA_THROW); }
inline Rect menuLanguageButton() { return placeOf(CONTROL_LANGUAGE); }
inline Rect menuManualButton() { return placeOf(CONTROL_MANUAL); }
inline Rect menuSettingsButton() { return placeOf(CONTROL_MENU_SETTINGS); }
inline Rect menuContinueButton() { return placeOf(CONTROL_CONTINUE); }
inline Rect menuStartButton() { return placeOf(CONTROL_START); }
inline Rect exitButton() { return placeOf(CONTROL_EXIT); }
inline Rect manualOkButton() { return placeOf(CONTROL_MANUAL_OK); }
inline Rect prevPageButton() { return placeOf(CONTROL_PREVIOUS_PAGE); }
inline Rect nextPageButton() { return placeOf(CONTROL_NEXT_PAGE); }
inline Rect multiStageRadio() { return placeOf(CONTROL_MULTI_STAGE); }
inline Rect singleStageRadio() { return placeOf(CONTROL_SINGLE_STAGE); }
inline Rect eventCardsBox() { return placeOf(CONTROL_EVENT_CARDS); }
inline Rect teamOkButton() { return placeOf(CONTROL_TEAM_OK); }
inline Rect savedCourseButton() { return placeOf(CONTROL_SAVED_COURSE); }
inline Rect newCourseButton() { return placeOf(CONTROL_CREATE_COURSE); }
inline Rect sprintBox() { return placeOf(CONTROL_SPRINT); }
inline Rect finishBox() { return placeOf(CONTROL_FINISH); }
inline Rect prevSectionButton() { return placeOf(CONTROL_PREVIOUS_SECTION); }
inline Rect addSectionButton() { return placeOf(CONTROL_ADD_SECTION); }
inline Rect saveCourseButton() { return placeOf(CONTROL_SAVE_COURSE); }
inline Rect prevCourseButton() { return placeOf(CONTROL_PREVIOUS_COURSE); }
inline Rect nextCourseButton() { return placeOf(CONTROL_NEXT_COURSE); }
inline Rect savedOkButton() { return placeOf(CONTROL_SAVED_OK); }
inline Rect savedBackButton() { return placeOf(CONTROL_SAVED_BACK); }
inline Rect smoothRadio() { return placeOf(CONTROL_SMOOTH); }
inline Rect stepwiseRadio() { return placeOf(CONTROL_STEPWISE); }
inline Rect defaultButton() { return placeOf(CONTROL_DEFAULT); }
inline Rect settingsOkButton() { return placeOf(CONTROL_SETTINGS_OK); }
inline Rect settingsCancelButton() { return placeOf(CONTROL_SETTINGS_CANCEL); }
inline Rect listPrevButton() { return placeOf(CONTROL_LIST_PREVIOUS); }
inline Rect listNextButton() { return placeOf(CONTROL_LIST_NEXT); }
inline Rect listOkButton() { return placeOf(CONTROL_LIST_OK); }
inline Rect listScorecardButton() { return placeOf(CONTROL_LIST_SCORECARD); }
inline Rect scorecardOkButton() { return placeOf(CONTROL_SHEET_OK); }
inline Rect exportButton() { return placeOf(CONTROL_EXPORT); }
inline Rect prevStageButton() { return placeOf(CONTROL_PREVIOUS_STAGE); }
inline Rect nextStageButton() { return placeOf(CONTROL_NEXT_STAGE); }
inline Rect generalViewButton() { return placeOf(CONTROL_GENERAL); }
inline Rect stageViewButton() { return placeOf(CONTROL_STAGE); }
inline Rect positionsOkButton() { return placeOf(CONTROL_POSITIONS_OK); }
inline Rect savedCoursePicture() { return overviewPicture(); }
inline Rect teamTab(int i) { return placeOf(static_cast<Control>(CONTROL_TAB_1 + i)); }
inline Rect teamComputerBox(int i) { return placeOf(static_cast<Control>(CONTROL_COMPUTER_1 + i)); }
inline Rect ratioRadio(int i) { return placeOf(static_cast<Control>(CONTROL_RATIO_54 + i)); }
