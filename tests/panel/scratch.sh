# shellcheck shell=bash
# Shared code of tests with a real window: a private home and environment. Source it with `panel` set to the
# program. `display.sh` adds an X server.
: "${panel:?the panel program}"

need() {
    for tool in "$@"; do
        command -v "$tool" > /dev/null || { echo "skipped: $tool is missing"; exit 77; }
    done
}

# The checkout stays as it is.
export PYTHONDONTWRITEBYTECODE=1
scratch=$(mktemp -d)
# Prints the processes whose home is the scratch folder. They include those that a program left running, such as
# the owner of the clipboard after `--copy`.
processes() {
    local found
    found=$(env -i PATH="$PATH" grep -lsF "HOME=$scratch" /proc/[0-9]*/environ)
    echo "${found//[!0-9$'\n']/}"
}
cleanup() {
    trap - ERR
    kill $(jobs -p) 2> /dev/null || true
    kill -CONT $(jobs -p) 2> /dev/null || true  # a stopped one ends when it goes on
    # Whoever still runs may write its files while they are removed.
    for _ in $(seq 100); do
        left=$(processes)
        [ -n "$left" ] || break
        kill $left 2> /dev/null || true
        sleep 0.1
    done
    # One that looks for leaks while it is traced never ends.
    [ -z "$left" ] || kill -KILL $left 2> /dev/null || true
    wait 2> /dev/null || true
    rm -rf "$scratch"
}
trap cleanup EXIT
# A failing command ends the test; print which.
set -E
trap 'echo "line $LINENO: $BASH_COMMAND failed" >&2' ERR
export HOME="$scratch" XDG_DATA_HOME="$scratch/data" XDG_CONFIG_HOME="$scratch/config"
export XDG_RUNTIME_DIR="$scratch"
suppressions=$(dirname "${BASH_SOURCE[0]}")/../support/leaks-of-others
export LSAN_OPTIONS="suppressions=$suppressions:print_suppressions=0"
unset DISPLAY WAYLAND_DISPLAY WAYLAND_SOCKET QT_QPA_PLATFORM
# The tests must not find a panel of the user who runs them.
export DBUS_SESSION_BUS_ADDRESS=disabled:

fail() { echo "$1" >&2; cat "$scratch"/*.log >&2; exit 1; }

# Repeats a command until it succeeds; false if it does not within ten seconds.
eventually() {
    for _ in $(seq 100); do "$@" && return; sleep 0.1; done
    return 1
}
