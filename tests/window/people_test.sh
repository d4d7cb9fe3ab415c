#!/usr/bin/env bash
# A person at the screen: another language and back, a name typed, a course designed and saved, four
# riders placed and steered, cards laid and taken back. With a window manager, then without.
set -eu
# shellcheck source=tests/support/window.sh
. "$(dirname "$0")/../support/window.sh"

board=1240x700+20+60

languageIs() { [ "$(od -An -tu1 -N1 run/settings)" -eq "$1" ]; }
cardLaid() { pixelIsNot firstDie 990000; } # a white card or a blue one

chooseLanguage()
{
    click languages
    until_ 5 "the languages" pixelIsNot start B2B2B2
    point "$1"
    click "$1"
    until_ 5 "the main menu" menuOpen
    until_ 5 "the language $1 in the settings" languageIs "$2"
}

nameTeam()
{
    click firstName
    xdotool key --delay 20 Home Delete Delete Delete Delete Delete Delete Delete Delete Delete Delete
    xdotool type --delay 60 "Zo-e 7"
    xdotool key --delay 20 BackSpace BackSpace BackSpace BackSpace BackSpace BackSpace
    xdotool type --delay 60 "Lena"
    click computer0
    until_ 5 "the first team to be a person's" pixelIs computerMiddle0 FFFFFF
}

# The arrows lead the cursor to the squares.
moveCursor()
{
    local before
    before=$(look $board)
    press Left
    [ "$(look $board)" != "$before" ] || press Right
    [ "$(look $board)" != "$before" ] || fail "the arrows don't move the cursor"
}

# Through whatever the computers do to the next turn of a person.
awaitTurn()
{
    local end=$((SECONDS + 60))
    until throwOpen; do
        [ $SECONDS -lt $end ] || fail "no turn comes"
        ! dialogOpen || xdotool key o n
    done
}

# Lays a card, takes it back and lays it again.
layCard()
{
    xdotool key "$1"
    until_ 5 "a card in place of the first die" cardLaid
    xdotool key "$1"
    until_ 5 "the card to be taken back" pixelIs firstDie 990000
    xdotool key "$1"
    until_ 5 "the card to be laid again" cardLaid
}

rideOn()
{
    xdotool key --delay 20 Up Up Up Up Up Up Up Up Up Up Up Up Right Up Up Up Return
}

# A step and its undo, and then on.
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
    rideOn
}

# Cards may be laid from the second round on, which begins when all four have ridden.
playTurns()
{
    local key
    undone=0
    for _ in {1..4}; do
        awaitTurn
        press t
        rideOn
    done
    for key in F7 F8; do
        awaitTurn
        layCard $key
        press t
        dialogOpen || steer
    done
    [ $undone -gt 0 ] || fail "no step was taken back"
}

setUp()
{
    startGame "$1" "$2" "$fast"
    chooseLanguage french 2
    chooseLanguage english 1
    xdotool key s
    until_ 5 "the team setup" setupOpen
    nameTeam
    click eventBox
    until_ 5 "a race without event cards" pixelIs eventBoxMiddle FFFFFF
    chooseOneStage
    designCourse 2
    [ "$(stat -c %s run/courses)" -eq 48 ] || fail "the saved course isn't one record"
    throwForOrder
    moveCursor
    placeRiders
    shot placed
    awaitTurn
    teamIs 0 || fail "the team on turn isn't the one in view"
}

leave()
{
    awaitTurn
    shot played
    quitRace
    xdotool key e
    expectEnd
}

bareDisplay=
endBareDisplay()
{
    endGame
    [ -z "$bareDisplay" ] || kill "$bareDisplay" 2> /dev/null || true
}

setUp "$@"
playTurns
leave
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
setUp "$@"
leave
endBareDisplay
echo "Both: $SECONDS seconds."
