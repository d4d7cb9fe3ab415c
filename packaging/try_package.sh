#!/usr/bin/env bash
# Tries what strangers are given: the Debian package, and ./play in a checkout that is not theirs to
# write. Both must have been built, see make_package.sh.
set -eu
unset CDPATH
script=$(realpath "$0")
checkout=$(cd "$(dirname "$0")/.." && pwd -P)
# shellcheck source=tests/support/window.sh
. "$checkout/tests/support/window.sh"

stranger=() # the command that makes us somebody else

# One of the procedures below on a virtual display.
onDisplay()
{
    ${stranger[@]+"${stranger[@]}"} "$checkout/tests/support/on_virtual_display.sh" "$script" "$@"
}
expect() { [ "$1" = "$2" ] || fail "\"$1\" where \"$2\" was to be"; }

# What only the owner of the game can mend is known: it has neither licence nor domain nor web page.
validate()
{
    local findings
    desktop-file-validate "$1"/share/applications/gravelon.desktop
    findings=$(appstreamcli validate --no-net "$1"/share/metainfo/gravelon.metainfo.xml |
        grep '^[EW]: ' | grep -v 'metadata-license-missing\|cid-desktopapp-is-not-rdns\|web-url-expected') || true
    [ -z "$findings" ] || fail "$findings"
}

# The launcher with a folder that has seen better days. There is no display, so the game ends at once.
tryLauncher()
{
    local launcher=$1/games/gravelon
    local folder=$HOME/.local/share/gravelon
    expect "$("$launcher" --version)" "Gravelon $2"
    "$launcher" --help | grep -qF "$folder" || fail "--help does not tell the folder"
    mkdir -p "$folder"
    ln -s /nowhere/board.dat /etc/hostname "$folder"
    ln -s /etc/hostname "$folder/cyclist0.dat"
    echo mine > "$folder/cyclist1.dat"
    (cd / && DISPLAY='' "$launcher" 2> /dev/null) || true
    for picture in board cyclist0 cyclist4 scorecard; do
        expect "$(readlink "$folder/$picture.dat")" "$(realpath "$1/share/gravelon/$picture.dat")"
    done
    expect "$(cat "$folder/cyclist1.dat")" mine
    expect "$(HOME=/proc "$launcher" 2>&1 | wc -l)" 1
    rm -r "$HOME/.local"
}

look() { import -silent -window root -depth 8 rgb:- | md5sum; }
lookChanged() { [ "$(look)" != "$1" ]; }

# On the display: from the start to a throw and out again; and whose window it says it is.
playInstalled()
{
    local window before
    mkdir -p run
    findControls
    startAgain "$1"
    window=$(xdotool search --class '^gravelon$')
    expect "$(xprop -id "$window" WM_CLASS)" 'WM_CLASS(STRING) = "gravelon", "Gravelon"'
    expect "$(xprop -id "$window" _NET_WM_NAME)" '_NET_WM_NAME(UTF8_STRING) = "Gravelon"'
    expect "$(xprop -id "$window" _NET_WM_ICON | grep -o 'Icon (.*)' | paste -sd ' ')" \
        'Icon (16 x 16) Icon (32 x 32) Icon (48 x 48) Icon (64 x 64)'
    click start
    until_ 5 "the team setup" pixelIs setupOkEdge B2B2B2
    chooseOneStage
    click firstCourse
    until_ 10 "the race" throwOpen
    before=$(look)
    click throw
    until_ 5 "a throw" lookChanged "$before"
    quitRace
    click corner
    expectEnd
}

# On the display: ./play, which must start the given game, and end it with itself.
playStrangers()
{
    local game=$1
    local window
    "$checkout/play" --no-install &> play.log &
    gamePid=$!
    trap 'cat play.log >&2; endGame' EXIT
    until_ 20 "the window" xdotool search --class '^gravelon$' > window
    window=$(xdotool getwindowpid "$(cat window)")
    expect "$(readlink "/proc/$window/exe")" "$game"
    kill "$gamePid"
    wait "$gamePid" || expect $? 143
    ! kill -0 "$window" 2> /dev/null || fail "the game outlives ./play"
    gamePid=
    trap - EXIT
}

# A checkout that nobody may write, seen by somebody else than root: with a finished game; and without
# one on a system that has neither apt-get nor xdpyinfo. The stand-in for cmake shows no more than
# where it was asked to build.
tryPlay()
{
    local copy=$PWD/checkout
    local built=$copy/build/play/gravelon
    mkdir -p "$copy/build/play" "$copy/tests" stranger bin
    cp -r "$checkout"/{play,data,packaging,CMakePresets.json} "$copy"
    cp -r "$checkout/tests/support" "$copy/tests"
    cp "$checkout/build/play/gravelon" "$built"
    ln -s /usr/bin/* bin
    rm bin/{apt-get,cmake,xdpyinfo}
    # shellcheck disable=SC2016  # the stand-in's own words
    printf '#!/bin/sh\n[ "$1" = --build ] && cp %q "$2" || mkdir -p "$6"\n' "$PWD/gravelon" > bin/cmake
    chmod +x bin/cmake
    cp "$built" .
    chmod -R a-w,a+rX "$copy"
    # Root may write anywhere, so somebody else has to try.
    if [ "$(id -u)" -eq 0 ]; then
        chown 65534 stranger
        stranger=(setpriv --reuid 65534 --regid 65534 --clear-groups)
    fi

    cd stranger
    export HOME=$PWD CDPATH=/usr
    checkout=$copy
    script=$copy/packaging/try_package.sh
    onDisplay playStrangers "$built"
    chmod u+w "$copy/build/play"
    rm "$built"
    chmod u-w "$copy/build/play"
    PATH=${PWD%/*}/bin onDisplay playStrangers "$HOME/.cache/gravelon/play/gravelon"
    expect "$(grep -c 'g++ make cmake.*x11-utils$' play.log)" 1
}

tryAll()
{
    local package=("$checkout"/build/play/gravelon_*.deb)
    cd "$(mktemp -d "${TMPDIR:-/tmp}/gravelon-try.XXXXXX")"
    chmod 755 .
    trap 'echo "What was tried lies in $PWD"' EXIT
    mkdir home
    export HOME=$PWD/home
    unset XDG_DATA_HOME XDG_CACHE_HOME
    dpkg-deb -x "${package[0]}" root
    validate root/usr
    tryLauncher "$PWD/root/usr" "$(dpkg-deb -f "${package[0]}" Version)"
    onDisplay playInstalled "$PWD/root/usr/games/gravelon"
    (tryPlay)
    trap - EXIT
    chmod -R u+w .
    rm -rf "$PWD"
}

"${@:-tryAll}"
