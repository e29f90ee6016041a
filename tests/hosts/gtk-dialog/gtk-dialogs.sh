# shellcheck shell=bash
# Shared code of tests with colour dialogs of programs made with GTK 3. Source it with these variables set:
# `program`, `libraries`: our folder of libraries, and `places`: the module that writes where widgets are.
: "${libraries:?our libraries}" "${places:?the module}"
# shellcheck disable=SC2034  # for programs of Qt
plugins=none
# shellcheck source=../../dialogs/dialogs.sh
. "$(dirname "${BASH_SOURCE[0]}")/../../dialogs/dialogs.sh"
need "$program"
open_display
export VANTOREL_PLACES="$scratch/heard" NO_AT_BRIDGE=1 GSETTINGS_BACKEND=memory GTK_THEME=Adwaita
# GTK needs the machine's icons and schemas.
export XDG_DATA_DIRS=/usr/share
title=Trial
module=$libraries/gtk3/modules/libvantorel.so

# ask OPTION...: starts the program with its colour dialog, whose result goes to a file. `language` is its locale.
ask() {
    rm -f "$scratch/heard"
    env ${language:+"LC_ALL=$language"} GTK_MODULES="$module:$places" "$program" "$@" --title="$title" > "$scratch/chosen" 2> "$scratch/errors.log" &
    program_id=$!
    await_dialog "$title"
}
find_window() {
    window=$(xdotool search --onlyvisible --name "^$1$" 2> "$scratch/search.log" | head -n 1)
    [ -n "$window" ]
}
# await_dialog TITLE
await_dialog() {
    # xdotool itself would look for it only twice a second.
    eventually find_window "$1" || eventually find_window "$1" || fail "no dialog opened"
    eventually test -s "$scratch/heard" || fail "the dialog was not shown"
}
# chosen STATUS COLOR WHY: waits for the end of the program, which prints the colour and nothing else.
chosen() {
    local status=0
    wait "$program_id" || status=$?
    [ "$status" = "$1" ] || fail "$3: $program ended with status $status"
    [ ! -s "$scratch/errors.log" ] || fail "$3: something was printed"
    local printed
    printed=$(cat "$scratch/chosen")
    [ "$printed" = "$2" ] || fail "$3: $program printed \"$printed\", not \"$2\""
}
is_shown() { place "$1"; [ -n "$x" ]; }
# Whether two reports in a row say the same.
is_steady() {
    local before
    before=$(cat "$scratch/heard")
    is_next() { ! grep -qxF "$(grep '^report ' <<< "$before")" "$scratch/heard"; }
    eventually is_next && [ "$(grep -v '^report ' <<< "$before")" = "$(grep -v '^report ' "$scratch/heard")" ]
}
# press NAME: clicks on a widget when the dialog has its final layout.
press() {
    eventually is_shown "$1" || fail "there is no $1 in the dialog: $(cat "$scratch/heard")"
    eventually is_steady || fail "the dialog changes all the time"
    click "$1"
}
expect_page() {
    eventually is_shown _fullHexText || fail "the page is not in the dialog: $(cat "$scratch/heard")"
    eventually is_steady || fail "the dialog changes all the time"
}
type_into() { click "$1"; xdotool click --repeat 2 1 key ctrl+a type "$2"; }
drag_in_slider() {
    point_at _hexColorsView-area 100 200
    xdotool mousedown 1
    for row in 300 400 500 600 700; do point_at _hexColorsView-area 100 $row; sleep 0.05; done
    xdotool mouseup 1
}
view_color() { color_at _hexColorsView-area "$1" "$2"; }
is_repainted() { [ "$(view_color "${1:-600}" 450)" != "$old_color" ]; }
# show_mode MODE: shows the Palette or the Wheel.
show_mode() {
    old_color=$(view_color 600 450)
    click "${1}ViewModeButton"
    eventually is_repainted || fail "the button $1 shows nothing new"
}

# A copy of our libraries in which a test can damage something.
copy=$scratch/vantorel
# shellcheck disable=SC2034  # for the tests
page=$copy/pickers/QTXHexColorPicker.so
# shellcheck disable=SC2034
library=$copy/dialogs/gtk3.so
renew() {
    rm -rf "$copy"
    mkdir -p "$copy/pickers" "$copy/dialogs" "$copy/gtk3/modules"
    cp -r "$libraries/pickers/QTXHexColorPicker."* "$copy/pickers"
    cp "$libraries/dialogs/gtk3.so" "$copy/dialogs"
    cp "$libraries/gtk3/modules/libvantorel.so" "$copy/gtk3/modules"
    chmod -R go-w "$copy"
}
# size_of_dialog OPTION...: opens the dialog and prints its size.
size_of_dialog() {
    ask "$@"
    xdotool getwindowgeometry "$window" | sed -n 's/ *Geometry: //p'
    kill -TERM "$program_id"
    wait "$program_id" || true
    [ ! -s "$scratch/errors.log" ] || fail "something was printed"
}
# expect_bare WHY STARTS OPTION...: the dialog is as it is without us, whose size is in `bare`, at each start.
expect_bare() {
    local why=$1 starts=$2 found
    : "${bare:?}"
    shift 2
    for _ in $(seq "$starts"); do
        found=$(size_of_dialog "$@")
        [ "$found" = "$bare" ] || fail "$why: the dialog is $found, not $bare"
    done
}
