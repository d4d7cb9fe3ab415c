#!/usr/bin/env bash
# start_time.sh BUILD [PAIRS]: the time from the start of the program to its main menu beside that of
# its floor, each started by turns; BUILD is the folder that was built in.
set -eu
build=$(cd "$1" && pwd -P)
pairs=${2:-15}
# shellcheck source=bench/display.sh
. "$(dirname "$0")/display.sh"

timeOf() { "$build/bench/until_pixel" "${menuPixel[@]}" "$@"; }

# Median of a column of numbers.
median() { cut -d ' ' -f "$2" "$1" | sort -n | awk '{v[NR] = $1} END {print v[int((NR + 1) / 2)]}'; }

ratio() { awk -v a="$1" -v b="$2" 'BEGIN {printf "%.2f", a / b}'; }

# The first of each has the files read from the disk.
timeOf "$build/gravelon" > /dev/null
timeOf "$build/bench/start_floor" > /dev/null
for ((pair = 0; pair < pairs; pair++)); do
    timeOf "$build/gravelon" >> "$scratch/start"
    timeOf "$build/bench/start_floor" >> "$scratch/floor"
done

printf '%-22s %10s %10s %12s\n' "medians of $pairs starts" game floor "times floor"
for column in 1 2; do
    name=$([ $column = 1 ] && echo "passed, ms" || echo "processor, ms")
    game=$(median "$scratch/start" $column)
    floor=$(median "$scratch/floor" $column)
    printf '%-22s %10s %10s %12s\n' "$name" "$game" "$floor" "$(ratio "$game" "$floor")"
done
