#!/usr/bin/env bash
# Accepts the current output of a test: replaces the expected files in the source tree.
#     scripts/accept.sh lists      what a screen reader finds, of the test dashboard_screen_reader
#     scripts/accept.sh pictures   the appearance of the dashboard, of the test dashboard_pictures
# Review the differences before you commit them.
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
