#!/usr/bin/env bash
# A person at the screen: another language and back, four riders placed and steered with the arrows,
# a card laid and taken back. Then a window without a window manager.
set -eu
# shellcheck source=tests/support/window.sh
. "$(dirname "$0")/../support/window.sh"

board=1240x700+20+60

languageIs() { [ "$(od -An -tu1 -N1 run/settings)" -eq "$1" ]; }
thrown() { ! throwOpen; }
cardLaid() { pixelIsNot firstDie 990000; } # a white card or a blue one

chooseLanguage()
{
    click languages
    until_ 5 "the languages" pixelIsNot start B2B2B2
    click "$1"
    until_ 5 "the main menu" menuOpen
    until_ 5 "the language $1 in the settings" languageIs "$2"
}

# Presses keys again and again, and answers what is asked, until a person may throw.
toNextTurn()
{
    local end=$((SECONDS + 60))
    until throwOpen; do
        [ $SECONDS -lt $end ] || fail "no turn comes"
        xdotool key --delay 15 "$@" o n
    done
}

# On along the road and round whoever stands in the way.
rideOn() { toNextTurn Up Up Up Right Up Left Return; }

# One key changes the board, another takes that back.
thereAndBack()
{
    local before
    before=$(look $board)
    press "$1"
    [ "$(look $board)" != "$before" ] || fail "$1 does nothing"
    press "$2"
    [ "$(look $board)" = "$before" ] || fail "$2 doesn't lead back"
}

startGame "$1" "$2" "$fast"
chooseLanguage french 2
chooseLanguage english 1
xdotool key s
until_ 5 "the team setup" setupOpen
click computer
chooseOneStage
click firstCourse
until_ 10 "the race" throwOpen
while throwOpen; do
    untilChanged "a throw" xdotool key t n
done

thereAndBack Right Left # the cursor
toNextTurn Return Down Return Down Return Down Return Left Return Left Return Up Right Up Right
teamIs 0 || fail "the team on turn isn't the one in view"
for _ in {1..4}; do # laying cards begins with the second round
    press t
    thereAndBack Up Down # the rider's
    rideOn
done
xdotool key F7
until_ 5 "a card in place of the first die" cardLaid
xdotool key F7
until_ 5 "the card to be taken back" pixelIs firstDie 990000
xdotool key F7 t
until_ 5 "the throw" thrown
rideOn
quitRace
xdotool key e
expectEnd

openbox --exit
until ! pgrep -P $PPID -x openbox > /dev/null; do sleep 0.05; done
startGame "$1" "$2"
xdotool key s
until_ 5 "the team setup" setupOpen
chooseOneStage
click firstCourse
until_ 10 "the race" throwOpen
quitRace
click corner
expectEnd
echo "Turns of a person took $SECONDS seconds."
