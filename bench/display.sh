# shellcheck shell=bash
# To be sourced from here. A virtual display of our own, a folder with the pictures, and the place
# where the main menu shows.

bench=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
checkout=${bench%/*}
# shellcheck source=packaging/virtual_display.sh
. "$checkout/packaging/virtual_display.sh"

# A pixel of the button "Start" on the display of 1280 by 1024, and the grey it then has.
# shellcheck disable=SC2034  # for those who source this
menuPixel=(492 737 B2B2B2)

useScratchFolder
startVirtualDisplay "$checkout/packaging/openbox.xml"
mkdir "$scratch/game"
ln -s "$checkout"/data/*.dat "$scratch/game/"
cd "$scratch/game" || exit 1
