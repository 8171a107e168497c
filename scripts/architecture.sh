#!/usr/bin/env bash
# Generates docs/pictures/architecture.svg from docs/architecture.dot. tests/checks/architecture.sh
# compares the arrows with the #include directives, and fails if the picture is out of date.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh

source=docs/architecture.dot
picture=docs/pictures/architecture.svg
install_missing_packages check
dot -Tsvg "$source" | sed "1a <!-- drawn from $source, SHA-1 $(sha1sum <"$source" | cut -d' ' -f1) -->" >"$picture"
