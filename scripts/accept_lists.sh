#!/usr/bin/env bash
# Accepts the current output of the test dashboard_screen_reader: replaces the expected lists in
# tests/dashboard/screen_reader with lists of what a screen reader finds now. Review the differences
# before you commit them.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh

install_missing_packages run test
configure_and_build default dashboard_screen_reader
USSD_ACCEPT_LISTS=1 ctest --preset default -R '^dashboard_screen_reader$' --output-on-failure
git diff --stat tests/dashboard/screen_reader
