#!/bin/sh
# check_exit.sh PROGRAM MODE: tests that the program ends with the exit status that it passes to
# exit().
code=0
"$1" "$2" || code=$?
if [ "$code" -ne 42 ]; then
    echo "exits_midway $2: expected exit code 42, found $code"
    exit 1
fi
