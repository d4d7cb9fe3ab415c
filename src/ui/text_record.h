#pragma once

#include <string>

// Every text of the current language, in Latin-1. Texts that end in a blank are joined with a
// number or a name; followPrompt and enterPlayerName hold a "%d", raceNameExists a "%s".
struct Texts {
    // Main menu
    std::string mainMenuTitle, languageSelection, manualButton, settings, continueRace, start, exit;

    // Team setup
    std::string teamSetupTitle, teamBack, computerPlayer, enableEventCards, multipleStages,
        singleStage, raceName, enterPlayerName, enterRaceName, raceNameExists;

    // Course screens
    std::string courseSelectionTitle, useSavedCourse, createNewCourse, courseBack, previousSection,
        addSection, saveCourse, sprint, finish, previousCourse, nextCourse, savedBack;

    // Manual and loading
    std::string previousPage, nextPage, pleaseWait;

    // Race screen
    std::string throwDice, next, scorecard, positions, doping, quit, breakaway, bonusMoves, moves,
        movesLeft, round, lap, lapShort;

    // Dialogs
    std::string yes, no, blue, white, immediately, later, followPrompt, noCardEventCancelled,
        noForward, confirmQuit, confirmDoping, whichCard, whenCard, noCard, retry, abort,
        couldNotSave;

    // Doping
    std::string dopingNumber, dopingControl, drawnNumbers, andWord, cyclistsCaught, countercheck,
        draw, dopingNumberOfCyclist, cyclist, acquitted, disqualificationConfirmed;

    // Settings
    std::string computerMovement, smoothMovement, delay, distance, stepwiseMovement,
        timeBetweenSteps, screenRatio, ratio54, ratio43, ratio1610, defaultValues, cancel;

    // Scorecard and standings
    std::string exportButton, standingsWritten, couldNotOpen, fileAlreadyOpen, stage, standings,
        result, generalAfterStage, general, stageTab;

    // Credits
    std::string creditDesigner, creditProgrammer;
};
