#!/usr/bin/env bash
# Each package of packages.txt exists: it is installed here, where all is built and tested.
. "$(dirname "$0")/common.sh"

declare -A seen
while read -r package rest; do
    case "$package" in
    '' | '#'*) continue ;;
    esac
    [ -z "$rest" ] || complain "packages.txt: more than one name in a line: $package $rest"
    [ -z "${seen[$package]:-}" ] || complain "packages.txt: $package stands there twice"
    seen[$package]=1
    state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)
    [ "$state" = installed ] || complain "packages.txt: $package is not installed"
done <packages.txt
finish
