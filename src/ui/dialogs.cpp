#include "ui/dialogs.h"

#include "app/game_state.h"
#include "play/doping.h"
#include "race/event_deck.h"
#include "race/race_state.h"
#include "ui/access_keys.h"
#include "ui/controls.h"
#include "ui/event_texts.h"
#include "ui/layout.h"
#include "ui/pawns.h"
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

static void drawBox()
{
    const Rect box = dialogBox();
    drawDialogBox(box.x, box.y, box.w, box.h);
    setColour(BLACK);
}

static void drawOkButton()
{
    const Rect at = dialogOkButton();
    drawButton(at.x, at.y, at.w, at.h, true, "OK", 0);
}

static void drawTwoButtons(Control left, Control right)
{
    drawControl(left, dialogLeftButton(), true);
    drawControl(right, dialogRightButton(), true);
}

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

static void drawQuestion(std::string_view question, Control left, Control right)
{
    drawBox();
    drawMessage(question);
    drawTwoButtons(left, right);
}

static void drawNotice(std::string_view notice)
{
    drawBox();
    drawMessage(notice);
    drawOkButton();
}

// About the rider on turn, whose pawn stands at the left.
static void drawRiderNotice(std::string_view notice)
{
    const Rect box = dialogBox();
    const float pawnX = box.w * 0.12f;
    drawBox();
    drawMessage(notice, pawnX + PAWN_RADIUS + TEXT_MARGIN);
    drawPawnAt(race.currentRider, box.x + pawnX, box.y + box.h * 0.5f);
    drawOkButton();
}

static void drawFollowPrompt()
{
    const Rect box = dialogBox();
    const float textX = box.w * 0.25f;
    drawBox();
    drawLines(linesOf(withNumber(texts.followPrompt, riderNumber(race.currentRider)),
                      box.w - textX - TEXT_MARGIN),
              textX, ALIGN_LEFT);
    drawPawnAt(race.followerRider, box.x + box.w * 0.2f, box.y + box.h * 0.5f);
    drawTwoButtons(CONTROL_YES, CONTROL_NO);
}

// Lines one below the other, the first in the given distance from the middle of the box. Where they
// would run into the buttons they move up and, if need be, together.
static void drawColumn(const std::vector<std::string>& lines, float first, float pitch)
{
    if (lines.empty())
        return;
    const Rect box = dialogBox();
    const float lowest = dialogOkButton().y - box.y - BELOW_LINE;
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
    drawBox();
    drawColumn(lines, -0.5f * static_cast<float>(lines.size()) * LINE_PITCH, LINE_PITCH);
    drawOkButton();
}

static void drawDopingNumber()
{
    drawNotice(texts.dopingNumber + ": " + std::to_string(race.dopingNumber[race.currentRider]));
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
    drawBox();
    drawReport(sentences);
    drawOkButton();
}

static void drawCountercheck()
{
    const std::string number = std::to_string(riderNumber(race.currentRider));
    drawBox();
    drawReport({texts.countercheck,
                texts.dopingNumberOfCyclist + " " + number + ": " +
                    std::to_string(race.dopingNumber[race.currentRider]),
                texts.draw + ": " + std::to_string(race.counterDie),
                texts.cyclist + " " + number + " " +
                    (counterDieAcquits() ? texts.acquitted : texts.disqualificationConfirmed)});
    drawOkButton();
}

// The name is that of a file, which may be of any length.
static void drawSaveFailed()
{
    const float room = dialogBox().w - 2.0f * TEXT_MARGIN;
    drawBox();
    drawReport({texts.couldNotSave + "\"" +
                cutToWidth(shownFileName(raceSetup.raceFileName), room * 0.8f) + "\""});
    drawTwoButtons(CONTROL_RETRY, CONTROL_ABORT);
}

static void drawSetupMessages()
{
    const auto& messages = teamSetup.setupMessages;
    drawBox();
    drawColumn(messages, -0.5f * static_cast<float>(messages.size() + 1) * LINE_PITCH, LINE_PITCH);
    drawOkButton();
}

void drawDialog()
{
    switch (gameState) {
    case STATE_FOLLOW_PROMPT:
        return drawFollowPrompt();
    case STATE_EVENT_CARD:
        return drawEventCard();
    case STATE_NO_MOVE:
        return drawRiderNotice(texts.noForward);
    case STATE_SKIP_NO_CARD:
        return drawRiderNotice(texts.noCard);
    case STATE_EVENT_NO_CARD:
        return drawNotice(texts.noCardEventCancelled);
    case STATE_SETUP_MESSAGE:
        return drawSetupMessages();
    case STATE_CONFIRM_QUIT:
        return drawQuestion(texts.confirmQuit, CONTROL_YES, CONTROL_NO);
    case STATE_CONFIRM_DOPING:
        return drawQuestion(texts.confirmDoping, CONTROL_YES, CONTROL_NO);
    case STATE_DOPING_NUMBER:
        return drawDopingNumber();
    case STATE_DOPING_DRAW:
        return drawDopingDraw();
    case STATE_DOPING_COUNTERCHECK:
        return drawCountercheck();
    case STATE_SAVE_FAILED:
        return drawSaveFailed();
    case STATE_EVENT_CARD_KIND:
        return drawQuestion(texts.whichCard, CONTROL_BLUE, CONTROL_WHITE);
    case STATE_EVENT_CARD_WHEN:
        return drawQuestion(texts.whenCard, CONTROL_IMMEDIATELY, CONTROL_LATER);
    default:
        return;
    }
}
