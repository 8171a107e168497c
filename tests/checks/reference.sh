#!/usr/bin/env bash
# Checks that Doxygen generates the reference documentation of the public headers without warnings.
# If Doxygen is not installed, the exit status is 77, which CTest reports as skipped.
. "$(dirname "$0")/common.sh"

command -v doxygen >/dev/null || exit 77
pages=$(mktemp -d) || exit 2
trap 'rm -rf "$pages"' EXIT
said=$(scripts/reference.sh "$pages" 2>&1) || complain "$said"
for page in tksv/tksv_8h.html ussd-ui-plugin/classIUIPlugin.html; do
    [ -s "$pages/$page" ] || complain "there is no page $page"
done
finish
