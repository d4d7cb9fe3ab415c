# shellcheck shell=bash disable=SC2034  # the names are read by the scripts that source this file
# To be sourced. A virtual display with a window manager, for as long as the script runs. The script
# has to have called useScratchFolder before.

virtualScreen=1280x1024x24 # the shape that the game is designed for
housekeepers=()           # the processes that make up the display
housekeeperNames=()       # by their process numbers
scratch=                  # sockets, keys and logs; gone when the script ends

# Makes the folder for what lives no longer than the script, and sees to it that everything ends
# with the script, however that ends.
useScratchFolder()
{
    scratch=$(mktemp -d "${TMPDIR:-/tmp}/gravelon.XXXXXX")
    trap endHousekeepers EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM
}

endHousekeepers()
{
    local i
    for ((i = ${#housekeepers[@]} - 1; i >= 0; i--)); do
        kill "${housekeepers[i]}" 2> /dev/null || true
        wait "${housekeepers[i]}" 2> /dev/null || true
    done
    rm -rf "$scratch"
}

# Runs a program beside the script with its words in a log. The kernel ends it with us, should we
# not come to do it ourselves.
keepHouse()
{
    setpriv --pdeathsig TERM "$@" < /dev/null &> "$scratch/${1##*/}.log" &
    housekeepers+=($!)
    housekeeperNames[$!]=${1##*/}
}

# Waits until a command succeeds, for 20 seconds at most. When it doesn't, the script ends with the
# log of the program that was waited for.
waitFor()
{
    local program=$1
    local attempt
    for ((attempt = 0; attempt < 400; attempt++)); do
        if "${@:2}" &> /dev/null; then
            return
        fi
        sleep 0.05
    done
    echo "$program did not start:" >&2
    tail -n 20 "$scratch/$program.log" >&2
    exit 1
}

# Starts the display on a free number and points DISPLAY and XAUTHORITY at it. Nobody but this user
# may look at it.
startVirtualDisplay()
{
    local openboxSettings=$1
    local cookie
    cookie=$(mcookie)
    xauth -q -f "$scratch/server_key" add :0 . "$cookie" 2> /dev/null
    keepHouse Xvfb -displayfd 3 -screen 0 "$virtualScreen" -auth "$scratch/server_key" \
        -nolisten tcp 3> "$scratch/number"
    waitFor Xvfb grep -q . "$scratch/number"

    DISPLAY=:$(cat "$scratch/number")
    XAUTHORITY=$scratch/key
    xauth -q -f "$XAUTHORITY" add "$DISPLAY" . "$cookie" 2> /dev/null
    export DISPLAY XAUTHORITY LIBGL_ALWAYS_SOFTWARE=1

    # Full screen is the window manager's to give, and programs ask for it as soon as they start. It
    # announces itself long before it is ready, and a window that opens between the two stays hidden
    # for ever. What is given as --startup it runs last, so that is what we wait for.
    keepHouse openbox --sm-disable --config-file "$openboxSettings" --startup "touch $scratch/managed"
    waitFor openbox test -e "$scratch/managed"
}
