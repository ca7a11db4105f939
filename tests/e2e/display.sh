#!/usr/bin/env bash
# What the scenarios on a screen share.
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

# Nothing of the desktop that the tests are run on: the folders that Qt remembers, the keys of the window manager.
export HOME=$scratch DBUS_SESSION_BUS_ADDRESS=disabled: LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
unset XDG_CONFIG_HOME XDG_CURRENT_DESKTOP WAYLAND_DISPLAY

server=
tidy_up() {
    # What lives on the display ends with the display's server.
    [[ -z $server ]] || kill "$server" || true
    wait
    rm -rf "$scratch"
}

start_display() {
    local number
    mkfifo display manager
    Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp -noreset 3>display 2>>errors &
    server=$!
    read -r -t "$limit_s" number <display || fail "no X server"
    export DISPLAY=:$number
    # A window that is there before the window manager is ready doesn't become the active one.
    openbox --startup "sh -c 'echo ready >$scratch/manager'" >>errors 2>&1 &
    read -r -t "$limit_s" <>manager || fail "no window manager"
}

focused_window() { xdotool getwindowfocus 2>/dev/null; }
name_of() { xdotool getwindowname "$1" 2>/dev/null; }
is_in_front() { [[ $(name_of "$(focused_window)") == "$1" ]]; }
window_is_in_front() { [[ $(focused_window) == "$window" ]]; }

# start TITLE: on a display of its own, until its window is in front.
start() {
    start_display
    "$tool" </dev/null >said 2>>errors &
    program=$!
    wait_until is_in_front "$1"
    window=$(focused_window)
    # The first key changes the keyboard, and can get lost.
    xdotool key shift
}

tool_has_ended() { ! kill -0 "$program" 2>/dev/null; }

# act_until CONDITION COMMAND...: does it again where it came to nothing, as what comes early can get lost.
act_until() {
    local attempt
    for attempt in 1 2 3 4 5; do
        "${@:2}"
        holds_within 3 "$1" && return
    done
    fail "$attempt times in vain, for $1: ${*:2}"
}
press_until() { act_until "$1" xdotool key "${@:2}"; }

expect_end() {
    local status=0
    wait "$program" || status=$?
    [[ $status -eq 0 ]] || fail "the tool ended with status $status"
}
