#!/usr/bin/env bash
# A race of two stages with event cards, two persons against two computers: the persons dope whenever
# they may, follow, pay and throw whatever the cards want. The race is left behind its first stage,
# goes on from its file, and its standings are exported each time.
set -eu
# shellcheck source=tests/support/window.sh
. "$(dirname "$0")/../support/window.sh"

head=57
stage=116

# Whether the first name on the list is yellow.
raceChosen()
{
    import -silent -window root -crop "120x16+$((1280 / 5))+$((1024 / 5 + 4))" -depth 8 txt:- |
        grep -q '#FFFF00'
}

chooseRace()
{
    xdotool key c
    until_ 5 "the list of races" pixelIs listOkEdge B2B2B2
    ! raceChosen || fail "a race is chosen before anybody has"
    click firstRace
    until_ 5 "the race chosen" raceChosen
}

setUpRace()
{
    click start
    until_ 5 "the team setup" setupOpen
    for i in 0 1; do
        click "computer$i"
        until_ 5 "a person's team" pixelIs "computerMiddle$i" FFFFFF
    done
    click setupOk
    until_ 5 "the want of a race name" dialogOpen
    xdotool key o
    until_ 5 "the team setup again" setupOpen
    click raceName
    xdotool type --delay 60 "Story 1"
    shot setup
    click setupOk
    until_ 5 "the courses" coursesOpen
}

# Keeps a picture of each dialog that looks like none before.
declare -A dialogs
noteDialog()
{
    local look
    import -silent -window root -crop "520x170+380+410" +repage dialog.png
    # It may have gone meanwhile.
    convert dialog.png -crop 1x1+10+5 -depth 8 txt:- | grep -q '#000080' || return 0
    look=$(convert dialog.png -depth 8 rgb:- | md5sum)
    [ -z "${dialogs[$look]-}" ] || return 0
    dialogs[$look]=1
    mv dialog.png "dialog${#dialogs[@]}.png"
}

# Whatever the stage asks, until it is over. A key that doesn't fit the state does nothing, so all
# those that may are pressed.
playStage()
{
    local end=$((SECONDS + 400))
    throwForOrder
    placeRiders
    while true; do
        [ $SECONDS -lt $end ] || fail "the stage does not end"
        kill -0 "$gamePid" || fail "the program ended in the race"
        if dialogOpen; then
            noteDialog
            xdotool key o y b i
        elif throwOpen; then
            xdotool key d y o
            ! dialogOpen || noteDialog
            xdotool key t n
        elif sheetOpen; then
            return 0
        else
            # Pays with a card, dopes, throws one die or two, rides.
            xdotool key F7 F5 F1 o d y o t
            xdotool key --delay 8 Up Up Up Up Up Up Up Up Up Up Up Right Up Left Up Return
        fi
    done
}

sizeIs() { [ "$(stat -c %s "$1" 2> /dev/null)" = "$2" ]; }

# Empty places of the finish in the record of a stage: those of riders who were disqualified.
emptyPlaces()
{
    od -An -v -td4 -w4 -j $((head + ($1 - 1) * stage + 16 + 36)) -N 64 "run/Story 1.race" |
        grep -c -- -1 || true
}

finishStage()
{
    until_ 5 "stage $1 in the file" sizeIs "run/Story 1.race" $((head + $1 * stage))
    xdotool key x
    until_ 5 "the standings of stage $1" test -s "run/Story 1.csv"
    sleep 0.3
    shot "final$1"
    cp "run/Story 1.csv" "standings$1.csv"
    caught=$((caught + $(emptyPlaces "$1")))
    xdotool key q
    until_ 5 "the main menu" menuOpen
}

# Of a race with many events.
export GRAVELON_SEED=3
caught=0
rm -f dialog*.png

startGame "$1" "$2" "$fast"
setUpRace
designCourse 3
playStage
finishStage 1
xdotool key e
expectEnd

rm "run/Story 1.csv"
startAgain "$1"
chooseRace
shot list
xdotool key s
until_ 5 "the standings" sheetOpen
shot standings
xdotool key o
until_ 5 "the list again" pixelIsNot sheetTitle 000080
xdotool key o
until_ 5 "the courses" pixelIs courseFrame 000033
untilChanged "the saved course" xdotool key u
click savedOk
until_ 10 "the second stage" throwOpen
playStage
finishStage 2
xdotool key e
expectEnd

startAgain "$1"
rm "run/Story 1.csv"
chooseRace
xdotool key s
until_ 5 "the standings" sheetOpen
untilChanged "the general classification" xdotool key g
shot general
xdotool key x
until_ 5 "the standings of the race" cmp -s "run/Story 1.csv" standings2.csv
xdotool key o
until_ 5 "the list again" pixelIsNot sheetTitle 000080
xdotool key b
until_ 5 "the main menu" menuOpen
xdotool key e
expectEnd

# How many there are, and whether the control catches anybody, depends on the pace of the machine too:
# the keys meet other riders' turns.
[ ${#dialogs[@]} -ge 8 ] || fail "only ${#dialogs[@]} different dialogs"
echo "Two stages with ${#dialogs[@]} different dialogs, $caught caught: $SECONDS seconds."
