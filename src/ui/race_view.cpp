#include "ui/race_view.h"

#include "app/game_state.h"
#include "app/view.h"
#include "board/course.h"
#include "board/trig_tables.h"
#include "play/cards.h"
#include "race/card_rules.h"
#include "race/race_state.h"
#include "ui/card_panel.h"
#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/pawns.h"
#include "ui/places.h"
#include "ui/strength_cards.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <GL/gl.h>

#include <string>
#include <string_view>

static void drawLine(float x, float y, float endX, float endY)
{
    glBegin(GL_LINES);
    glVertex2f(x, y);
    glVertex2f(endX, endY);
    glEnd();
}

static void drawViewToggle()
{
    const Rect box = placeOf(CONTROL_VIEW);
    const float middle = box.x + box.w * 0.5f;
    setColour(buttonGrey);
    fillRect(box.x, box.y, box.w, box.h);
    setColour(BLACK);
    // On a low window there is no room for one above the other.
    if (box.w > box.h) {
        drawText(box.x + box.w * 0.25f, box.y + box.h * 0.5f, ALIGN_CENTRE, "2D");
        drawText(box.x + box.w * 0.75f, box.y + box.h * 0.5f, ALIGN_CENTRE, "3D");
        drawLine(middle, box.y, middle, box.y + box.h);
        return;
    }
    drawText(middle, box.y + box.h * 0.25f, ALIGN_CENTRE, "2D");
    drawText(middle, box.y + box.h * 0.8f, ALIGN_CENTRE, "3D");
    drawLine(box.x, box.y + box.h * 0.5f, box.x + box.w, box.y + box.h * 0.5f);
}

// A circular arrow: an open circle with its head where it began, round the point looked at.
static void drawCameraButton()
{
    const Rect box = placeOf(CONTROL_CAMERA);
    const float h = box.h;
    const float x = box.x + h * 0.5f;
    const float y = box.y + h * 0.5f;
    const float radius = h * 0.4f;
    setColour(buttonGrey);
    fillRect(box.x, box.y, box.w, box.h);
    setColour(BLACK);
    glBegin(GL_LINE_STRIP);
    for (int angle = 0; angle <= 340; angle += 20)
        glVertex2f(x + cosTable[angle] * radius, y + sinTable[angle] * radius);
    glEnd();
    glBegin(GL_POINTS);
    glVertex2f(x, y);
    glEnd();
    glBegin(GL_LINE_STRIP);
    glVertex2f(x + radius - 0.1f * h, y + 0.1f * h);
    glVertex2f(x + radius, y);
    glVertex2f(x + radius + 0.1f * h, y + 0.1f * h);
    glEnd();
}

static void drawSideButtons()
{
    for (const Control control : {CONTROL_SCORECARD, CONTROL_POSITIONS, CONTROL_DOPING,
                                  CONTROL_RACE_SETTINGS, CONTROL_QUIT})
        drawControl(control);
}

static void drawTeamBox()
{
    if (race.currentRider == -1 || gameState == STATE_FINAL_SCORECARD)
        return;
    const float y = layout.hudY + layout.teamBoxH * 0.5f;
    drawPawnAt(race.currentRider, layout.teamBoxX + 14.0f, y);
    setColour(WHITE);
    const float nameX = layout.teamBoxX + 35.0f;
    drawText(nameX, y, ALIGN_LEFT,
             cutToWidth(raceSetup.teamName[riderTeam(race.currentRider)],
                        placeOf(CONTROL_VIEW).x - nameX - 2.0f));
}

// The throws for the order. A team that lost a tie stands grey and without its throw.
static void drawOrderBox()
{
    if (gameState != STATE_ORDER_THROW && gameState != STATE_ORDER_RESULT)
        return;
    for (int team = 0; team < TEAM_COUNT; ++team) {
        const int thrown = race.teamThrow[team];
        const float column = static_cast<float>(team / 2);
        const float row = static_cast<float>(team % 2);
        std::string line = std::to_string(riderNumber(team * RIDERS_PER_TEAM)) + " ";
        if (thrown > 0)
            line += std::to_string(thrown);
        setColour(thrown == 0 ? disabledGrey : WHITE);
        drawText(layout.diceX + column * layout.orderBoxW * 0.5f,
                 layout.movesBoxY + layout.movesLeftBoxH * (0.25f + 0.5f * row), ALIGN_LEFT, line);
    }
}

// The button beside the extra die, which stays grey once the die is thrown.
static bool extraThrowShown()
{
    const bool person = race.currentRider != -1 && race.riders[race.currentRider].isHuman;
    return gameState == STATE_EVENT_DIE ? person : race.extraDie != -1;
}

// A label that would run under the button of the extra die stands below the box instead.
static void drawBreakawayBox()
{
    const Rect box = placeOf(CONTROL_BREAKAWAY);
    const std::string_view label = controlLabel(CONTROL_BREAKAWAY);
    const float labelEnd = box.x + 1.15f * aspectFix() * layout.breakawaySize +
                           static_cast<float>(textWidth(label, FONT_BODY));
    const bool below = extraThrowShown() && labelEnd > placeOf(CONTROL_EXTRA_THROW).x;
    drawCheckBox(static_cast<int>(box.x), static_cast<int>(box.y),
                 static_cast<int>(layout.breakawaySize), below ? "" : label,
                 accessIndex(CONTROL_BREAKAWAY), isLive(CONTROL_BREAKAWAY), race.breakaway != 0);
    if (below)
        drawText(box.x, box.y + box.h + 10.0f, ALIGN_LEFT, label);
}

static void drawExtraCard()
{
    if (race.bonusMoves != BLUE_CARD && race.bonusMoves != WHITE_CARD)
        return;
    const Rect place = extraCardSlot();
    drawCard(place.x, place.y, riderTeam(race.currentRider), CARD_WON_IN_USE, 1.0f);
}

static void drawValue(float x, float y, float boxW, const std::string& label, int value, bool known)
{
    drawText(x + boxW * 0.02f, y, ALIGN_LEFT, known ? label + std::to_string(value) : label);
}

// Line by line from left to right: Mesa draws bitmaps that follow each other along a line as one.
static void drawCounts()
{
    const bool counted = race.moveBudget != -1;
    const bool running = gameState != STATE_FINAL_SCORECARD;
    const bool onTurn = race.currentRider != -1;
    setColour(WHITE);
    if (race.extraMoves != 0)
        drawValue(layout.hudCol3X, layout.movesBoxY + layout.bonusRowH * 0.5f, layout.movesBoxW,
                  texts.bonusMoves, race.extraMoves, true);
    drawValue(layout.hudCol3X, layout.movesBoxY + layout.bonusRowH + layout.movesRowH * 0.5f,
              layout.movesBoxW, texts.moves, race.moveBudget, counted);
    drawValue(layout.lapBoxX, layout.lapBoxY + layout.lapBoxH * 0.5f, layout.lapBoxW, texts.lap,
              onTurn ? race.riderLapCount[race.currentRider] : 0, running && onTurn);
    drawValue(layout.hudCol3X, layout.movesLeftBoxY + layout.movesLeftBoxH * 0.5f,
              layout.movesLeftBoxW, texts.movesLeft, race.moveBudget - race.stepsTaken, counted);
    drawValue(layout.roundBoxX, layout.movesLeftBoxY + layout.roundBoxH * 0.5f, layout.roundBoxW,
              texts.round, race.roundNumber, running);
}

static void drawHandInSlots()
{
    if (gameState != STATE_SKIP_HANDIN && gameState != STATE_EVENT_HANDIN)
        return;
    for (int slot = 0; slot < handInSlotCount(); ++slot) {
        const Rect place = handInSlot(slot);
        if (race.handInCards[slot] != -1) {
            drawCard(place.x, place.y, riderTeam(race.currentRider), race.handInCards[slot], 1.0f);
            continue;
        }
        setColour(disabledGrey);
        drawRoundedBox(place.x, place.y, place.w, place.h, static_cast<float>(layout.viewW / 112));
    }
    drawControl(CONTROL_HAND_IN);
}

static void drawThrowButton()
{
    drawControl(gameState == STATE_ORDER_RESULT  ? CONTROL_NEXT
                : gameState == STATE_ORDER_THROW ? CONTROL_ORDER_THROW
                                                 : CONTROL_THROW);
}

static void drawExtraDie()
{
    if (gameState != STATE_EVENT_DIE && race.extraDie == -1)
        return;
    drawDice(DICE_EXTRA);
    if (extraThrowShown())
        drawControl(CONTROL_EXTRA_THROW);
}

void drawRacePanel()
{
    drawViewToggle();
    drawCameraButton();
    drawSideButtons();
    drawTeamBox();
    drawOrderBox();
    drawCardPanel();
    drawBreakawayBox();
    drawDice(DICE_TURN);
    drawExtraCard();
    drawCounts();
    drawHandInSlots();
    drawThrowButton();
    drawExtraDie();
}
