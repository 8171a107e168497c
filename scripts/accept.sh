#!/usr/bin/env bash
# Replaces the expected results of a test in the source tree with the current results:
#     scripts/accept.sh lists      the lists of widgets of dashboard_screen_reader
#     scripts/accept.sh pictures   the reference pictures of dashboard_pictures
# Review the differences before you commit the new files.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh

case ${1:-} in
lists) test=dashboard_screen_reader variable=USSD_ACCEPT_LISTS folder=screen_reader ;;
pictures) test=dashboard_pictures variable=USSD_ACCEPT_PICTURES folder=pictures ;;
*)
    say "Usage: $0 lists|pictures"
    exit 2
    ;;
esac

install_missing_packages run qt5 test test-qt5
configure_and_build default "$test"
env "$variable=1" ctest --preset default -R "^$test\$" --output-on-failure
git status --short "tests/dashboard/$folder"
