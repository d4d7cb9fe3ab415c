#!/usr/bin/env bash
# A race of two stages between computers: the first from the first click to the final scorecard, its
# standings exported; then the program ends, starts again, and goes on from the race's file.
set -eu
# shellcheck source=tests/support/window.sh
. "$(dirname "$0")/../support/window.sh"

head=57
stage=116

sizeIs() { [ "$(stat -c %s "$1" 2> /dev/null)" = "$2" ]; }

setUpRace()
{
    click start
    until_ 5 "the team setup" setupOpen
    click setupOk
    until_ 5 "the want of a race name" dialogOpen
    xdotool key o
    until_ 5 "the team setup again" setupOpen
    click raceName
    xdotool type --delay 60 "Story 1"
    click setupOk
}

chooseCourse()
{
    until_ 5 "the courses" coursesOpen
    point firstCourse
    until_ 5 "the frame round the course" pixelIs courseFrame FFFFFF
    click firstCourse
    until_ 10 "the race" throwOpen
}

playStage()
{
    local end=$((SECONDS + 240))
    while ! sheetOpen; do
        [ $SECONDS -lt $end ] || fail "the stage does not end"
        kill -0 "$gamePid" || fail "the program ended in the race"
        if dialogOpen; then
            click dialogOk
        elif throwOpen; then
            click throw
        fi
    done
}

startGame "$1" "$2" "$fast"
expectIdle "the main menu"
setUpRace
chooseCourse
untilChanged "the perspective view" click toggle
untilChanged "the flat view" click toggle
playStage
until_ 5 "the stage in the file" sizeIs "run/Story 1.race" $((head + stage))
xdotool key x
until_ 5 "the standings" test -s "run/Story 1.csv"
click sheetOk
until_ 5 "the main menu" menuOpen
click corner
expectEnd

startAgain "$1"
xdotool key c
until_ 5 "the list of races" pixelIs listOkEdge B2B2B2
untilChanged "the race chosen" click firstRace
xdotool key s
until_ 5 "the standings" sheetOpen
untilChanged "the general classification" xdotool key g
xdotool key o
until_ 5 "the list again" pixelIsNot sheetTitle 000080
xdotool key o
chooseCourse
quitRace
xdotool key e
expectEnd
echo "A race took $SECONDS seconds."
