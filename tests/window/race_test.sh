#!/usr/bin/env bash
# A stage of four computer teams from the first click to the final scorecard and out again, with
# nothing but clicks on "Start", "Single stage", "OK", a course, "Next", "OK" and "Quit".
set -eu
# shellcheck source=tests/support/window.sh
. "$(dirname "$0")/../support/window.sh"

startGame "$1" "$2" "$fast"
shot menu

expectIdle "the main menu"

click start
until_ 5 "the team setup" setupOpen
shot setup
chooseOneStage
point firstCourse
until_ 5 "the frame round the course" pixelIs courseFrame FFFFFF
shot courses
click firstCourse
until_ 10 "the race" throwOpen
shot order

untilChanged "the perspective view" click toggle
shot perspective
untilChanged "the flat view" click toggle

shots=0
while ! sheetOpen; do
    [ $SECONDS -lt 240 ] || fail "the race does not end"
    kill -0 "$gamePid" || fail "the program ended in the race"
    if dialogOpen; then
        shot dialog
        click dialogOk
    elif throwOpen; then
        click throw
    elif [ $((SECONDS / 10)) -gt $shots ]; then
        shots=$((SECONDS / 10))
        shot "race$shots"
    fi
done
shot scorecard
click sheetOk
until_ 5 "the main menu" menuOpen
click corner
expectEnd
echo "A race took $SECONDS seconds."
