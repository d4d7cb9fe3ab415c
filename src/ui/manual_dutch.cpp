#include "ui/texts_language.h"

const char MANUAL_DUTCH[] =
    "<1>Handleiding computer versie van Gravelon</1>"
    "Deze handleiding beschrijft de bediening van de computerversie. De spelregels staan in het "
    "boekje van het bordspel."
    "<2>Hoofdmenu</2>"
    "Taalkeuze verandert de taal van alle teksten, en Handleiding opent deze pagina's. Onder "
    "Instellingen staan de computerzetten en de schermverhouding. Start begint een nieuwe "
    "wedstrijd; Verdergaan met wedstrijd gaat verder met een wedstrijd van meerdere etappes. "
    "Einde sluit het programma meteen af."
    "<2>Sneltoetsen</2>"
    "De onderstreepte letter van een knop is zijn toets. In deze handleiding slaan de pijltoetsen "
    "de pagina's om, gaan Home en End naar de eerste en de laatste pagina, en gaat Esc terug naar "
    "het hoofdmenu.";
