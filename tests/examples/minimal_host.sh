#!/usr/bin/env bash
# Tests that the minimal host sends a code through the plug-in's window and reports errors.
#   minimal_host.sh PROGRAM
set -u
program=$1
bad=0

complain() {
    printf '%s\n' "$*" >&2
    bad=1
}

# expect STATUS PATTERN ARGUMENT...: runs the program. Checks its exit status, and that a line of
# its output matches the pattern.
expect() {
    local status=$1 pattern=$2 output
    shift 2
    output=$("$program" "$@" 2>&1)
    local got=$?
    [ "$got" -eq "$status" ] || complain "$*: status $got, not $status"
    printf '%s\n' "$output" | grep -qE -- "$pattern" || complain "$*: no '$pattern' in: $(printf '%s\n' "$output" | tail -n 5)"
}

expect 0 '^Received: Your balance is 7\.00' --once '*100#'
expect 0 '^Received: There is no reply\.' --once '*198#'
expect 1 '^minimal-host: usage: ' --once
expect 1 '^minimal-host: usage: ' one two
expect 1 '^minimal-host: .*missing\.so: ' --once '*100#' "$PWD/missing.so"
expect 1 '^minimal-host: .*minimal_host\.sh: .' --once '*100#' "$0"
exit $bad
