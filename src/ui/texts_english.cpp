#include "ui/texts_language.h"

// clang-format off
//  key                                 words
static constexpr TextEntry WORDS[] = {
    // Main menu
    {&Texts::mainMenuTitle,             "Main Menu"},
    {&Texts::languageSelection,         "Language selection"},
    {&Texts::manualButton,              "Manual"},
    {&Texts::settings,                  "Settings"},
    {&Texts::continueRace,              "Continue existing race"},
    {&Texts::start,                     "Start"},
    {&Texts::exit,                      "Exit"},

    // Team setup
    {&Texts::teamSetupTitle,            "Team Setup"},
    {&Texts::teamBack,                  "Back"},
    {&Texts::computerPlayer,            "Computer player"},
    {&Texts::enableEventCards,          "Enable event cards"},
    {&Texts::multipleStages,            "Multiple stages"},
    {&Texts::singleStage,               "Single stage"},
    {&Texts::raceName,                  "Race name"},
    {&Texts::enterPlayerName,           "Enter a name for player %d"},
    {&Texts::enterRaceName,             "Enter a race name"},
    {&Texts::raceNameExists,            "Race name \"%s\" already exists"},

    // Course screens
    {&Texts::courseSelectionTitle,      "Course Selection"},
    {&Texts::useSavedCourse,            "Use saved course"},
    {&Texts::createNewCourse,           "Create new course"},
    {&Texts::courseBack,                "Back"},
    {&Texts::previousSection,           "Previous"},
    {&Texts::addSection,                "Add"},
    {&Texts::saveCourse,                "Save course"},
    {&Texts::sprint,                    "Sprint"},
    {&Texts::finish,                    "Finish"},
    {&Texts::previousCourse,            "Previous"},
    {&Texts::nextCourse,                "Next"},
    {&Texts::savedBack,                 "Back"},

    // Manual and loading
    {&Texts::previousPage,              "Previous page"},
    {&Texts::nextPage,                  "Next page"},
    {&Texts::pleaseWait,                "Please wait while loading"},

    // Race screen
    {&Texts::throwDice,                 "Throw"},
    {&Texts::next,                      "Next"},
    {&Texts::scorecard,                 "Scorecard"},
    {&Texts::positions,                 "Positions"},
    {&Texts::doping,                    "Doping"},
    {&Texts::quit,                      "Quit"},
    {&Texts::breakaway,                 "Breakaway"},
    {&Texts::bonusMoves,                "Bonus moves: "},
    {&Texts::moves,                     "Moves: "},
    {&Texts::movesLeft,                 "Moves left: "},
    {&Texts::round,                     "Round:"},
    {&Texts::lap,                       "Lap:"},
    {&Texts::lapShort,                  "L:"},

    // Dialogs
    {&Texts::yes,                       "Yes"},
    {&Texts::no,                        "No"},
    {&Texts::blue,                      "Blue"},
    {&Texts::white,                     "White"},
    {&Texts::immediately,               "Immediately"},
    {&Texts::later,                     "Later"},
    {&Texts::followPrompt,              "Do you want to follow cyclist %d?"},
    {&Texts::noCardEventCancelled,      "You do not have an available strength card; event card cancelled"},
    {&Texts::noForward,                 "Rider does not go forward this turn"},
    {&Texts::confirmQuit,               "Do you really want to end the game?"},
    {&Texts::confirmDoping,             "Do you really want to use doping?"},
    {&Texts::whichCard,                 "Which kind of strength card do you want to receive?"},
    {&Texts::whenCard,                  "When do you want to use the card?"},
    {&Texts::noCard,                    "You do not have an available strength card"},
    {&Texts::retry,                     "Retry"},
    {&Texts::abort,                     "Abort"},
    {&Texts::couldNotSave,              "Could not save the race in "},

    // Doping
    {&Texts::dopingNumber,              "Doping number"},
    {&Texts::dopingControl,             "Doping control"},
    {&Texts::drawnNumbers,              "Drawn numbers"},
    {&Texts::andWord,                   "and"},
    {&Texts::cyclistsCaught,            "Cyclist(s) caught:"},
    {&Texts::countercheck,              "Countercheck"},
    {&Texts::draw,                      "Draw"},
    {&Texts::dopingNumberOfCyclist,     "Doping number of cyclist"},
    {&Texts::cyclist,                   "Cyclist"},
    {&Texts::acquitted,                 "acquitted"},
    {&Texts::disqualificationConfirmed, "disqualification confirmed"},

    // Settings
    {&Texts::computerMovement,          "Computer Movement"},
    {&Texts::smoothMovement,            "Smooth computer movement"},
    {&Texts::delay,                     "Delay"},
    {&Texts::distance,                  "Distance"},
    {&Texts::stepwiseMovement,          "Stepwise computer movement"},
    {&Texts::timeBetweenSteps,          "Time between steps"},
    {&Texts::screenRatio,               "Screen Ratio"},
    {&Texts::ratio54,                   "5:4"},
    {&Texts::ratio43,                   "4:3"},
    {&Texts::ratio1610,                 "16:10 (Widescreen)"},
    {&Texts::defaultValues,             "Default"},
    {&Texts::cancel,                    "Cancel"},

    // Scorecard and standings
    {&Texts::exportButton,              "Export"},
    {&Texts::standingsWritten,          "Standings written to "},
    {&Texts::couldNotOpen,              " could not be opened."},
    {&Texts::fileAlreadyOpen,           "File probably already opened."},
    {&Texts::stage,                     "stage "},
    {&Texts::standings,                 "Standings "},
    {&Texts::result,                    "Result "},
    {&Texts::generalAfterStage,         "General classification after stage "},
    {&Texts::general,                   "General"},
    {&Texts::stageTab,                  "Stage"},

    // Credits
    {&Texts::creditDesigner,            "After a board game about a cycling race"},
    {&Texts::creditProgrammer,          "Gravelon: the PC version"},
};
// clang-format on

static_assert(holdsEveryText(WORDS));

constinit const Language ENGLISH = {
    .words = WORDS,
    .teamNames = {"Belgium", "Netherlands", "Germany", "France"},
    .manual = MANUAL_ENGLISH,
};
