#!/usr/bin/env bash
# The tour in a window, by mouse and keyboard.
# shellcheck source=tests/e2e/display.sh
source "$(dirname "${BASH_SOURCE[0]}")/display.sh"

height() { xdotool getwindowgeometry --shell "$window" | sed -n 's/^HEIGHT=//p'; }
width() { xdotool getwindowgeometry --shell "$window" | sed -n 's/^WIDTH=//p'; }
has_width() { [[ $(width) -eq $1 ]]; }
start_tour() {
    start Tour
    wait_until has_width 420
    top=$(($(height) - 260)) # above the content lie the menus
}

# In the content of the window.
move_to() { xdotool mousemove --window "$window" "$1" $((top + $2)); }
click() {
    move_to "$1" "$2"
    xdotool click "${3-1}"
}
color_at() {
    import -window "$window" -crop "1x1+$1+$((top + $2))" -depth 8 rgb:- | od -An -tx1 | tr -d ' \n'
}
has_color() { [[ $(color_at "$2" "$3") == "$1" ]]; }
title_is() { [[ $(name_of "$window") == "$1" ]]; }
asks() { is_in_front 'Set both counters to 0?'; }

apples=d6ead6
pears=faecc8

The_marker_follows_the_pointer_and_the_keys() {
    start_tour
    move_to 100 100
    move_to 124 152
    wait_until title_is 'Tour: 100, 100'
    wait_until has_color c0392b 124 152
    move_to 134 162 # from the marker itself
    wait_until title_is 'Tour: 110, 110'
    act_until canvas_has_moved_it press_canvas_and_right
}
press_canvas_and_right() {
    click 224 152
    xdotool key Right
}
canvas_has_moved_it() { title_is 'Tour: 210, 100'; }

The_contextual_menu_colours_it() {
    start_tour
    act_until is_green choose_green
}
choose_green() {
    click 124 152 3
    sleep 0.3 # nothing tells that the menu has come
    xdotool key Down Down Return
    move_to 224 152
}
is_green() { has_color 27864c 224 152; }

Pages_come_by_mouse_and_by_keys() {
    start_tour
    act_until shows_containers click 90 22
    act_until shows_canvas xdotool key alt+c
    act_until shows_containers xdotool key ctrl+g
}
shows_containers() { has_color "$apples" 30 66; }
shows_canvas() { ! shows_containers; }

Locks_hold_when_the_window_grows() {
    start_tour
    act_until shows_containers xdotool key alt+o
    has_color "$pears" 390 66 || fail "the second counter isn't there"
    xdotool windowsize "$window" 560 400
    wait_until has_color "$pears" 530 66
    has_color "$apples" 200 66 || fail "the first counter has changed"
    ! has_color "$apples" 208 66 || fail "the first counter has grown"
    xdotool windowsize "$window" 200 100
    wait_until has_width 420
}

A_question_is_answered_by_Return_and_Escape() {
    start_tour
    act_until window_shows_dialogs xdotool key alt+d
    act_until asks click 100 74
    press_until window_is_in_front Escape
    act_until asks click 100 74
    press_until window_is_in_front Return
    press_until tool_has_ended ctrl+q
    expect_end
}
window_shows_dialogs() { ! has_color e2eaf4 300 150; }

"$2"
