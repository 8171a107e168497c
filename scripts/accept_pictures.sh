#!/usr/bin/env bash
# Accepts the current looks of the dashboard: replaces the pictures in tests/dashboard/pictures with
# which the test dashboard_pictures compares. Look at the new pictures before you commit them.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh

install_missing_packages run test
configure_and_build default dashboard_pictures
USSD_ACCEPT_PICTURES=1 ctest --preset default -R '^dashboard_pictures$' --output-on-failure
git status --short tests/dashboard/pictures
