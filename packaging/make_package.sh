#!/usr/bin/env bash
# Installs what is missing, builds the Debian package and says where it lies.
set -eu
unset CDPATH
umask 022 # the package's folders take it over
cd "$(dirname "$0")/.."
. packaging/dependencies.sh
. packaging/building.sh

[ "${1:-}" != --no-install ] || mayInstall=no
requirePackages "${BUILD_PACKAGES[@]}" "${PACKAGE_PACKAGES[@]}"
configureOnce play
rm -f build/play/gravelon_*.deb
buildPreset play package
ls "$PWD"/build/play/gravelon_*.deb
