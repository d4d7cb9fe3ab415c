#!/usr/bin/env bash
# frame_time.sh BUILD [OPTION...]: frame_bench on a virtual display; BUILD is the folder that was
# built in.
set -eu
build=$(cd "$1" && pwd -P)
# shellcheck source=bench/display.sh
. "$(dirname "$0")/display.sh"
"$build/bench/frame_bench" "${@:2}"
