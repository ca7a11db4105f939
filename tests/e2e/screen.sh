#!/usr/bin/env bash
# The tool in a window, by mouse and keyboard.
# shellcheck source=tests/e2e/display.sh
source "$(dirname "${BASH_SOURCE[0]}")/display.sh"

start_tool() {
    start maptool
    wait_until has_its_size
}

height_of() { xdotool getwindowgeometry --shell "$1" | sed -n 's/^HEIGHT=//p'; }
has_its_size() { [[ $(height_of "$window") -gt 119 ]]; }
dialog_is_in_front() { is_in_front Open; }
box_is_in_front() { ! window_is_in_front && is_in_front maptool; }

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
