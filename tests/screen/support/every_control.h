#pragma once

#include "race/race_state.h"
#include "screen/support/old_places.h"

// Every rectangle of the controls by its name, for tests that try them all.

struct Named {
    const char* name;
    Rect (*at)(int);
    int count; // how many there are of its kind
};

// clang-format off
#define CONTROL(control) {#control, [](int) { return control(); }, 1}
#define CONTROL_ROW(control, count) {#control, control, count}
const Named CONTROLS[] = {
    CONTROL(cornerButton), CONTROL(dialogBox), CONTROL(dialogTitleBar), CONTROL(dialogOkButton),
    CONTROL(dialogLeftButton), CONTROL(dialogRightButton), CONTROL(viewToggle),
    CONTROL(cameraButton), CONTROL(scorecardButton), CONTROL(positionsButton),
    CONTROL(dopingButton), CONTROL(settingsButton), CONTROL(quitButton), CONTROL(cardPanel),
    CONTROL(breakawayBox), CONTROL(throwButton), CONTROL(handInOkButton),
    CONTROL(extraCardSlot), CONTROL(extraDicePlace), CONTROL(extraThrowButton),
    CONTROL(menuLanguageButton), CONTROL(menuManualButton), CONTROL(menuSettingsButton),
    CONTROL(menuContinueButton), CONTROL(menuStartButton), CONTROL(exitButton),
    CONTROL(manualFrame), CONTROL(manualOkButton), CONTROL(prevPageButton),
    CONTROL(nextPageButton), CONTROL(multiStageRadio), CONTROL(singleStageRadio),
    CONTROL(raceNameBox), CONTROL(eventCardsBox), CONTROL(teamOkButton),
    CONTROL(savedCourseButton), CONTROL(newCourseButton), CONTROL(sprintBox), CONTROL(finishBox),
    CONTROL(prevSectionButton), CONTROL(addSectionButton), CONTROL(saveCourseButton),
    CONTROL(savedCoursePicture), CONTROL(prevCourseButton), CONTROL(nextCourseButton),
    CONTROL(savedOkButton), CONTROL(savedBackButton), CONTROL(movementFrame), CONTROL(ratioFrame),
    CONTROL(smoothRadio), CONTROL(stepwiseRadio), CONTROL(defaultButton),
    CONTROL(settingsOkButton), CONTROL(settingsCancelButton), CONTROL(raceListFrame),
    CONTROL(raceListNames), CONTROL(listPrevButton), CONTROL(listNextButton),
    CONTROL(listOkButton), CONTROL(listScorecardButton), CONTROL(scorecardBox),
    CONTROL(scorecardTitleBar), CONTROL(scorecardOkButton), CONTROL(exportButton),
    CONTROL(prevStageButton), CONTROL(nextStageButton), CONTROL(generalViewButton),
    CONTROL(stageViewButton), CONTROL(overviewPicture), CONTROL(positionsOkButton),
    CONTROL_ROW(cardPlace, CARD_SLOT_COUNT), CONTROL_ROW(teamTab, 4), CONTROL_ROW(dicePlace, 2),
    CONTROL_ROW(handInSlot, 2), CONTROL_ROW(languageBox, 4), CONTROL_ROW(teamNameBox, 4),
    CONTROL_ROW(teamComputerBox, 4), CONTROL_ROW(coursePicture, 4), CONTROL_ROW(courseCell, 4),
    CONTROL_ROW(sectionRadio, 3), CONTROL_ROW(sectionRadios, 3), CONTROL_ROW(settingsField, 3),
    CONTROL_ROW(ratioRadio, 3),
};
// clang-format on
