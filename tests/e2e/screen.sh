#!/usr/bin/env bash
# The tool in a window, by mouse and keyboard.
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

start_tool() {
    start_display
    "$tool" </dev/null >said 2>>errors &
    program=$!
    wait_until tool_is_in_front
    window=$(focused_window)
    wait_until has_its_size
    # The first key changes the keyboard, and can get lost.
    xdotool key shift
}

focused_window() { xdotool getwindowfocus 2>/dev/null; }
name_of() { xdotool getwindowname "$1" 2>/dev/null; }
height_of() { xdotool getwindowgeometry --shell "$1" | sed -n 's/^HEIGHT=//p'; }
tool_is_in_front() { [[ $(name_of "$(focused_window)") == maptool ]]; }
has_its_size() { [[ $(height_of "$window") -gt 119 ]]; }
window_is_in_front() { [[ $(focused_window) == "$window" ]]; }
dialog_is_in_front() { [[ $(name_of "$(focused_window)") == Open ]]; }
box_is_in_front() { ! window_is_in_front && tool_is_in_front; }
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

# click LEFT TOP: in the content of the window.
click() {
    xdotool mousemove --window "$window" "$1" "$(($(height_of "$window") - 119 + $2))" click 1
}
click_load_map() { click 60 24; }
click_null_bsp() { click 145 56; }
click_undo_null() { click 145 88; }

is_open() { readlink "/proc/$program/fd/"* | grep -qFx "$1"; }
load() {
    act_until dialog_is_in_front click_load_map
    xdotool type "$1"
    press_until window_is_in_front Return
    wait_until is_open "$1"
}

expect_end() {
    local status=0
    wait "$program" || status=$?
    [[ $status -eq 0 ]] || fail "the tool ended with status $status"
}

The_window_has_its_name_and_one_size() {
    start_tool
    local hints
    hints=$(xprop -id "$window" WM_NORMAL_HINTS)
    [[ $hints =~ 'minimum size: 290 by '([0-9]+) ]] || fail "$hints"
    [[ $hints == *"maximum size: 290 by ${BASH_REMATCH[1]}"* ]] || fail "$hints"
    [[ ${BASH_REMATCH[1]} -eq $(height_of "$window") ]] || fail "$hints"
    [[ $(xprop -id "$window" WM_NAME) == *'"maptool"' ]] || fail "another name"
}

A_map_is_nulled_and_restored() {
    make_map valley.map 5000 4666
    start_tool
    load "$scratch/valley.map"
    expect_bytes valley.map

    xdotool key Tab space
    wait_until box_is_in_front
    nulled expected
    expect_bytes valley.map
    press_until window_is_in_front Return

    act_until box_is_in_front click_undo_null
    restored expected
    expect_bytes valley.map
    press_until window_is_in_front Escape
}

Escape_cancels_the_dialog_silently() {
    make_map valley.map 5000 4666
    start_tool
    load "$scratch/valley.map"
    act_until dialog_is_in_front click_load_map
    press_until window_is_in_front Escape
    act_until box_is_in_front click_null_bsp
    nulled expected
    expect_bytes valley.map
}

Ctrl_Q_quits() {
    start_tool
    press_until tool_has_ended ctrl+q
    expect_end
}

The_menu_quits_by_its_letters() {
    start_tool
    press_until tool_has_ended alt+f q
    expect_end
}

The_window_manager_closes_it() {
    start_tool
    press_until tool_has_ended alt+F4
    expect_end
}

SIGTERM_ends_an_open_dialog_too() {
    start_tool
    act_until dialog_is_in_front click_load_map
    kill -TERM "$program"
    expect_end
}

SIGTERM_quits_in_order() {
    start_tool
    kill -TERM "$program"
    expect_end
}

"$2"
