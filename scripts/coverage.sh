#!/usr/bin/env bash
# Prints which lines and branches of the plug-in are executed by its tests, per file and in total:
#     scripts/coverage.sh [ctest arguments...]
# The build folder is build/coverage. Exception branches are excluded, because the plug-in's own
# code does not throw exceptions.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh

report() {
    nice gcovr --root . --filter 'src/USSDUIPlugin/' --exclude '.*moc_.*' \
        --exclude-throw-branches --exclude-unreachable-branches "$@" build/coverage/src/USSDUIPlugin
}

install_missing_packages run qt5 test test-qt5 check
say "Building preset coverage; the first time this takes some minutes."
configure_and_build coverage tests_plugin
find build/coverage -name '*.gcda' -delete # execution counts of the previous run
nice ctest --preset coverage -L '^plugin$' "$@"
report
report --branches
