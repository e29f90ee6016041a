# shellcheck shell=bash
# Shared code of tests with colour dialogs of other programs. Source it with `program` and `plugins` set: the
# program, and the folder of plug-ins for Qt.
panel=${program:?the program}
: "${plugins:?the folder of plug-ins}"
# shellcheck source=../panel/scratch.sh
. "$(dirname "${BASH_SOURCE[0]}")/../panel/scratch.sh"
# Palettes of other programs on the machine must not affect the tests.
export XDG_DATA_DIRS="$scratch/machine" XDG_CONFIG_DIRS="$scratch/machine"
unset QT_PLUGIN_PATH QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE
export QT_QPA_GENERIC_PLUGINS=vantorel
# Qt 6.8 reports that there is no session bus.
export QT_LOGGING_RULES='qt.qpa.theme.dbus.warning=false'
# Programs of Qt 5 leak screens and settings of the desktop when they exit, without the page, too. The tests of
# the page within their own program look for leaks of ours.
export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0"

# open_display: starts a private X server.
open_display() {
    need Xvfb xdotool import
    # Without -noreset the server refuses programs for a moment whenever the last one has left.
    Xvfb -noreset -displayfd 3 -screen 0 1000x800x24 3> "$scratch/display" > "$scratch/xvfb.log" 2>&1 &
    eventually test -s "$scratch/display" || fail "the X server did not start"
    DISPLAY=":$(cat "$scratch/display")"
    export DISPLAY
}

# The lines that the program has printed, without those that say where its widgets are.
heard() { grep -Ev '^(place|shown) ' "$scratch/heard" || true; }
has_heard() { [ "$(heard | tail -n 1)" = "$1" ]; }
expect() { eventually has_heard "$1" || fail "$2: the program heard \"$(heard | tail -n 1)\", not \"$1\""; }

# place NAME: sets x, y, width and height to the place of a widget in the window.
place() { read -r x y width height < <(sed -n "s/^place $1 //p" "$scratch/heard" | tail -n 1); }
# point_at NAME X Y: moves the mouse to a place in a widget, in thousandths of its width and height.
point_at() {
    place "$1"
    [ -n "$x" ] || fail "there is no $1"
    xdotool mousemove --window "$window" $((x + width * $2 / 1000)) $((y + height * $3 / 1000))
}
click() { point_at "$1" "${2:-500}" "${3:-500}"; xdotool click 1; }
# color_at NAME X Y: prints the colour shown there, as #ffrrggbb.
color_at() {
    place "$1"
    import -window "$window" -crop "1x1+$((x + width * $2 / 1000))+$((y + height * $3 / 1000))" -depth 8 rgb:- |
        od -An -tx1 | tr -d ' \n' | sed 's/^/#ff/'
}

# start OPTION...: starts the program with the page in its dialogs.
start() {
    QT_PLUGIN_PATH="$plugins" QT_QPA_PLATFORM=xcb "$program" "$@" > "$scratch/heard" 2> "$scratch/errors.log" &
    program_id=$!
    window=$(timeout 30 xdotool search --sync --onlyvisible --name "${title:-^Trial$}" | head -n 1)
    [ -n "$window" ] || fail "no window opened"
}
# ends WHY: waits for the program's end, which must be a normal one and silent.
ends() {
    local status=0
    wait "$program_id" || status=$?
    [ "$status" = 0 ] || fail "$1: the program ended with status $status"
    # Programs of KDE print this line when they exit with Qt 6.8.
    ! grep -qv '^QThreadStorage: ' "$scratch/errors.log" || fail "$1: something was printed"
}
