# shellcheck shell=bash
# To be sourced. Hands and eyes for tests of the program in a real window on the display at hand:
# clicks, keys, and pixels of the screen. A test calls startGame first. What the screen showed at a
# failure stays in the current folder.

gamePid=
# Settings in English, smooth, no delay, 999 board units a tick.
# shellcheck disable=SC2034  # for the tests
fast='\1\1\0\0\0\0\0\300\171\104\0\0\0\0\0\0\0\0\0\0\360\277\0\0\0\0\0\0\360\277'
tabColours=(009900 990000 808080 000099)
declare -A at # middle of each control on the screen, as "x y"

fail()
{
    echo "FAILED: $*" >&2
    import -silent -window root failed.png || true
    exit 1
}

endGame()
{
    [ -z "$gamePid" ] || kill "$gamePid" 2> /dev/null || true
}

# Where the controls are on a full-screen window of the display's size, and those that only a person
# needs on one of 5:4; some are clicked where the package is tried. The same fractions as the
# layout's, so that a control that has moved is a test that fails.
findControls()
{
    local width height name place
    read -r width height < <(xdotool getdisplaygeometry)
    while read -r name place; do
        at[$name]=$place
    done < <(awk -v w="$width" -v h="$height" '
        function put(name, x, y) { printf "%s %d %d\n", name, left + x, y }
        BEGIN {
            v = int(w < h * 1.25 ? w : h * 1.25); left = int((w - v) * 0.5)
            cardW = int(v * 3 / 70); cardH = int(h * 12 / 175)
            hud = h * 0.761; panelX = v * 0.02; panelW = v * 0.496
            gap = (panelW - 9 * cardW) / 10
            buttonW = v * 0.064; buttonH = h * 0.03
            throwX = panelX + panelW + gap; throwY = hud + cardH * 6 / 5
            side = v - buttonW * 1.5
            dialogW = v * 0.4; dialogH = v * 0.125
            dialogX = v * 0.5 - dialogW * 0.5; dialogY = h * 0.5 - dialogH * 0.5
            picture = dialogW * 1419 / 1072; cardY = h * 0.75 - picture; sheetH = picture + h * 0.045
            put("start", v * 0.5, h * 0.72)
            put("startEdge", v * 0.5 - v * 0.115, h * 0.72)
            put("corner", side + buttonW * 0.5, h - 20 - buttonH * 0.6)
            put("cornerEdge", side + 4, h - 20 - buttonH * 0.6)
            put("setupOk", v * 0.5, h * 0.68 + buttonH * 0.5)
            put("setupOkEdge", v * 0.5 - buttonW * 0.4, h * 0.68 + buttonH * 0.5)
            put("singleStage", v * 0.4, h * 0.61)
            put("firstCourse", v * 0.5 - v * 0.38 * 0.6, h * 0.17 + v * 0.05)
            put("courseFrame", v * 0.5 - v * 0.38 * 1.1 - 5, h * 0.25)
            put("throw", throwX + cardH * 0.5, throwY + cardH / 6)
            put("throwBox", throwX, throwY); put("throwSize", cardH - left, cardH / 3)
            put("toggle", side + buttonH * 0.5, hud + buttonH * 0.5)
            put("camera", side + v * 0.08 - buttonH * 0.5, hud + buttonH * 0.5)
            put("dialogTitle", dialogX + 10, dialogY - v * 0.012)
            put("dialogOk", dialogX + dialogW * 0.5, dialogY + dialogH - buttonH * 0.7)
            put("sheetTitle", v * 0.5, cardY - 4)
            put("sheetOk", dialogX + dialogW * 0.85, cardY + sheetH - buttonH * 0.7)
            for (i = 0; i < 4; i++)
                put("tab" i, panelX + (i + 0.1) * panelW * 0.25, hud + h * 0.176 + v * 0.017)
            put("languages", v * 0.5, h * 0.3 + 10)
            put("french", v * 0.5, h * (0.1 + 2 * 0.217 + 0.075))
            put("english", v * 0.5, h * (0.1 + 0.217 + 0.075))
            put("computer", v * 0.4 + 97 * 1.2 + 3, h * 0.41)
            put("raceName", v * 0.545 + 3, h * 0.57)
            put("firstDie", throwX + cardH * 0.5, hud + cardH * 0.62)
            put("firstRace", v * 0.2 + 12, h * 0.2 + 12)
            put("listOkEdge", v * 0.5 + buttonW * 0.6 + 3, h * 0.8 + 4)
        }')
}

# The program in a folder of its own with pictures and, as the second argument, a settings file's
# bytes in printf's notation.
startGame()
{
    local pictures=$2
    local picture
    rm -rf run
    mkdir run
    for picture in "$pictures"/*.dat; do
        ln -s "$picture" run/
    done
    # shellcheck disable=SC2059  # the bytes are a format
    [ $# -lt 3 ] || printf "$3" > run/settings
    findControls
    startAgain "$1"
}

# The program once more, where it ran before.
startAgain()
{
    trap endGame EXIT
    (cd run && exec "$1") &
    gamePid=$!
    until_ 30 "the main menu" menuOpen
}

# From the team setup to the choice of a course.
chooseOneStage()
{
    click singleStage
    until_ 5 "the choice of one stage" pixelIs singleStage 000000
    click setupOk
    until_ 5 "the courses" coursesOpen
}

# The colour of the middle of a control as RRGGBB.
pixel()
{
    # shellcheck disable=SC2086
    set -- ${at[$1]}
    import -silent -window root -crop "1x1+$1+$2" -depth 8 txt:- | grep -o '#[0-9A-F]\{6\}' | cut -c 2-
}

pixelIs() { [ "$(pixel "$1")" = "$2" ]; }
pixelIsNot() { ! pixelIs "$@"; }
teamIs() { pixelIs "tab$1" "${tabColours[$1]}"; }
menuOpen() { pixelIs startEdge B2B2B2; }
setupOpen() { pixelIs setupOkEdge B2B2B2 && pixelIsNot dialogTitle 000080; }
coursesOpen() { pixelIs cornerEdge B2B2B2; }

# Whether the label on the throw button is black, not grey.
throwOpen()
{
    local x y w h
    # shellcheck disable=SC2086
    read -r x y w h <<< "${at[throwBox]} ${at[throwSize]}"
    import -silent -window root -crop "${w}x$h+$x+$y" -depth 8 txt:- | grep -q '#000000'
}

dialogOpen() { pixelIs dialogTitle 000080; }
sheetOpen() { pixelIs sheetTitle 000080; }

# Waits some seconds for a command to succeed: until_ SECONDS WHAT COMMAND...
until_()
{
    local end=$((SECONDS + $1))
    while ! "${@:3}"; do
        [ $SECONDS -lt $end ] || fail "waited $1 seconds for $2"
        kill -0 "$gamePid" 2> /dev/null || fail "the program ended while waiting for $2"
        sleep 0.05
    done
}

# What a part of the screen looks like, as for import -crop; the whole for "".
look() { import -silent -window root ${1:+-crop "$1"} -depth 8 rgb:- | md5sum; }

looksOther() { [ "$(look "")" != "$1" ]; }

# Does something and waits until it is seen: untilChanged WHAT COMMAND...
untilChanged()
{
    local before
    before=$(look "")
    "${@:2}"
    until_ 5 "$1" looksOther "$before"
}

# In a race: presses keys and waits until they have acted. They act one after the other, and what the
# last one, Tab, does is seen: the cards of the next team.
press()
{
    local team
    for team in {0..3}; do
        ! teamIs "$team" || break
    done
    xdotool key "$@" Tab
    until_ 10 "$* and Tab to act" teamIs $(((team + 1) % 4))
}

quitRace()
{
    xdotool key q
    until_ 5 "the question" dialogOpen
    xdotool key y
    until_ 5 "the main menu" menuOpen
}

point()
{
    # shellcheck disable=SC2086
    xdotool mousemove ${at[$1]}
}

click()
{
    point "$1"
    xdotool click "${2:-1}"
}

# Hundredths of a second of processor time that the program has used.
processorTime()
{
    awk '{print $14 + $15}' "/proc/$gamePid/stat"
}

# Within seconds, the program uses next to no time while it waits: expectIdle WHAT
expectIdle()
{
    local before
    before=$(processorTime)
    sleep 3
    [ $(($(processorTime) - before)) -le 1 ] || fail "$1 takes processor time"
}

# The program must have ended by itself with success.
expectEnd()
{
    local end=$((SECONDS + 10))
    while kill -0 "$gamePid" 2> /dev/null; do
        [ $SECONDS -lt $end ] || fail "the program goes on"
        sleep 0.05
    done
    wait "$gamePid" || fail "the program ended with status $?"
    gamePid=
}
