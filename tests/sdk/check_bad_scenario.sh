#!/bin/sh
# check_bad_scenario.sh PROGRAM: tests that an error in the scenario file in $TKSV_SCENARIO is
# reported only once, and that no device can be used in this case.
set -eu
file=bad.scenario
printf '[Network]\nOperator=x\nIMSI=12\n' >"$file"
expect="bad.scenario:3: IMSI: expected 6 to 15 digits, found \"12\""
said=$(TKSV_SCENARIO=$file "$1" info 2>&1 >out)
test "$said" = "$expect" || { echo "expected: $expect"; echo "found: $said"; exit 1; }
test "$(cat out)" = "state 0 request refused" || { cat out; exit 1; }
