#!/usr/bin/env bash
# idle_time.sh BUILD [SECONDS]: processor time of the program while it waits on the main menu and for
# a person's throw, beside a bare window that waits; BUILD is the folder that was built in.
set -eu
build=$(cd "$1" && pwd -P)
seconds=${2:-10}
# shellcheck source=bench/display.sh
. "$(dirname "$0")/display.sh"

# Hundredths of a second that all of a process's threads have run for.
processorTime() { awk '{print $14 + $15}' "/proc/$1/stat"; }

# Nanoseconds, and how often a thread went to sleep: what is too short for the hundredths.
nanoseconds() { cat /proc/"$1"/task/*/schedstat | awk '{sum += $1} END {printf "%d", sum}'; }
sleeps() { cat /proc/"$1"/task/*/status | awk '/^voluntary/ {sum += $2} END {printf "%d", sum}'; }

# Runs a program beside us, waits until a command succeeds and takes its time from then on.
measure()
{
    local name=$1 program=$2
    local ticks ns naps pid
    keepHouse "$program"
    pid=${housekeepers[-1]}
    waitFor "${program##*/}" "${@:3}"
    sleep 1
    ticks=$(processorTime "$pid") ns=$(nanoseconds "$pid") naps=$(sleeps "$pid")
    sleep "$seconds"
    printf '%-14s %14d %18.3f %8d\n' "$name" $((($(processorTime "$pid") - ticks) * 10)) \
        "$(awk -v ns=$(($(nanoseconds "$pid") - ns)) 'BEGIN {print ns / 1e6}')" \
        $(($(sleeps "$pid") - naps))
    kill "$pid"
    wait "$pid" 2> /dev/null || true
    unset 'housekeepers[-1]'
}

menuShown() { "$build/bench/until_pixel" "${menuPixel[@]}"; }
turnSaid() { grep -q STATE_TURN "$scratch/persons_turn.log"; }

printf '%-14s %14s %18s %8s\n' "$seconds s of" "utime+stime ms" "scheduled ms" sleeps
measure "floor" "$build/bench/start_floor" menuShown
measure "main menu" "$build/gravelon" menuShown
measure "STATE_TURN" "$build/bench/persons_turn" turnSaid
