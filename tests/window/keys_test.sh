#!/usr/bin/env bash
# Real keys: held, with Shift, Control, Alt and NumLock; a window laid over the game and taken away.
set -eu
# shellcheck source=tests/support/window.sh
. "$(dirname "$0")/../support/window.sh"

hold()
{
    xdotool keydown "$1"
    sleep 1.5
}

startGame "$1" "$2"

# One by one: xdotool lets go of the modifier first.
for modifier in ctrl alt; do
    xdotool keydown $modifier key s keyup $modifier
done
sleep 0.5
menuOpen || fail "a letter with Control or Alt acted"

hold s
menuOpen || fail "a key acted before it was released"
xdotool keyup s
until_ 5 "the team setup" setupOpen
chooseOneStage
point firstCourse
until_ 5 "the frame round the course" pixelIs courseFrame FFFFFF
click firstCourse
until_ 10 "the race" throwOpen
teamIs 0 || fail "the first team isn't the one in view"

hold Tab
teamIs 0 || fail "a held Tab repeats"
xdotool keyup Tab
until_ 5 "the second team" teamIs 1
sleep 0.5
teamIs 1 || fail "a held Tab acted more than once"
xdotool keydown shift key Tab keyup shift
until_ 5 "the first team by Shift and Tab" teamIs 0
xdotool keydown shift key Tab keyup shift
until_ 5 "the last team" teamIs 3
xdotool key Num_Lock keydown shift key Tab keyup shift
until_ 5 "Shift and Tab under NumLock" teamIs 2
xdotool key Tab
until_ 5 "Tab under NumLock" teamIs 3

xdotool key q
until_ 5 "the question" dialogOpen
click camera
xdotool key n
until_ 5 "the race behind the question" throwOpen

expectIdle "waiting for Next"

display -geometry 600x600+100+100 -size 600x600 xc:red &
cover=$!
covered() { import -silent -window root -crop 1x1+400+400 -depth 8 txt:- | grep -q FF0000; }
until_ 10 "the window in front" covered
kill $cover
uncovered() { ! covered && teamIs 3; }
until_ 5 "the game behind the window" uncovered

quitRace
xdotool key e
expectEnd
