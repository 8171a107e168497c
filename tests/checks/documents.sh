#!/usr/bin/env bash
# Checks that docs/testing.md contains every test label, every script in tests/checks that is a
# test, and every preset.
. "$(dirname "$0")/common.sh"
page=docs/testing.md

# named KIND: complains about each name on standard input that the page does not contain as code.
named() {
    local name
    while IFS= read -r name; do
        grep -qE -- "\`(--preset )?$name\`" "$page" || complain "$page: does not name the $1 $name"
    done
}

labels() {
    find tests -name CMakeLists.txt -exec cat {} + | tr '\n' ' ' |
        grep -oE 'LABELS( +[a-z_]+)+' | tr ' ' '\n' | grep -vx LABELS | sort -u
}

scripts() {
    find tests/checks -name '*.sh' ! -name common.sh -exec basename {} .sh \; | sort
}

presets() {
    sed -n '/"buildPresets"/,$d; s/.*"name": "\([a-z0-9-]*\)".*/\1/p' CMakePresets.json |
        grep -vxE 'base|run.*'
}

named label < <(labels)
named check < <(scripts)
named preset < <(presets)
finish
