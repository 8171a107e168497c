#!/usr/bin/env bash
# Checks which version of Qt ./run selects for different sets of installed packages. A shell
# function replaces dpkg-query, and reports the packages in the given sections as installed.
. "$(dirname "$0")/common.sh"
. scripts/prepare.sh

sections=
dpkg-query() {
    # Word splitting of the section names is intended.
    # shellcheck disable=SC2086
    listed_packages $sections | sed 's/^/installed /'
}

# chooses VERSION SECTION...: requires that ./run selects this version if only the packages in these
# sections are installed.
chooses() {
    local version=$1
    shift
    sections=$*
    local got
    got=$(installed_qt)
    [ "$got" = "$version" ] || complain "with ($sections), ./run takes Qt $got instead of $version"
}

chooses 5 run qt5
chooses 5 run qt5 qt6
chooses 6 run qt6
chooses 5 run
chooses 5
finish
