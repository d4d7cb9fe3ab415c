#include "ui/texts_language.h"

const char MANUAL_GERMAN[] =
    "<1>Anleitung für die PC Version des Brettspiels Gravelon</1>"
    "Diese Anleitung beschreibt die Bedienung der PC Version. Die Spielregeln stehen im Heft des "
    "Brettspiels."
    "<2>Hauptmenü</2>"
    "Sprachwahl ändert die Sprache aller Texte, und Anleitung öffnet diese Seiten. Unter "
    "Einstellungen stehen die Bewegung der Computerspieler und das Schirmverhältnis. Starten "
    "beginnt ein neues Rennen; Weitergehen mit einem Rennen setzt ein Rennen mit mehreren Etappen "
    "fort. Beenden schließt das Programm sofort."
    "<2>Tasten</2>"
    "Der unterstrichene Buchstabe einer Schaltfläche ist ihre Taste. In dieser Anleitung blättern "
    "die Pfeiltasten, Pos1 und Ende führen zur ersten und zur letzten Seite, und Esc führt zurück "
    "zum Hauptmenü.";
