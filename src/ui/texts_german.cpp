#include "ui/texts_language.h"

// clang-format off
//  key                                 words
static constexpr TextEntry WORDS[] = {
    // Main menu
    {&Texts::mainMenuTitle,             "Hauptmenü"},
    {&Texts::languageSelection,         "Sprachwahl"},
    {&Texts::manualButton,              "Anleitung"},
    {&Texts::settings,                  "Einstellungen"},
    {&Texts::continueRace,              "Weitergehen mit einem Rennen"},
    {&Texts::start,                     "Starten"},
    {&Texts::exit,                      "Beenden"},

    // Team setup
    {&Texts::teamSetupTitle,            "Mannschaftseinstellungen"},
    {&Texts::teamBack,                  "Zurück"},
    {&Texts::computerPlayer,            "Computerspieler"},
    {&Texts::enableEventCards,          "Mit Chancekarten spielen"},
    {&Texts::multipleStages,            "Mehrere Etappen"},
    {&Texts::singleStage,               "Einzelne Etappe"},
    {&Texts::raceName,                  "Name des Rennens"},
    {&Texts::enterPlayerName,           "Geben Sie einen Namen ein für den Spieler %d"},
    {&Texts::enterRaceName,             "Geben Sie einen Namen des Rennens ein"},
    {&Texts::raceNameExists,            "Der Rennenname \"%s\" besteht bereits"},

    // Course screens
    {&Texts::courseSelectionTitle,      "Streckenauswahl"},
    {&Texts::useSavedCourse,            "Gespeicherte Strecke verwenden"},
    {&Texts::createNewCourse,           "Neue Strecke entwerfen"},
    {&Texts::courseBack,                "Zurück"},
    {&Texts::previousSection,           "Voriger Teil"},
    {&Texts::addSection,                "Hinzufügen"},
    {&Texts::saveCourse,                "Strecke speichern"},
    {&Texts::sprint,                    "Sprint"},
    {&Texts::finish,                    "Zieldurchlauf"},
    {&Texts::previousCourse,            "Voriger"},
    {&Texts::nextCourse,                "Nächster"},
    {&Texts::savedBack,                 "Zurück"},

    // Manual and loading
    {&Texts::previousPage,              "Vorige Seite"},
    {&Texts::nextPage,                  "Nächste Seite"},
    {&Texts::pleaseWait,                "Einen Moment Geduld bitte"},

    // Race screen
    {&Texts::throwDice,                 "Würfeln"},
    {&Texts::next,                      "Nächster"},
    {&Texts::scorecard,                 "Spielstand"},
    {&Texts::positions,                 "Positionen"},
    {&Texts::doping,                    "Doping"},
    {&Texts::quit,                      "Aufhören"},
    {&Texts::breakaway,                 "Ausreißversuch"},
    {&Texts::bonusMoves,                "Bonusschritte: "},
    {&Texts::moves,                     "Schritte: "},
    {&Texts::movesLeft,                 "Schritte übrig: "},
    {&Texts::round,                     "Spielrunde:"},
    {&Texts::lap,                       "Runde:"},
    {&Texts::lapShort,                  "R:"},

    // Dialogs
    {&Texts::yes,                       "Ja"},
    {&Texts::no,                        "Nein"},
    {&Texts::blue,                      "Blaue"},
    {&Texts::white,                     "Weiße"},
    {&Texts::immediately,               "Sofort"},
    {&Texts::later,                     "Später"},
    {&Texts::followPrompt,              "Möchten Sie dem Radfahrer %d folgen?"},
    {&Texts::noCardEventCancelled,      "Sie haben keine verfügbaren Kraftkarten; Chancekarte verfällt"},
    {&Texts::noForward,                 "Radfahrer kommt nicht voran diese Spielrunde"},
    {&Texts::confirmQuit,               "Möchten Sie wirklich aufhören?"},
    {&Texts::confirmDoping,             "Möchten Sie wirklich Doping verwenden?"},
    {&Texts::whichCard,                 "Welche Sorte Kraftkarte möchten Sie erhalten?"},
    {&Texts::whenCard,                  "Wann möchten Sie die Kraftkarte einsetzen?"},
    {&Texts::noCard,                    "Sie haben keine verfügbaren Kraftkarten"},
    {&Texts::retry,                     "Wiederholen"},
    {&Texts::abort,                     "Abbrechen"},
    {&Texts::couldNotSave,              "Konnte das Rennen nicht speichern in "},

    // Doping
    {&Texts::dopingNumber,              "Dopingnummer"},
    {&Texts::dopingControl,             "Dopingkontrolle"},
    {&Texts::drawnNumbers,              "Gezogene Nummern"},
    {&Texts::andWord,                   "und"},
    {&Texts::cyclistsCaught,            "Ertappte(r) Radfahrer:"},
    {&Texts::countercheck,              "Gegenprobe"},
    {&Texts::draw,                      "Ziehung"},
    {&Texts::dopingNumberOfCyclist,     "Dopingnummer des Radfahrers"},
    {&Texts::cyclist,                   "Radfahrer"},
    {&Texts::acquitted,                 "freigesprochen"},
    {&Texts::disqualificationConfirmed, "definitiv disqualifiziert"},

    // Settings
    {&Texts::computerMovement,          "Computerzüge"},
    {&Texts::smoothMovement,            "Fließende Computerzüge"},
    {&Texts::delay,                     "Verzögerung"},
    {&Texts::distance,                  "Distanz"},
    {&Texts::stepwiseMovement,          "Schrittweise Computerzüge"},
    {&Texts::timeBetweenSteps,          "Zeit zwischen Schritten"},
    {&Texts::screenRatio,               "Schirmverhältnis"},
    {&Texts::ratio54,                   "5:4"},
    {&Texts::ratio43,                   "4:3"},
    {&Texts::ratio1610,                 "16:10 (Widescreen)"},
    {&Texts::defaultValues,             "Standardwerte"},
    {&Texts::cancel,                    "Abbrechen"},

    // Scorecard and standings
    {&Texts::exportButton,              "Exportieren"},
    {&Texts::standingsWritten,          "Spielstand gespeichert in "},
    {&Texts::couldNotOpen,              " konnte nicht geöffnet werden."},
    {&Texts::fileAlreadyOpen,           "Vielleicht ist die Datei schon geöffnet."},
    {&Texts::stage,                     "Etappe "},
    {&Texts::standings,                 "Stand "},
    {&Texts::result,                    "Ergebnis "},
    {&Texts::generalAfterStage,         "Gesamtwertung nach Etappe "},
    {&Texts::general,                   "Gesamt"},
    {&Texts::stageTab,                  "Etappe"},

    // Credits
    {&Texts::creditDesigner,            "Nach einem Brettspiel über ein Radrennen"},
    {&Texts::creditProgrammer,          "Gravelon: die PC-Version"},
};
// clang-format on

static_assert(holdsEveryText(WORDS));

constinit const Language GERMAN = {
    .words = WORDS,
    .teamNames = {"Belgien", "Niederlande", "Deutschland", "Frankreich"},
    .manual = MANUAL_GERMAN,
};
