#!/bin/sh
# check_initial_device.sh PROGRAM SCENARIO: tests that the simulator is used only if it has been
# selected.
set -eu
program=$1
scenario=$2
unset TKSV_BACKEND TKSV_SCENARIO

expect() { # DEVICE [VARIABLE=VALUE]...
    wanted=$1
    shift
    found=$(env "$@" "$program" 2>&1)
    [ "$found" = "$wanted" ] || {
        echo "$*: $found instead of $wanted" >&2
        exit 1
    }
}

expect modem
expect modem TKSV_BACKEND= TKSV_SCENARIO=
expect modem TKSV_BACKEND=modemmanager "TKSV_SCENARIO=$scenario"
expect simulator TKSV_BACKEND=simulator
expect simulator "TKSV_SCENARIO=$scenario"
expect simulator TKSV_BACKEND= "TKSV_SCENARIO=$scenario"
expect "TKSV_BACKEND=other: expected simulator or modemmanager; using a modem
modem" TKSV_BACKEND=other
