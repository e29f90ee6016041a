# shellcheck shell=bash
# Shared code of tests with a real window: a private X server, home and panel. Source it with `panel` set to
# the program.
# shellcheck source=scratch.sh
. "$(dirname "${BASH_SOURCE[0]}")/scratch.sh"
need Xvfb xdotool

# Without -noreset the server refuses programs for a moment whenever the last one has left.
Xvfb -noreset -displayfd 3 -screen 0 1000x800x24 3> "$scratch/display" > "$scratch/xvfb.log" 2>&1 &
eventually test -s "$scratch/display" || fail "the X server did not start"
DISPLAY=":$(cat "$scratch/display")"
export DISPLAY

# start_panel OPTION...: sets `panel_id` and `window`; the page is 260 by 340.
start_panel() {
    # Palettes of other programs on the machine must not affect the tests.
    # Shells let programs in the background ignore SIGINT.
    env --default-signal=INT XDG_DATA_DIRS="$scratch/machine" XDG_CONFIG_DIRS="$scratch/machine" \
        "$panel" --size 260x340 --print-color "$@" > "$scratch/colors" 2> "$scratch/panel.log" &
    # shellcheck disable=SC2034  # for the tests that stop it
    panel_id=$!
    window=$(timeout 30 xdotool search --sync --onlyvisible --name '^Vantorel$' | head -n 1)
    [ -n "$window" ] || fail "no window opened"
}

# Waits until the last printed colour is the given one.
color_is() { [ "$(tail -n 1 "$scratch/colors")" = "$1" ]; }
expect_color() { eventually color_is "$1" || fail "$2: $(tail -n 1 "$scratch/colors"), not $1"; }

# Prints the place in the window of a place on the page, which is below the colour, its texts and the names of
# the pages.
on_page() { echo "$((2 + $1)) $((188 + $2))"; }

# Prints the centre of column c and row r of the digit matrix. The colours view is 240 by 226 at (10, 54) of
# the page. Columns 0, 2, 4 and so on are the gaps.
cell() { on_page $((10 + 1 + (238 * (2 * $1 + 1)) / 30)) $((54 + 226 - 6 - (214 * (2 * $2 + 1)) / 32)); }
