#include "ui/dialogs.h"

#include "app/game_state.h"
#include "play/doping.h"
#include "race/event_deck.h"
#include "race/race_state.h"
#include "ui/controls.h"
#include "ui/event_texts.h"
#include "ui/layout.h"
#include "ui/pawns.h"
#include "ui/places.h"
#include "ui/team_setup.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

constexpr float LINE_PITCH = 12.0f;    // of lines that are sentences of their own
constexpr float WRAPPED_PITCH = 15.0f; // of one text that needs more than a line
constexpr float REPORT_PITCH = 15.0f;  // of the lines of a report
constexpr float ABOVE_LINE = 8.0f;     // kept free from the middle of a line of text upward
constexpr float BELOW_LINE = 7.0f;     // and downward
constexpr float PAWN_RADIUS = 14.0f;
constexpr float TEXT_MARGIN = 12.0f; // pixels kept free at either side of a text

// The text in lines that are no wider than the room for them.
static std::vector<std::string> linesOf(std::string_view text, float room)
{
    std::vector<std::string> lines{""};
    while (!text.empty()) {
        const std::size_t blank = text.find(' ');
        const std::string word{text.substr(0, blank)};
        text.remove_prefix(blank == std::string_view::npos ? text.size() : blank + 1);
        const std::string longer = lines.back().empty() ? word : lines.back() + " " + word;
        if (lines.back().empty() || static_cast<float>(textWidth(longer, FONT_BODY)) <= room)
            lines.back() = longer;
        else
            lines.push_back(word);
    }
    return lines;
}

// Lines one below the other, centred on the height of the box. left is the middle of the text or,
// with ALIGN_LEFT, where it begins.
static void drawLines(const std::vector<std::string>& lines, float x, Align align)
{
    const Rect box = dialogBox();
    const float middle = static_cast<float>(lines.size() - 1) * 0.5f;
    for (std::size_t i = 0; i < lines.size(); ++i)
        drawText(box.x + x, box.y + box.h * 0.5f + (static_cast<float>(i) - middle) * WRAPPED_PITCH,
                 align, lines[i]);
}

// A message in the middle of the box; margin is kept free at either side.
static void drawMessage(std::string_view message, float margin = TEXT_MARGIN)
{
    const float w = dialogBox().w;
    drawLines(linesOf(message, w - 2.0f * margin), w * 0.5f, ALIGN_CENTRE);
}

// About the rider on turn, whose pawn stands at the left.
static void drawRiderNotice(std::string_view notice)
{
    const Rect box = dialogBox();
    const float pawnX = box.w * 0.12f;
    drawMessage(notice, pawnX + PAWN_RADIUS + TEXT_MARGIN);
    drawPawnAt(race.currentRider, box.x + pawnX, box.y + box.h * 0.5f);
}

static void drawFollowPrompt()
{
    const Rect box = dialogBox();
    const float textX = box.w * 0.25f;
    drawLines(linesOf(withNumber(texts.followPrompt, riderNumber(race.currentRider)),
                      box.w - textX - TEXT_MARGIN),
              textX, ALIGN_LEFT);
    drawPawnAt(race.followerRider, box.x + box.w * 0.2f, box.y + box.h * 0.5f);
}

// Lines one below the other, the first in the given distance from the middle of the box. Where they
// would run into the buttons they move up and, if need be, together.
static void drawColumn(const std::vector<std::string>& lines, float first, float pitch)
{
    if (lines.empty())
        return;
    const Rect box = dialogBox();
    const float lowest = layout.dialogButtonY - box.y - BELOW_LINE;
    const float gaps = static_cast<float>(std::max<std::size_t>(1, lines.size() - 1));
    const float step = std::min(pitch, (lowest - ABOVE_LINE) / gaps);
    const float highest =
        std::max(ABOVE_LINE, std::min(box.h * 0.5f + first, lowest - gaps * step));
    for (std::size_t i = 0; i < lines.size(); ++i)
        drawText(box.x + box.w * 0.5f, box.y + highest + static_cast<float>(i) * step, ALIGN_CENTRE,
                 lines[i]);
}

// Each of the sentences in as many lines as it needs.
static void drawReport(const std::vector<std::string>& sentences)
{
    std::vector<std::string> lines;
    for (const std::string& sentence : sentences)
        for (const std::string& line : linesOf(sentence, dialogBox().w - 2.0f * TEXT_MARGIN))
            lines.push_back(line);
    drawColumn(lines, -2.0f * REPORT_PITCH, REPORT_PITCH);
}

// Title, an empty line, effect.
static void drawEventCard()
{
    const int card = deck.eventDeck[deck.eventCardPos];
    std::vector<std::string> lines = eventTitle(card);
    lines.emplace_back();
    for (const std::string& line : eventEffect(card))
        lines.push_back(line);
    drawColumn(lines, -0.5f * static_cast<float>(lines.size()) * LINE_PITCH, LINE_PITCH);
}

static void drawDopingNumber()
{
    drawMessage(texts.dopingNumber + ": " + std::to_string(race.dopingNumber[race.currentRider]));
}

// The list breaks behind any of its commas.
static std::vector<std::string> caughtRiders()
{
    std::vector<std::string> lines{""};
    for (int rider = 0; rider < RIDER_COUNT; ++rider) {
        if (!isCaught(rider))
            continue;
        const std::string number = std::to_string(riderNumber(rider));
        const std::string longer = lines.back().empty() ? number : lines.back() + "," + number;
        if (static_cast<float>(textWidth(longer + ",", FONT_BODY)) <=
            dialogBox().w - 2.0f * TEXT_MARGIN) {
            lines.back() = longer;
        } else {
            lines.back() += ",";
            lines.push_back(number);
        }
    }
    return lines;
}

static void drawDopingDraw()
{
    std::vector<std::string> sentences = {
        texts.dopingControl, texts.drawnNumbers + ": " + std::to_string(race.dopingDraw[0]) + " " +
                                 texts.andWord + " " + std::to_string(race.dopingDraw[1])};
    if (race.anyDoping) {
        sentences.push_back(texts.cyclistsCaught);
        for (const std::string& line : caughtRiders())
            sentences.push_back(line);
    }
    drawReport(sentences);
}

static void drawCountercheck()
{
    const std::string number = std::to_string(riderNumber(race.currentRider));
    drawReport({texts.countercheck,
                texts.dopingNumberOfCyclist + " " + number + ": " +
                    std::to_string(race.dopingNumber[race.currentRider]),
                texts.draw + ": " + std::to_string(race.counterDie),
                texts.cyclist + " " + number + " " +
                    (counterDieAcquits() ? texts.acquitted : texts.disqualificationConfirmed)});
}

// The name is that of a file, which may be of any length.
static void drawSaveFailed()
{
    const float room = dialogBox().w - 2.0f * TEXT_MARGIN;
    drawReport({texts.couldNotSave + "\"" +
                cutToWidth(shownFileName(raceSetup.raceFileName), room * 0.8f) + "\""});
}

static void drawSetupMessages()
{
    const auto& messages = teamSetup.setupMessages;
    drawColumn(messages, -0.5f * static_cast<float>(messages.size() + 1) * LINE_PITCH, LINE_PITCH);
}

struct Dialog {
    GameState state;
    void (*drawContents)();
    Control control;
    Control right = NO_CONTROL; // of two
};

// clang-format off
constexpr Dialog DIALOGS[] = {
    {STATE_FOLLOW_PROMPT,       drawFollowPrompt,                                      CONTROL_FOLLOW_YES, CONTROL_FOLLOW_NO},
    {STATE_EVENT_CARD,          drawEventCard,                                         CONTROL_EVENT_OK},
    {STATE_EVENT_CARD_KIND,     [] { drawMessage(texts.whichCard); },                  CONTROL_BLUE, CONTROL_WHITE},
    {STATE_EVENT_CARD_WHEN,     [] { drawMessage(texts.whenCard); },                   CONTROL_IMMEDIATELY, CONTROL_LATER},
    {STATE_EVENT_NO_CARD,       [] { drawMessage(texts.noCardEventCancelled); },       CONTROL_NO_EVENT_OK},
    {STATE_NO_MOVE,             [] { drawRiderNotice(texts.noForward); },              CONTROL_NO_MOVE_OK},
    {STATE_SKIP_NO_CARD,        [] { drawRiderNotice(texts.noCard); },                 CONTROL_NO_CARD_OK},
    {STATE_CONFIRM_DOPING,      [] { drawMessage(texts.confirmDoping); },              CONTROL_DOPING_YES, CONTROL_DOPING_NO},
    {STATE_DOPING_NUMBER,       drawDopingNumber,                                      CONTROL_DOPING_NUMBER_OK},
    {STATE_DOPING_DRAW,         drawDopingDraw,                                        CONTROL_DOPING_DRAW_OK},
    {STATE_DOPING_COUNTERCHECK, drawCountercheck,                                      CONTROL_COUNTERCHECK_OK},
    {STATE_CONFIRM_QUIT,        [] { drawMessage(texts.confirmQuit); },                CONTROL_QUIT_YES, CONTROL_QUIT_NO},
    {STATE_SETUP_MESSAGE,       drawSetupMessages,                                     CONTROL_SETUP_MESSAGE_OK},
    {STATE_SAVE_FAILED,         drawSaveFailed,                                        CONTROL_RETRY, CONTROL_ABORT},
};
// clang-format on

static const Dialog* presentDialog()
{
    const Dialog* dialog = std::ranges::find(DIALOGS, gameState, &Dialog::state);
    return dialog == std::end(DIALOGS) ? nullptr : dialog;
}

bool dialogShown()
{
    return presentDialog() != nullptr;
}

void drawDialog()
{
    const Dialog* dialog = presentDialog();
    if (!dialog)
        return;
    const Rect box = dialogBox();
    drawDialogBox(box.x, box.y, box.w, box.h);
    setColour(BLACK);
    dialog->drawContents();
    drawControl(dialog->control);
    if (dialog->right != NO_CONTROL)
        drawControl(dialog->right);
}
