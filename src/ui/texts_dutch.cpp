#include "ui/texts_language.h"

// clang-format off
//  key                                 words
static constexpr TextEntry WORDS[] = {
    // Main menu
    {&Texts::mainMenuTitle,             "Hoofdmenu"},
    {&Texts::languageSelection,         "Taalkeuze"},
    {&Texts::manualButton,              "Handleiding"},
    {&Texts::settings,                  "Instellingen"},
    {&Texts::continueRace,              "Verdergaan met wedstrijd"},
    {&Texts::start,                     "Start"},
    {&Texts::exit,                      "Einde"},

    // Team setup
    {&Texts::teamSetupTitle,            "Ploegeninstelling"},
    {&Texts::teamBack,                  "Terug"},
    {&Texts::computerPlayer,            "Computerspeler"},
    {&Texts::enableEventCards,          "Met kanskaarten spelen"},
    {&Texts::multipleStages,            "Meerdere etappes"},
    {&Texts::singleStage,               "Losse wedstrijd"},
    {&Texts::raceName,                  "Naam wedstrijd"},
    {&Texts::enterPlayerName,           "Voer een naam voor speler %d in"},
    {&Texts::enterRaceName,             "Voer een wedstrijdnaam in"},
    {&Texts::raceNameExists,            "Wedstrijdnaam \"%s\" bestaat al"},

    // Course screens
    {&Texts::courseSelectionTitle,      "Parcours Selectie"},
    {&Texts::useSavedCourse,            "Opgeslagen parcours gebruiken"},
    {&Texts::createNewCourse,           "Nieuw parcours ontwerpen"},
    {&Texts::courseBack,                "Terug"},
    {&Texts::previousSection,           "Vorige"},
    {&Texts::addSection,                "Toevoegen"},
    {&Texts::saveCourse,                "Parcours opslaan"},
    {&Texts::sprint,                    "Sprint"},
    {&Texts::finish,                    "Finish"},
    {&Texts::previousCourse,            "Vorige"},
    {&Texts::nextCourse,                "Volgende"},
    {&Texts::savedBack,                 "Terug"},

    // Manual and loading
    {&Texts::previousPage,              "Vorige pagina"},
    {&Texts::nextPage,                  "Volgende pagina"},
    {&Texts::pleaseWait,                "Een ogenblik geduld alsjeblieft"},

    // Race screen
    {&Texts::throwDice,                 "Gooi"},
    {&Texts::next,                      "Volgende"},
    {&Texts::scorecard,                 "Scorebloc"},
    {&Texts::positions,                 "Posities"},
    {&Texts::doping,                    "Doping"},
    {&Texts::quit,                      "Stoppen"},
    {&Texts::breakaway,                 "Demarrage"},
    {&Texts::bonusMoves,                "Bonusstappen: "},
    {&Texts::moves,                     "Stappen: "},
    {&Texts::movesLeft,                 "Stappen over: "},
    {&Texts::round,                     "Spelronde:"},
    {&Texts::lap,                       "Ronde:"},
    {&Texts::lapShort,                  "R:"},

    // Dialogs
    {&Texts::yes,                       "Ja"},
    {&Texts::no,                        "Nee"},
    {&Texts::blue,                      "Blauw"},
    {&Texts::white,                     "Wit"},
    {&Texts::immediately,               "Direct"},
    {&Texts::later,                     "Later"},
    {&Texts::followPrompt,              "Volg je renner %d?"},
    {&Texts::noCardEventCancelled,      "Je hebt geen beschikbare krachtkaarten; kanskaart vervalt"},
    {&Texts::noForward,                 "Wielrenner komt niet vooruit deze beurt"},
    {&Texts::confirmQuit,               "Wil je echt afsluiten?"},
    {&Texts::confirmDoping,             "Wil je echt doping gebruiken?"},
    {&Texts::whichCard,                 "Wat voor soort krachtkaart wil je ontvangen?"},
    {&Texts::whenCard,                  "Wanneer wil je de krachtkaart inzetten?"},
    {&Texts::noCard,                    "Je hebt geen beschikbare krachtkaarten"},
    {&Texts::retry,                     "Opnieuw"},
    {&Texts::abort,                     "Afbreken"},
    {&Texts::couldNotSave,              "Kan de ronde niet opslaan in "},

    // Doping
    {&Texts::dopingNumber,              "Dopingnummer"},
    {&Texts::dopingControl,             "Dopingcontrole"},
    {&Texts::drawnNumbers,              "Getrokken nummers"},
    {&Texts::andWord,                   "en"},
    {&Texts::cyclistsCaught,            "Betrapte renner(s):"},
    {&Texts::countercheck,              "Contra expertise"},
    {&Texts::draw,                      "Trekking"},
    {&Texts::dopingNumberOfCyclist,     "Dopingnummer van renner"},
    {&Texts::cyclist,                   "Wielrenner"},
    {&Texts::acquitted,                 "vrijgesproken"},
    {&Texts::disqualificationConfirmed, "definitief gediskwalificeerd"},

    // Settings
    {&Texts::computerMovement,          "Computerzetten"},
    {&Texts::smoothMovement,            "Vloeiende computerzetten"},
    {&Texts::delay,                     "Vertraging"},
    {&Texts::distance,                  "Afstand"},
    {&Texts::stepwiseMovement,          "Stapsgewijze computerzetten"},
    {&Texts::timeBetweenSteps,          "Tijd tussen stappen"},
    {&Texts::screenRatio,               "Schermverhouding"},
    {&Texts::ratio54,                   "5:4"},
    {&Texts::ratio43,                   "4:3"},
    {&Texts::ratio1610,                 "16:10 (Widescreen)"},
    {&Texts::defaultValues,             "Standaardwaarden"},
    {&Texts::cancel,                    "Annuleren"},

    // Scorecard and standings
    {&Texts::exportButton,              "Exporteer"},
    {&Texts::standingsWritten,          "Stand opgeslagen in "},
    {&Texts::couldNotOpen,              " kan niet worden geopend."},
    {&Texts::fileAlreadyOpen,           "Mogelijk is het bestand al geopend."},
    {&Texts::stage,                     "etappe "},
    {&Texts::standings,                 "Stand "},
    {&Texts::result,                    "Uitslag "},
    {&Texts::generalAfterStage,         "Algemeen klassement na etappe "},
    {&Texts::general,                   "Algemeen"},
    {&Texts::stageTab,                  "Etappe"},

    // Credits
    {&Texts::creditDesigner,            "Naar een bordspel over een wielerwedstrijd"},
    {&Texts::creditProgrammer,          "Gravelon: de pc-versie"},
};
// clang-format on

static_assert(holdsEveryText(WORDS));

constinit const Language DUTCH = {
    .words = WORDS,
    .teamNames = {"Belgie", "Nederland", "Duitsland", "Frankrijk"},
    .manual = MANUAL_DUTCH,
};
