#!/usr/bin/env bash
# What the scenarios in the terminal share. The tool reads a script on its standard input.
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

in_the_terminal=(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM)
as_the_person=()
arguments=()

# play LINE...: runs the tool to the end of these lines. What it prints is in `said`.
play() {
    local status=0
    printf '%s\n' "$@" |
        "${in_the_terminal[@]}" timeout "$limit_s" "${as_the_person[@]}" "$tool" "${arguments[@]}" >said 2>errors || status=$?
    [[ $status -eq 0 ]] || fail "the tool ended with status $status"
    [[ ! -s errors ]] || fail "the tool has written to standard error"
}

# expect_said TIMES LINE
expect_said() {
    local times
    times=$(grep -cFx -- "$2" said || true)
    [[ $times -eq $1 ]] || fail "said $times times, not $1: $2"
}
