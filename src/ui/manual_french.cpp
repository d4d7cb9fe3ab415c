#include "ui/texts_language.h"

const char MANUAL_FRENCH[] =
    "<1>Notice explicative</1>"
    "Cette notice décrit la commande de la version pour PC. Les règles du jeu se trouvent dans le "
    "livret du jeu de société."
    "<2>Menu Principal</2>"
    "Choix de la langue change la langue de tous les textes, et Notice explicative ouvre ces "
    "pages. Paramètres contient les tours d'ordinateur et le format de projection. Commencer "
    "ouvre une nouvelle course; Continuer existing race reprend une course de plusieurs étapes. "
    "Fin termine le programme aussitôt."
    "<2>Raccourcis</2>"
    "La lettre soulignée d'un bouton est sa touche. Dans cette notice, les flèches tournent les "
    "pages, les touches Début et Fin mènent à la première et à la dernière page, et Échap ramène "
    "au menu principal.";
