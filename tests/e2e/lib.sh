#!/usr/bin/env bash
# What the scenarios share. A script is called with the tool and the name of a scenario, which runs in a folder of its
# own.
set -euo pipefail

tool=$1
limit_s=20

scratch=$(mktemp -d)
tidy_up() { rm -rf "$scratch"; }
trap tidy_up EXIT
cd "$scratch"

fail() {
    printf '%s\n' "$1" >&2
    tail -n 40 said errors >&2 2>/dev/null || true
    exit 1
}

skip() {
    printf 'skipped: %s\n' "$1"
    exit 77
}

[[ -x $tool ]] || fail "no tool $tool"

# holds_within SECONDS COMMAND...: looks again and again until the command succeeds.
holds_within() {
    local deadline=$((SECONDS + $1))
    until "${@:2}"; do
        ((SECONDS < deadline)) || return 1
        sleep 0.05
    done
}
wait_until() { holds_within "$limit_s" "$@" || fail "not within $limit_s seconds: $*"; }

# put_field FILE OFFSET VALUE: as a little-endian Int32.
put_field() {
    local shift bytes=
    for shift in 0 8 16 24; do bytes+=$(printf '\\x%02x' $(($3 >> shift & 255))); done
    printf '%b' "$bytes" | dd of="./$1" bs=1 seek="$2" conv=notrunc status=none
}

nulled() {
    put_field "$1" 2320 0
    put_field "$1" 2952 0
    put_field "$1" 2976 -1
}

restored() {
    put_field "$1" 2320 5503
    put_field "$1" 2952 4666
    put_field "$1" 2976 13221
}

# make_map FILE SIZE STATE: random bytes, with a copy of them in `expected`. The time of the file is long past.
make_map() {
    head -c "$2" /dev/urandom >"./$1"
    if (($2 >= 2956)); then put_field "$1" 2952 "$3"; fi
    cp "./$1" expected
    touch -d 2001-02-03 "./$1"
}

expect_bytes() { cmp "./$1" "${2-expected}" || fail "$1 has other bytes than ${2-expected}"; }
