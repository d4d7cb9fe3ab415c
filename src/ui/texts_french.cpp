#include "ui/texts_language.h"

// clang-format off
//  key                                 words
static constexpr TextEntry WORDS[] = {
    // Main menu
    {&Texts::mainMenuTitle,             "Menu Principal"},
    {&Texts::languageSelection,         "Choix de la langue"},
    {&Texts::manualButton,              "Notice explicative"},
    {&Texts::settings,                  "Paramètres"},
    {&Texts::continueRace,              "Continuer existing race"},
    {&Texts::start,                     "Commencer"},
    {&Texts::exit,                      "Fin"},

    // Team setup
    {&Texts::teamSetupTitle,            "Attribution des Équipes"},
    {&Texts::teamBack,                  "Retour"},
    {&Texts::computerPlayer,            "Ordinateur"},
    {&Texts::enableEventCards,          "Avec cartes chance"},
    {&Texts::multipleStages,            "Plusieurs étapes"},
    {&Texts::singleStage,               "Étape individuelle"},
    {&Texts::raceName,                  "Le nom de tour"},
    {&Texts::enterPlayerName,           "Entrez un nom pour le joueur %d"},
    {&Texts::enterRaceName,             "Entrez un nom de tour"},
    {&Texts::raceNameExists,            "Le nom de tour \"%s\" existe déjà"},

    // Course screens
    {&Texts::courseSelectionTitle,      "Sélection du Parcours"},
    {&Texts::useSavedCourse,            "Utiliser un parcours enregistré"},
    {&Texts::createNewCourse,           "Concevoir nouveau parcours"},
    {&Texts::courseBack,                "Retour"},
    {&Texts::previousSection,           "Précédent"},
    {&Texts::addSection,                "Ajouter"},
    {&Texts::saveCourse,                "Enregistrer parcours"},
    {&Texts::sprint,                    "Sprint"},
    {&Texts::finish,                    "Arrivée"},
    {&Texts::previousCourse,            "Précédent"},
    {&Texts::nextCourse,                "Suivant"},
    {&Texts::savedBack,                 "Retour"},

    // Manual and loading
    {&Texts::previousPage,              "Page précédente"},
    {&Texts::nextPage,                  "Page suivante"},
    {&Texts::pleaseWait,                "Chargement en cours"},

    // Race screen
    {&Texts::throwDice,                 "Jeter"},
    {&Texts::next,                      "Suivant"},
    {&Texts::scorecard,                 "Score"},
    {&Texts::positions,                 "Positions"},
    {&Texts::doping,                    "Dopage"},
    {&Texts::quit,                      "Quitter"},
    {&Texts::breakaway,                 "Démarrage"},
    {&Texts::bonusMoves,                "Cases de bonus: "},
    {&Texts::moves,                     "Cases: "},
    {&Texts::movesLeft,                 "Cases restantes: "},
    {&Texts::round,                     "Manche:"},
    {&Texts::lap,                       "Tour:"},
    {&Texts::lapShort,                  "T:"},

    // Dialogs
    {&Texts::yes,                       "Oui"},
    {&Texts::no,                        "Non"},
    {&Texts::blue,                      "Bleu"},
    {&Texts::white,                     "Blanc"},
    {&Texts::immediately,               "Tout de suite"},
    {&Texts::later,                     "Plus tard"},
    {&Texts::followPrompt,              "Voulez-vous suivre le coureur %d?"},
    {&Texts::noCardEventCancelled,      "Vous n'avez pas des cartes de force disponibles; carte de chance expire"},
    {&Texts::noForward,                 "Le coureur n'avance pas cette manche."},
    {&Texts::confirmQuit,               "Voulez-vous vraiment quitter?"},
    {&Texts::confirmDoping,             "Voulez-vous vraiment utiliser le dopage?"},
    {&Texts::whichCard,                 "Quelle sorte de la carte force voulez-vous recevoir?"},
    {&Texts::whenCard,                  "Quand vous-voulez miser la carte force?"},
    {&Texts::noCard,                    "Pas de carte force disponible"},
    {&Texts::retry,                     "Réessayer"},
    {&Texts::abort,                     "Abandonner"},
    {&Texts::couldNotSave,              "Le tour ne peut pas être enregistré dans "},

    // Doping
    {&Texts::dopingNumber,              "Numéro de dopage"},
    {&Texts::dopingControl,             "Contrôle antidopage"},
    {&Texts::drawnNumbers,              "Numéros tirés"},
    {&Texts::andWord,                   "et"},
    {&Texts::cyclistsCaught,            "Coureur(s) surpris"},
    {&Texts::countercheck,              "Contre-expertise"},
    {&Texts::draw,                      "Tirage"},
    {&Texts::dopingNumberOfCyclist,     "Numéro de dopage du coureur"},
    {&Texts::cyclist,                   "Coureur"},
    {&Texts::acquitted,                 "acquitté"},
    {&Texts::disqualificationConfirmed, "disqualification confirmée"},

    // Settings
    {&Texts::computerMovement,          "Tours d'ordinateur"},
    {&Texts::smoothMovement,            "Tours d'ordinateur continus"},
    {&Texts::delay,                     "Retard"},
    {&Texts::distance,                  "Distance"},
    {&Texts::stepwiseMovement,          "Tours d'ordinateur pas-à-pas"},
    {&Texts::timeBetweenSteps,          "Temps entre des pas"},
    {&Texts::screenRatio,               "Format de projection"},
    {&Texts::ratio54,                   "5/4"},
    {&Texts::ratio43,                   "4/3"},
    {&Texts::ratio1610,                 "16/10"},
    {&Texts::defaultValues,             "Par défaut"},
    {&Texts::cancel,                    "Annuler"},

    // Scorecard and standings
    {&Texts::exportButton,              "Exporter"},
    {&Texts::standingsWritten,          "Le score est enregistré dans "},
    {&Texts::couldNotOpen,              " ne peut pas être ouvert."},
    {&Texts::fileAlreadyOpen,           "Probablement le fichier est déjà ouvert."},
    {&Texts::stage,                     "étape "},
    {&Texts::standings,                 "Classement "},
    {&Texts::result,                    "Résultat "},
    {&Texts::generalAfterStage,         "Classement général après l'étape "},
    {&Texts::general,                   "Général"},
    {&Texts::stageTab,                  "Étape"},

    // Credits
    {&Texts::creditDesigner,            "D'après un jeu de société sur une course cycliste"},
    {&Texts::creditProgrammer,          "Gravelon: la version pour PC"},
};
// clang-format on

static_assert(holdsEveryText(WORDS));

constinit const Language FRENCH = {
    .words = WORDS,
    .teamNames = {"Belgique", "Pays-Bas", "Allemagne", "France"},
    .manual = MANUAL_FRENCH,
};
