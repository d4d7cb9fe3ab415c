#include "ui/event_texts.h"

#include "app/settings.h"
#include "app/table.h"
#include "race/event_deck.h"
#include "ui/texts.h"

#include <span>
#include <string_view>

namespace
{

constexpr int TITLE_LINES_MAX = 2;
constexpr int EFFECT_LINES_MAX = 5;

// All words are UTF-8 here; lines that a card doesn't have are empty.
struct Title {
    std::string_view lines[TITLE_LINES_MAX];
};

// Of all cards behind the row before, up to this one.
struct Effect {
    int lastCard;
    std::string_view lines[EFFECT_LINES_MAX];
};

// clang-format off
constexpr Table<Title, EVENT_CARD_COUNT> GERMAN_TITLES = {{
//   first line                       second line
    {{"Reifenpanne!"}},
    {{"ein Reifen ist geplatzt;"}},
    {{"Sie müssen einen Gang",         "zurückschalten;"}},
    {{"die Speichen",                  "sausen Ihnen um die Ohren;"}},
    {{"jetzt müssen Sie leiden;"}},
    {{"Sie überschätzen Ihre Kräfte;"}},
    {{"Sie kommen überhaupt",          "nicht voran;"}},
    {{"alle Kraft verlässt",           "Ihre Beine;"}},
    {{"Sie haben ein Furunkel",        "so groß wie ein Taubenei;"}},
    {{"Sie haben keine Moral mehr;"}},
    {{"ein schwerer Sturz;"}},
    {{"Sie sind völlig am Ende;"}},
    {{"Sie verursachen",               "einen Sturz!"}},
    {{"Sie verursachen einen",         "Massensturz!"}},
    {{"Sie verursachen einen",         "Massensturz;"}},
    {{"Sie haben heute eine",          "unglaublich hohe Moral;"}},
    {{"mysteriöse Kräfte;"}},
    {{"Sie haben eine",                "erstklassige Tagesform;"}},
    {{"jetzt legen Sie los!"}},
    {},
    {{"Sie fahren mühelos",            "im höchsten Gang;"}},
    {{"es läuft wie am Schnürchen;"}},
    {{"ein Ausreißversuch!"}},
    {{"Ihre Frau und Kinder",          "stehen am Straßenrand;"}},
    {{"Sie fahren",                    "durch Ihre Heimat;"}},
    {{"Sie schalten",                  "in einen höheren Gang;"}},
    {{"ein echter Tempobolzer;"}},
    {{"Sie spurten davon;"}},
    {{"eine massive",                  "Tempoverschärfung;"}},
    {{"Sie sind zu verschwenderisch",  "mit Ihren Kräften;"}},
}};

constexpr Table<Title, EVENT_CARD_COUNT> ENGLISH_TITLES = {{
//   first line                     second line
    {{"a flat tire!"}},
    {{"a tire is being torn",        "to shreds;"}},
    {{"changing gear",               "for a moment;"}},
    {{"the spokes",                  "are flying about your ears;"}},
    {{"you have to bear up awhile;"}},
    {{"you have hit the wall;"}},
    {{"you are completely stuck;"}},
    {{"all strength",                "flows away from your legs;"}},
    {{"you have a boil",             "as large as a pigeon egg;"}},
    {{"you are",                     "completely demoralized;"}},
    {{"a heavy fall;"}},
    {{"you are exhausted;"}},
    {{"you cause",                   "a crash!"}},
    {{"you cause a",                 "a massive crash!"}},
    {{"you cause",                   "a massive crash;"}},
    {{"you are",                     "very motivated today;"}},
    {{"mysterious forces;"}},
    {{"you are in top form today;"}},
    {},
    {},
    {{"your legs are",               "like pistons;"}},
    {{"on the pedals;"}},
    {{"a breakaway!"}},
    {{"your wife and children are",  "standing along the roadside;"}},
    {{"you go through",              "your hometown;"}},
    {{"you are going",               "to use a larger tooth;"}},
    {{"a fast rider;"}},
    {{"you are off;"}},
    {{"a sharp breakaway;"}},
    {{"you waste your strength;"}},
}};

constexpr Table<Title, EVENT_CARD_COUNT> FRENCH_TITLES = {{
//   first line                     second line
    {{"crevaison!"}},
    {{"un pneu tombe en loques;"}},
    {{"rétrograder un instant;"}},
    {{"les rayons sifflaient",       "à vos oreilles;"}},
    {{"vous devez souffrir",         "un instant;"}},
    {{"vous avez un coup de pompe;"}},
    {{"vous êtes coincé;"}},
    {{"toute la force",              "s'écoule de vos jambes;"}},
    {{"vous avez un furoncle aussi", "grand qu'un oeuf de pigeon;"}},
    {{"vous êtes",                   "complètement démoralisé;"}},
    {{"une vilaine chute;"}},
    {{"vous êtes épuisé;"}},
    {{"vous provoquez une chute!"}},
    {{"vous provoquez",              "une chute massive!"}},
    {{"vous provoquez",              "une chute massive."}},
    {{"vous êtes",                   "très motivé aujourd'hui;"}},
    {{"forces mystérieuses;"}},
    {{"vous êtes",                   "en pleine forme aujourd'hui;"}},
    {},
    {},
    {{"vos jambes",                  "sont comme des pistons;"}},
    {{"sur les pédales;"}},
    {{"un démarrage!"}},
    {{"votre femme et vos enfants",  "se trouvent le long de route;"}},
    {{"vous traversez",              "votre ville natale;"}},
    {{"vous allez utiliser",         "une plus grande vitesse;"}},
    {{"un coureur rapide;"}},
    {{"vous vous échappez",          "du peloton;"}},
    {{"un démarrage violent;"}},
    {{"vous gaspillez vos forces;"}},
}};

constexpr Table<Title, EVENT_CARD_COUNT> DUTCH_TITLES = {{
//   first line                      second line
    {{"lek!"}},
    {{"daar gaat een",                "bandje aan flarden;"}},
    {{"even een ander",               "wieltje steken;"}},
    {{"de spaken",                    "vliegen om je oren;"}},
    {{"je moet even afzien;"}},
    {{"je ontmoet de man",            "met de hamer;"}},
    {{"je zit zo vast als een huis;"}},
    {{"alle kracht",                  "vloeit uit de beentjes weg;"}},
    {{"je hebt een steenpuist",       "zo groot als een duivenei;"}},
    {{"je hebt totaal",               "geen moraal meer;"}},
    {{"een zware val;"}},
    {{"je zit volledig kapot;"}},
    {{"je veroorzaakt",               "een valpartij!"}},
    {{"je veroorzaakt een",           "massale valpartij!"}},
    {{"je veroorzaakt",               "een massale valpartij;"}},
    {{"je hebt vandaag",              "geweldig veel moraal;"}},
    {{"mysterieuze krachten",         "in de sport;"}},
    {{"je hebt de vorm van de dag;"}},
    {{"je brengt de wagen",           "aan het rollen;"}},
    {{"er gaat maar eens",            "wat extra vet in de broek;"}},
    {{"je krijgt de beentjes",        "voortreffelijk rond vandaag;"}},
    {{"op de pedalen;"}},
    {{"een demarrage!"}},
    {{"je vrouw en kinderen staan",   "langs de kant van de weg;"}},
    {{"je rijdt",                     "door je geboortestreek;"}},
    {{"je steekt",                    "een groter tandje;"}},
    {{"een echte tempobeul;"}},
    {{"je gaat er",                   "maar eens vandoor;"}},
    {{"een felle demarrage;"}},
    {{"je smijt aardig",              "met je krachten;"}},
}};

constexpr Effect GERMAN_EFFECTS[] = {
// last card   lines
    { 4,         {"1 Runde aussetzen", "oder eine Kraft abgeben."}},
    {11,         {"2 Runden aussetzen", "oder für jede Runde", "eine Kraft abgeben."}},
    {13,         {"alle Beteiligten", "1 Runde aussetzen", "oder eine Kraft abgeben."}},
    {14,         {"der Verursacher:", "2 Runden aussetzen,", "die anderen Opfer:", "1 Runde oder für jede Runde", "eine Kraft abgeben."}},
    {17,         {"1 zusätzliche Kraftkarte", "für diesen Radfahrer."}},
    {20,         {"würfeln Sie", "mit 1 Würfel zusätzlich."}},
    {21,         {"2 Schritte extra."}},
    {22,         {"2 Schritte extra", "und folgen nicht erlaubt."}},
    {24,         {"3 Schritte extra."}},
    {26,         {"4 Schritte extra."}},
    {28,         {"4 Schritte extra", "und folgen nicht erlaubt."}},
    {29,         {"4 Schritte extra,", "aber 1 Kraft abgeben."}},
};

constexpr Effect ENGLISH_EFFECTS[] = {
// last card   lines
    { 4,         {"skip 1 turn", "or hand in one strength card."}},
    {11,         {"skip 2 turns", "or hand in one strength card", "for each turn."}},
    {13,         {"all riders involved", "skip 1 turn", "or hand in one strength card."}},
    {14,         {"the perpetrator:", "skip 2 turns,", "the other victims:", "1 turn or hand in", "one strength card for each turn."}},
    {17,         {"1 additional strength card", "for this rider."}},
    {20,         {"throw 1 extra die."}},
    {21,         {"2 additional spaces."}},
    {22,         {"2 additional spaces", "and no drafting allowed."}},
    {24,         {"3 additional spaces."}},
    {26,         {"4 additional spaces."}},
    {28,         {"4 additional spaces", "and no drafting allowed."}},
    {29,         {"4 additional spaces,", "but hand in 1 strength card."}},
};

constexpr Effect FRENCH_EFFECTS[] = {
// last card   lines
    { 4,         {"passez 1 tour", "ou remettez une carte force."}},
    {11,         {"passez 2 tours", "ou remettez une carte force", "pour chaque tour."}},
    {13,         {"tous les coureurs impliqués", "passez 1 tour", "ou remettez une carte force."}},
    {14,         {"l'auteur:", "passez 2 tours,", "les autres victimes:", "1 tour ou remettez une", "carte force pour chaque tour."}},
    {17,         {"1 force supplémentaire", "pour ce coureur."}},
    {20,         {"jettez 1 dé supplémentaire."}},
    {21,         {"2 cases supplémentaires."}},
    {22,         {"2 cases supplémentaires", "et interdit de suivre."}},
    {24,         {"3 cases supplémentaires."}},
    {26,         {"4 cases supplémentaires."}},
    {28,         {"4 cases supplémentaires", "et interdit de suivre."}},
    {29,         {"4 cases supplémentaires,", "mais remettez 1 carte force."}},
};

constexpr Effect DUTCH_EFFECTS[] = {
// last card   lines
    { 4,         {"1 beurt overslaan", "of een kracht inleveren."}},
    {11,         {"2 beurten overslaan", "of voor elke beurt", "een kracht inleveren."}},
    {13,         {"alle betrokkenen", "1 beurt overslaan", "of een kracht inleveren."}},
    {14,         {"de veroorzaker:", "2 beurten overslaan,", "de andere slachtoffers:", "1 beurt of voor elke beurt", "een kracht inleveren."}},
    {17,         {"1 kracht extra", "voor deze renner."}},
    {20,         {"gooi met 1 dobbelsteen extra."}},
    {21,         {"2 vakjes extra."}},
    {22,         {"2 vakjes extra", "en volgen niet toegestaan."}},
    {24,         {"3 vakjes extra."}},
    {26,         {"4 vakjes extra."}},
    {28,         {"4 vakjes extra", "en volgen niet toegestaan."}},
    {29,         {"4 vakjes extra,", "maar wel 1 kracht inleveren."}},
};
// clang-format on

struct Cards {
    const Table<Title, EVENT_CARD_COUNT>& titles;
    std::span<const Effect> effects;
};

constexpr Table<Cards, LANGUAGE_COUNT> languages = {{{GERMAN_TITLES, GERMAN_EFFECTS},
                                                     {ENGLISH_TITLES, ENGLISH_EFFECTS},
                                                     {FRENCH_TITLES, FRENCH_EFFECTS},
                                                     {DUTCH_TITLES, DUTCH_EFFECTS}}};

const Cards* cardsOfLanguage()
{
    const int language = settings.language;
    return language >= 0 && language < LANGUAGE_COUNT ? &languages[language] : nullptr;
}

std::vector<std::string> inLatin1(std::span<const std::string_view> lines)
{
    std::vector<std::string> shown;
    for (const std::string_view line : lines)
        if (!line.empty())
            shown.push_back(latin1(line));
    return shown;
}

} // namespace

std::vector<std::string> eventTitle(int card)
{
    const Cards* cards = cardsOfLanguage();
    return cards ? inLatin1(cards->titles[card].lines) : std::vector<std::string>{};
}

std::vector<std::string> eventEffect(int card)
{
    if (const Cards* cards = cardsOfLanguage())
        for (const Effect& effect : cards->effects)
            if (card <= effect.lastCard)
                return inLatin1(effect.lines);
    return {};
}
