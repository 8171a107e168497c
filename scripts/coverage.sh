#!/usr/bin/env bash
# Prints which lines and branches of the plug-in its tests execute, for each file and in total:
#   scripts/coverage.sh [ctest arguments...]
# Builds in build/coverage. Branches for exceptions are excluded, because the plug-in's own code throws
# none.
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
find build/coverage -name '*.gcda' -delete # the counters of an earlier run
nice ctest --preset coverage -L '^plugin$' "$@"
report
report --branches
