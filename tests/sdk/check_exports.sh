#!/bin/sh
# check_exports.sh LIBRARY HEADER...: tests that the library exports all functions that are declared
# in the headers, and no other function.
set -eu
library=$1
shift
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

nm -D --defined-only "$library" | awk '{ print $3 }' | sort -u >"$work/exported"
# In the headers, each declaration of a function starts with TKSV_API.
cat "$@" | sed -n 's/^TKSV_API long \(TKSV_[A-Za-z_]*\)(.*/\1/p' | sort -u >"$work/declared"
test -s "$work/declared"
diff "$work/declared" "$work/exported"
