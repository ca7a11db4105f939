#!/usr/bin/env bash
# The tool in the terminal, by scripts on its standard input.
# shellcheck source=tests/e2e/lines.sh
source "$(dirname "${BASH_SOURCE[0]}")/lines.sh"

identity() { stat -c 'inode %i, %h links, %s bytes, mode %a' "$1"; }

A_document_that_the_desktop_passes_is_left_alone() {
    make_map valley.map 2980 4666
    arguments=(valley.map "file://$PWD/valley.map" missing.map)
    play 'File/Quit'
    expect_bytes valley.map
}

A_load_alone_changes_nothing() {
    local state time_before
    for state in 4666 0 -559038737; do
        make_map valley.map 2980 "$state"
        time_before=$(stat -c %y valley.map)
        play 'Load Map' valley.map 'File/Quit'
        expect_bytes valley.map
        [[ $(stat -c %y valley.map) == "$time_before" ]] || fail "the time of the file has changed"
    done
}

Only_the_twelve_bytes_change() {
    local size before
    for size in 2980 1048576; do
        make_map valley.map "$size" 4666
        chmod 640 valley.map
        ln -f valley.map link.map
        before=$(identity valley.map)

        play 'Load Map' valley.map 'Null BSP' '' 'File/Quit'
        nulled expected
        expect_bytes valley.map
        play 'Load Map' valley.map 'Un-do Null' '' 'Null BSP' '' 'Un-do Null' ''
        restored expected
        expect_bytes valley.map
        expect_said 2 'BSP Un-Nulled.'
        [[ $(identity valley.map) == "$before" ]] || fail "was $before; is $(identity valley.map)"
    done
}

Any_state_but_4666_counts_as_nulled() {
    local state
    for state in 0 -1 4665 -559038737; do
        make_map valley.map 5000 "$state"
        play 'Load Map' valley.map 'Null BSP'
        expect_said 1 "Null BSP can't be used now."
        expect_bytes valley.map
        play 'Load Map' valley.map 'Un-do Null' ''
        restored expected
        expect_bytes valley.map
    done
}

A_map_is_nulled_once() {
    make_map valley.map 2980 4666
    play 'Load Map' valley.map 'Null BSP' '' 'Null BSP'
    expect_said 1 'BSP Nulled.'
    expect_said 1 "Null BSP can't be used now."
}

Two_loads_enable_both_buttons_on_the_later_file() {
    make_map hill.map 2980 0
    mv expected hill_expected
    make_map valley.map 2980 4666
    play 'Load Map' valley.map 'Load Map' hill.map 'Null BSP' ''
    nulled hill_expected
    expect_bytes valley.map
    expect_bytes hill.map hill_expected
}

A_map_of_more_than_4_GiB_is_written_in_place() {
    local size=$((4 * 1024 ** 3 + 12345)) blocks
    make_map great.map 1048576 4666
    truncate -s "$size" great.map || skip "the file system has no room for it"
    printf 'the end' | dd of=great.map bs=1 seek=$((size - 7)) conv=notrunc status=none
    blocks=$(stat -c %b great.map)
    play 'Load Map' great.map 'Null BSP' ''
    nulled expected
    cmp -n 1048576 great.map expected || fail "the beginning has other bytes"
    [[ $(tail -c 7 great.map) == 'the end' ]] || fail "the end has other bytes"
    [[ $(stat -c '%s %b' great.map) == "$size $blocks" ]] || fail "another length, or no longer sparse"
}

A_short_file_is_told_once_and_extended() {
    local size
    for size in 0 100 2952 2955 2979; do
        make_map short.map "$size" 0
        # Where nothing is told, the empty line means nothing.
        play 'Load Map' short.map '' 'Un-do Null' ''
        [[ $(grep -c '^short.map could not be read' said) -eq $((size < 2956)) ]] || fail "$size bytes: told otherwise"
        restored expected
        expect_bytes short.map
    done
}

Any_name_reaches_its_file() {
    local name
    for name in 'two words.map' ' blanks .map' 'Grüße.map' '地図.map' $'M\xfcnchen.map' $'bell\a.map' '-dash.map' \
        '~.map' '&file.map' 1 "$(printf 'long%.0s' {1..60}).map"; do
        make_map "$name" 2980 4666
        play 'Load Map' "$name" 'Null BSP' ''
        nulled expected
        expect_bytes "$name"
    done
}

What_is_no_file_is_refused_and_asked_again() {
    mkdir folder.map
    mkfifo pipe.map
    make_map valley.map 2980 4666
    play 'Load Map' missing.map folder.map pipe.map /dev/null valley.map/x valley.map 'Null BSP' ''
    expect_said 1 "$PWD/missing.map can't be chosen: No such file or directory"
    expect_said 1 "$PWD/folder.map can't be chosen: Is a directory"
    expect_said 1 "$PWD/pipe.map can't be chosen: Not a regular file"
    expect_said 1 "/dev/null can't be chosen: Not a regular file"
    expect_said 1 "$PWD/valley.map/x can't be chosen: Not a directory"
    nulled expected
    expect_bytes valley.map
}

A_file_that_may_not_be_opened_is_told_once() {
    # Nothing is forbidden to root, and others may not reach the tool where it was built.
    if [[ $EUID -eq 0 ]]; then
        as_the_person=(setpriv --reuid=65534 --regid=65534 --clear-groups)
        "${as_the_person[@]}" true || skip "can't be anybody but root here"
        cp "$tool" "$(dirname "$tool")/libtavrikframework.so" .
        tool=./$(basename "$tool")
        chmod 755 .
    fi
    make_map valley.map 2980 4666
    cp valley.map secret.map
    cp valley.map fixed.map
    chmod 666 valley.map
    chmod 000 secret.map
    chmod 444 fixed.map
    play 'Load Map' fixed.map '' 'Load Map' secret.map '' 'Null BSP' 'Load Map' valley.map 'Null BSP' ''
    expect_said 1 'fixed.map could not be opened for writing: Permission denied'
    expect_said 1 'secret.map could not be opened for writing: Permission denied'
    expect_said 1 "Null BSP can't be used now."
    chmod 600 secret.map
    expect_bytes secret.map
    expect_bytes fixed.map
    nulled expected
    expect_bytes valley.map
}

A_cancelled_dialog_is_silent_and_keeps_the_map() {
    make_map valley.map 2980 4666
    play 'Load Map' '' 'Load Map' valley.map 'Load Map' '' 'Null BSP' ''
    expect_said 1 'Buttons: OK (default)'
    nulled expected
    expect_bytes valley.map
}

The_end_of_the_input_quits_wherever_it_comes() {
    make_map valley.map 2980 4666
    play
    play 'Load Map'
    play 'Load Map' valley.map
    expect_bytes valley.map
    play 'Load Map' valley.map 'Null BSP'
    nulled expected
    expect_bytes valley.map
}

What_is_told_is_in_the_file_even_if_the_tool_is_killed() {
    local line program
    make_map valley.map 2980 4666
    coproc running { exec "${in_the_terminal[@]}" "$tool" 2>errors; }
    program=$!
    printf '%s\n' 'Load Map' valley.map 'Null BSP' >&"${running[1]}"
    while read -r -t "$limit_s" line && [[ $line != 'BSP Nulled.' ]]; do :; done <&"${running[0]}"
    kill -KILL "$program"
    [[ $line == 'BSP Nulled.' ]] || fail "the box never came"
    nulled expected
    expect_bytes valley.map
}

"$2"
