# shellcheck shell=sh
# To be sourced by any shell. The folder where the game of this user works: it looks for its pictures
# in the folder where it starts and writes its files there. Sets playFolder, which is empty where
# nobody says where the user is at home.

case ${XDG_DATA_HOME:-} in
/*) playFolder=$XDG_DATA_HOME/gravelon ;;
*) playFolder=${HOME:+$HOME/.local/share/gravelon} ;; # one that is not absolute doesn't count
esac

# Makes and enters the folder and links the pictures of the given one there, so that races are the
# same however the game was installed. A link is always ours to set right; a picture that is a file
# is the player's own and stays. False, with a line that says so, if the folder can't be written.
enterPlayFolder()
{
    if [ -n "$playFolder" ] && mkdir -p "$playFolder" && cd "$playFolder" && linkPictures "$1"; then
        return
    fi 2> /dev/null
    echo "gravelon: can't write to ${playFolder:-the home folder (HOME is not set)}," \
        "where the game keeps settings, courses and races." >&2
    return 1
}

linkPictures()
{
    [ -w . ] || return
    for picture in "$1"/*.dat; do
        if [ -L "${picture##*/}" ] || [ ! -e "${picture##*/}" ]; then
            ln -sfn "$picture" . || return
        fi
    done
}
