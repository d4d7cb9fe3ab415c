# shellcheck shell=bash
# To be sourced. Which of Debian's packages the game, its tests and its virtual display need, and
# how those that are missing get onto the machine. Names are those of Debian 12.
# shellcheck disable=SC2034  # the lists are read by the scripts that source this file

# Compiles and links the game.
BUILD_PACKAGES=(
    g++ make cmake
    freeglut3-dev libgl-dev libglu1-mesa-dev libjpeg-dev libx11-dev libxrandr-dev
)

# Makes a package of it.
PACKAGE_PACKAGES=(dpkg-dev file gzip)

# Shows its window: Mesa's drivers, and xdpyinfo and xprop, which tell whether a display will do.
RUN_PACKAGES=(libgl1-mesa-dri x11-utils)

# A display that is nothing but memory, with a window manager to make windows full-screen.
DISPLAY_PACKAGES=(xvfb xauth openbox)

# Brings that display into a browser.
BROWSER_PACKAGES=(x11vnc novnc websockify)

# Everything else that the check runs: a second compiler with its sanitizers (and llvm for the names
# in what they report), the linters, the libraries of tests, benchmarks and the painter, the hands
# and eyes of the window tests, and what reads a package's descriptions.
CHECK_PACKAGES=(
    clang libclang-rt-14-dev llvm clang-format clang-tidy shellcheck
    pkg-config libcairo2-dev libgtest-dev libbenchmark-dev
    xdotool imagemagick procps
    desktop-file-utils appstream
)

mayInstall=yes # --no-install says no
listsFresh=no  # one look at the archive is enough for a run
declare -A told=() # packages that somebody without apt-get has heard of

# Whether this system installs with Debian's tools.
hasPackages()
{
    command -v dpkg-query > /dev/null && command -v apt-get > /dev/null
}

# Prints those of the given packages that are not installed, one a line.
missingPackages()
{
    local package
    for package in "$@"; do
        if ! dpkg-query -W -f '${db:Status-Status}\n' "$package" 2> /dev/null | grep -qx installed; then
            echo "$package"
        fi
    done
}

# Runs a command as root: at once if we are, else through sudo, which may ask for a password.
asRoot()
{
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo -- "$@"
    fi
}

# What a person is told who can't or doesn't want to install.
tellWhatToInstall()
{
    cat >&2 << MESSAGE
$1
These packages of Debian are missing. Please have them installed, then start this again:

    apt-get install --no-install-recommends ${*:2}

MESSAGE
}

# What a person is told who has no apt-get, each package once.
tellDebianNames()
{
    local package
    local news=()
    for package in "$@"; do
        [ -n "${told[$package]:-}" ] || news+=("$package")
        told[$package]=yes
    done
    if [ ${#news[@]} -gt 0 ]; then
        echo "This system has no apt-get: going on in the hope that all that is needed is there."
        echo "That is, by Debian's names: ${news[*]}"
    fi
}

# Installs those of the given packages that are missing and says so first. Ends the script when that
# can't be done. On a system without Debian's packages it goes on and leaves the rest to the build.
requirePackages()
{
    if ! hasPackages; then
        tellDebianNames "$@"
        return
    fi

    local missing
    mapfile -t missing < <(missingPackages "$@")
    if [ ${#missing[@]} -eq 0 ]; then
        return
    fi
    if [ "$mayInstall" = no ]; then
        echo "Missing, and not to be installed: ${missing[*]}"
        return
    fi
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo > /dev/null; then
        tellWhatToInstall "You are not root, and there is no sudo." "${missing[@]}"
        exit 1
    fi

    echo "Installing with apt-get, and what they depend on: ${missing[*]}"
    if [ "$(id -u)" -ne 0 ]; then
        echo "That takes root's rights: sudo may ask for your password."
    fi
    if ! asRoot true || ! installPackages "${missing[@]}"; then
        tellWhatToInstall "They could not be installed." "${missing[@]}"
        exit 1
    fi
}

# Lists that can't be brought up to date may still do, so only the installation itself must succeed.
# The lock is waited for: another installation may be under way on a machine just started.
installPackages()
{
    local aptGet=(asRoot env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300)
    if [ "$listsFresh" = no ]; then
        "${aptGet[@]}" -qq update < /dev/null || echo "Going on with the package lists at hand."
        listsFresh=yes
    fi
    # A person likes to see it move; a log is better off without.
    if [ -t 1 ]; then
        "${aptGet[@]}" -q install -y --no-install-recommends "$@" < /dev/null
    else
        "${aptGet[@]}" -qq install -y --no-install-recommends "$@" < /dev/null > /dev/null
    fi
}
