#!/usr/bin/env bash
# Checks that all manual pages can be formatted without warnings.
. "$(dirname "$0")/common.sh"

while IFS= read -r page; do
    warnings=$(MANWIDTH=80 man --warnings -E UTF-8 -Tutf8 -Z -l "$page" 2>&1 >/dev/null)
    [ -z "$warnings" ] || complain "$page: $warnings"
    grep -q '^\.SH NAME' "$page" || complain "$page: has no NAME section"
done < <(find man -type f -name '*.[1-8]' 2>/dev/null | sort)
finish
