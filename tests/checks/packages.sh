#!/usr/bin/env bash
# Checks that packages.txt lists each package only once, and in a section that a command installs.
# Also checks that the packages that ./test requires by default are installed.
. "$(dirname "$0")/common.sh"

declare -A seen
section=
while read -r package rest; do
    case "$package" in
    '' | '#'*) continue ;;
    '[run]' | '[qt5]' | '[qt6]' | '[test]' | '[test-qt5]' | '[test-qt6]' | '[check]' | '[tidy]' \
        | '[validate]' | '[package]')
        section=$package
        continue
        ;;
    '['*)
        complain "packages.txt: $package is no section that a command takes"
        continue
        ;;
    esac
    [ -n "$section" ] || complain "packages.txt: $package stands in no section"
    [ -z "$rest" ] || complain "packages.txt: more than one name in a line: $package $rest"
    [ -z "${seen[$package]:-}" ] || complain "packages.txt: $package stands there twice"
    seen[$package]=1
    case $section in
    '[check]' | '[tidy]' | '[qt6]' | '[test-qt6]' | '[validate]' | '[package]') continue ;; # not required by ./test by default
    esac
    state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)
    [ "$state" = installed ] || complain "packages.txt: $package is not installed"
done <packages.txt
finish
