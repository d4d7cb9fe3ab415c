#include "ui/dialogs.h"

#include "app/game_state.h"
#include "race/race_state.h"
#include "ui/access_keys.h"
#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/pawns.h"
#include "ui/team_setup.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <string>
#include <string_view>
#include <vector>

constexpr float LINE_PITCH = 12.0f;    // of lines that are sentences of their own
constexpr float WRAPPED_PITCH = 15.0f; // of one text that needs more than a line
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

static void drawSetupMessages()
{
    const Rect box = dialogBox();
    drawBox();
    float y = box.y + box.h * 0.5f -
              static_cast<float>(teamSetup.setupMessages.size() + 1) * 0.5f * LINE_PITCH;
    for (const std::string& message : teamSetup.setupMessages) {
        drawText(box.x + box.w * 0.5f, y, ALIGN_CENTRE, message);
        y += LINE_PITCH;
    }
    drawOkButton();
}

void drawDialog()
{
    switch (gameState) {
    case STATE_FOLLOW_PROMPT:
        return drawFollowPrompt();
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
    case STATE_EVENT_CARD_KIND:
        return drawQuestion(texts.whichCard, CONTROL_BLUE, CONTROL_WHITE);
    case STATE_EVENT_CARD_WHEN:
        return drawQuestion(texts.whenCard, CONTROL_IMMEDIATELY, CONTROL_LATER);
    default:
        return;
    }
}
