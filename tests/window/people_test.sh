#!/usr/bin/env bash
# A person at the screen: another language and back, a name typed, a course designed and saved, four
# riders placed and steered, cards laid and taken back. With a window manager, then without.
set -eu
# shellcheck source=tests/support/window.sh
. "$(dirname "$0")/../support/window.sh"

# English, smooth, no delay, 999 board units a tick.
fast='\1\1\0\0\0\0\0\300\171\104\0\0\0\0\0\0\0\0\0\0\360\277\0\0\0\0\0\0\360\277'
tabColours=(009900 990000 808080 000099)

# The controls that only a person needs, on a screen of 5:4.
findPeoplesControls()
{
    placeControls '
            cardW = int(v * 3 / 70); cardH = int(h * 12 / 175); panelW = v * 0.496
            diceX = v * 0.02 + panelW + (panelW - 9 * cardW) / 10
            put("languages", v * 0.5, h * 0.3 + 10)
            put("french", v * 0.5, h * (0.1 + 2 * 0.217 + 0.075))
            put("english", v * 0.5, h * (0.1 + 0.217 + 0.075))
            put("firstName", v * 0.4 + 3, h * 0.4 + 7)
            put("firstComputer", v * 0.4 + 97 * 1.2 + 3, h * 0.41)
            put("firstComputerMiddle", v * 0.4 + 97 * 1.2 + h * 0.01, h * 0.41)
            put("eventBox", v * 0.4 + 3, h * 0.655)
            put("eventBoxMiddle", v * 0.4 + h * 0.01, h * 0.655)
            put("add", v * 0.5, h * 0.915)
            put("finishBox", v * 0.45 + 4, h * 0.885)
            put("finishMiddle", v * 0.45 + h * 0.01, h * 0.885)
            put("save", v * 0.8 - v * 0.032 + 8, h * 0.915)
            put("firstDie", diceX + cardH * 0.5, h * 0.761 + cardH * 0.62)
    '
}

# Whether two looks at a part of the screen are the same: look BOX, with BOX as for import -crop.
look() { import -silent -window root -crop "$1" -depth 8 rgb:- | md5sum; }
board=1240x700+20+60
names=110x20+510+408

press()
{
    xdotool key "$@"
    sleep 0.15
}

languageIs() { [ "$(od -An -tu1 -N1 run/settings)" -eq "$1" ]; }
teamIs() { pixelIs "tab$1" "${tabColours[$1]}"; }
cardLaid() { pixelIsNot firstDie 990000; } # a white card or a blue one
courseSaved() { [ -f run/courses ] && [ "$(stat -c %s run/courses)" -eq 48 ]; }

chooseLanguage()
{
    click languages
    until_ 5 "the languages" pixelIsNot start B2B2B2
    point "$1"
    click "$1"
    until_ 5 "the main menu" pixelIs startEdge B2B2B2
    until_ 5 "the language $1 in the settings" languageIs "$2"
}

pixelIsNot() { ! pixelIs "$@"; }

nameTeam()
{
    local before
    click firstName
    press Home
    for _ in {1..12}; do
        xdotool key Delete
    done
    sleep 0.3
    before=$(look $names)
    xdotool type --delay 60 "Zo-e 7"
    sleep 0.3
    [ "$(look $names)" != "$before" ] || fail "a name can't be typed"
    xdotool key BackSpace BackSpace BackSpace BackSpace BackSpace BackSpace
    sleep 0.3
    [ "$(look $names)" = "$before" ] || fail "a name can't be taken back"
    xdotool type --delay 60 "Lena"
    click firstComputer
    until_ 5 "the first team to be a person's" pixelIs firstComputerMiddle FFFFFF
}

designCourse()
{
    press c
    click add
    sleep 0.2
    click finishBox
    until_ 5 "the mark of the finish" pixelIs finishMiddle 000000
    click add
    sleep 0.2
    click save
    until_ 5 "the saved course" courseSaved
    click add
    until_ 10 "the race" throwOpen
}

# The throws for the order, then the four riders: each on the square that the arrows lead to.
placeRiders()
{
    local before direction
    while throwOpen; do
        click throw
        sleep 0.15
    done
    before=$(look $board)
    press Left
    [ "$(look $board)" != "$before" ] || press Right
    [ "$(look $board)" != "$before" ] || fail "the arrows don't move the cursor"
    # Up and down the grid, so that a free square is met.
    local across="Left Left Left Up Right Right Right Up"
    for direction in $across $across $across Down Down Down Down Down $across $across; do
        xdotool key Return key "$direction"
        sleep 0.05
        if throwOpen || dialogOpen; then
            return 0
        fi
    done
}

# Through whatever the computers do to the next turn of a person.
awaitTurn()
{
    local end=$((SECONDS + 40))
    until throwOpen; do
        [ $SECONDS -lt $end ] || fail "no turn comes"
        ! dialogOpen || press o n
        sleep 0.1
    done
}

# Lays the first card of these keys that the rider has, takes it back and lays it again.
layCard()
{
    local key
    for key in "$@"; do
        xdotool key "$key"
        ! within 1 cardLaid || break
    done
    until_ 5 "a card in place of the first die" cardLaid
    xdotool key "$key"
    until_ 5 "the card to be taken back" pixelIs firstDie 990000
    xdotool key "$key"
    until_ 5 "the card to be laid again" cardLaid
}

within()
{
    local end=$((SECONDS + 1 + $1))
    while ! "${@:2}"; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.05
    done
}

rideOn()
{
    xdotool key --delay 20 Up Up Up Up Up Up Up Up Up Up Up Up Right Up Up Up Return
    sleep 0.2
}

# A step and its undo, then to the left until a step is refused, and the rest straight on.
steer()
{
    local before after
    before=$(look $board)
    press Up
    after=$(look $board)
    if [ "$after" != "$before" ]; then
        press Down
        [ "$(look $board)" = "$before" ] || fail "a step isn't taken back"
        undone=$((undone + 1))
    fi
    for _ in {1..14}; do
        before=$(look $board)
        press Left
        after=$(look $board)
        [ "$before" != "$after" ] || break
    done
    [ "$before" = "$after" ] || fail "no step is refused"
    rideOn
}

walkThroughTeams()
{
    awaitTurn
    teamIs 0 || fail "the team on turn isn't the one in view"
    press Tab
    until_ 5 "the second team" teamIs 1
    xdotool keydown shift key Tab keyup shift
    until_ 5 "the first team" teamIs 0
    xdotool keydown shift key Tab keyup shift
    until_ 5 "the last team" teamIs 3
    press Tab
    until_ 5 "the first team again" teamIs 0
}

# Cards may be laid from the second round on, which begins when all four have ridden.
playTurns()
{
    local keys
    undone=0
    for _ in {1..4}; do
        awaitTurn
        press t
        rideOn
    done
    for keys in F7 F8 "F3 F2"; do
        awaitTurn
        # shellcheck disable=SC2086  # one or more keys
        layCard $keys
        press t
        dialogOpen || steer
    done
    [ $undone -gt 0 ] || fail "no step was taken back"
}

play()
{
    startGame "$1" "$2" "$fast"
    findPeoplesControls
    chooseLanguage french 2
    chooseLanguage english 1
    press s
    until_ 5 "the team setup" pixelIs setupOkEdge B2B2B2
    nameTeam
    click eventBox
    until_ 5 "a race without event cards" pixelIs eventBoxMiddle FFFFFF
    chooseOneStage
    designCourse
    placeRiders
    shot placed
    walkThroughTeams
    playTurns
    awaitTurn
    shot played
    press q
    until_ 5 "the question" dialogOpen
    press y
    until_ 5 "the main menu" pixelIs startEdge B2B2B2
    press e
    expectEnd
}

bareDisplay=
endBareDisplay()
{
    endGame
    [ -z "$bareDisplay" ] || kill "$bareDisplay" 2> /dev/null || true
}

play "$@"
echo "With a window manager: $SECONDS seconds."

rm -f bare_display
setpriv --pdeathsig TERM Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp \
    3> bare_display 2> /dev/null &
bareDisplay=$!
trap endBareDisplay EXIT
for _ in {1..100}; do
    [ ! -s bare_display ] || break
    sleep 0.1
done
DISPLAY=:$(cat bare_display)
export DISPLAY
unset XAUTHORITY
play "$@"
endBareDisplay
echo "Both: $SECONDS seconds."
