#!/usr/bin/env bash
# How much of the plug-in's code its tests run, for each file and in all: lines, then branches.
#   scripts/coverage.sh [ctest arguments...]
# Builds in build/coverage. Branches that only an exception takes are left out: the plug-in's own
# code throws none.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh

report() {
    nice gcovr --root . --filter 'src/USSDUIPlugin/' --exclude '.*moc_.*' \
        --exclude-throw-branches --exclude-unreachable-branches "$@" build/coverage/src/USSDUIPlugin
}

install_missing_packages run test check
say "Building preset coverage; the first time this takes some minutes."
configure_and_build coverage tests_plugin
find build/coverage -name '*.gcda' -delete # counts of an earlier run
nice ctest --preset coverage -L '^plugin$' "$@"
report
report --branches
