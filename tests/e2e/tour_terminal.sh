#!/usr/bin/env bash
# The tour in the terminal.
# shellcheck source=tests/e2e/lines.sh
source "$(dirname "${BASH_SOURCE[0]}")/lines.sh"

A_tab_shows_its_page_alone() {
    play Containers 'File/Next Page' 'File/Quit'
    expect_said 1 '2. Containers: shown'
    expect_said 1 '4. Apples: 0'
    expect_said 1 '3. Dialogs: shown'
    expect_said 1 '5. Message...'
}

Each_container_counts_for_itself() {
    play Containers 'Apples: 0' 'Apples: 1' 'Pears: 0'
    expect_said 1 '5. Pears: 1'
    expect_said 2 '4. Apples: 2'
}

A_pressed_canvas_and_its_menu_answer() {
    play Board 'menu Board' Green 'menu Board' ''
    expect_said 3 'Tour: 186, 92'
    expect_said 2 '2. Green'
}

A_question_counts_when_it_is_accepted() {
    play Containers 'Apples: 0' Dialogs 'Start Over...' Cancel Containers Dialogs 'Start Over...' OK Containers
    expect_said 2 'Set both counters to 0?'
    expect_said 2 '4. Apples: 1'
    expect_said 2 '4. Apples: 0'
}

A_message_tells_its_answer() {
    play Dialogs Message... Cancel Cancelled ''
    expect_said 1 '5. Cancelled'
    expect_said 1 '5. Fine'
}

Each_document_has_a_window() {
    touch hill.map valley.map
    arguments=(hill.map valley.map)
    play Board
    expect_said 1 'valley.map: 186, 92'
}

"$2"
