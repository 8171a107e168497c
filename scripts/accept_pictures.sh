#!/usr/bin/env bash
# Accepts the current appearance of the dashboard: replaces the expected pictures of the test
# dashboard_pictures in tests/dashboard/pictures. Review the new pictures before you commit them.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh

install_missing_packages run test
configure_and_build default dashboard_pictures
USSD_ACCEPT_PICTURES=1 ctest --preset default -R '^dashboard_pictures$' --output-on-failure
git status --short tests/dashboard/pictures
