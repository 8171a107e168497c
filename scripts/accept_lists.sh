#!/usr/bin/env bash
# Accepts what a screen reader finds in the dashboard: replaces the lists in
# tests/dashboard/screen_reader with which the test dashboard_screen_reader compares. Read the
# differences before you commit them.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh

install_missing_packages run test
configure_and_build default dashboard_screen_reader
USSD_ACCEPT_LISTS=1 ctest --preset default -R '^dashboard_screen_reader$' --output-on-failure
git diff --stat tests/dashboard/screen_reader
