#!/usr/bin/env bash
# A whole game by one hand alone, seen from outside: starts the program on a screen and a bus of its
# own, reads the board from the accessible tree, plays by the rules with nothing but keys or nothing
# but the mouse to the winner's box, leaves through the menu, and sees that the settings were kept.
#
#     tools/jugador_de_fuera.sh keyboard|mouse [computer|two] [PROGRAM]
#
# Pictures of the way go into the folder CORVANDA_CAPTURAS where that is set. Needs what
# tools/accesible.sh names.
set -u
mano=${1-} rival=${2:-computer}
case "$mano $rival" in
    "keyboard computer" | "keyboard two" | "mouse computer" | "mouse two") ;;
    *) sed -n 's/^#     //p' "$0" >&2 && exit 2 ;;
esac
cd "$(dirname "$0")/.." || exit 1
programa=$(realpath "${3:-build/release/bin/corvanda}") || exit 1
. tools/accesible.sh
abrir_todo "$mano" "$rival" "$programa" && atender || exit 1
/usr/bin/python3 tools/jugador_de_fuera.py "$mano" "$rival" "$programa"
