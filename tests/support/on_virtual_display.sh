#!/usr/bin/env bash
# Runs a command on a virtual display of its own, with a window manager, and passes on its status.
# So tests never open windows on the display of a person at work, nor on each other's.
set -eu
unset CDPATH
packaging=$(cd "$(dirname "$0")/../../packaging" && pwd -P)
# shellcheck source=packaging/virtual_display.sh
. "$packaging/virtual_display.sh"

useScratchFolder
startVirtualDisplay "$packaging/openbox.xml"
setpriv --pdeathsig TERM "$@" &
housekeepers+=($!)
wait $!
