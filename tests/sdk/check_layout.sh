#!/bin/sh
# check_layout.sh COMPILER BITS HEADER: tests that the static assertions in tksv.h about the layout
# of the records hold, and that a record with a different layout does not compile.
set -eu
compiler=$1
bits=$2
header=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Compilers for processors other than x86 do not support the -m option.
case $("$compiler" -dumpmachine) in
x86_64* | i?86*) machine=-m$bits ;;
*) machine= ;;
esac

compiles() {
    "$compiler" $machine -std=c11 -Wall -Wextra -Werror -fsyntax-only -x c "$1"
}

{
    echo "_Static_assert(sizeof(void *) * 8 == $bits, \"pointer size\");"
    cat "$header"
} >"$work/good.h"
compiles "$work/good.h"

# breaks EDIT: edits the header with sed, and requires that the edited header does not compile.
breaks() {
    sed "$1" "$header" >"$work/bad.h"
    if cmp -s "$header" "$work/bad.h"; then
        echo "$1 changes nothing"
        exit 1
    fi
    if compiles "$work/bad.h" 2>"$work/errors"; then
        echo "a header with $1 still compiles"
        exit 1
    fi
    grep -q 'static assertion failed' "$work/errors" || { cat "$work/errors"; exit 1; }
}

breaks 's/TKSV_USSD_MAX_UNITS 184/TKSV_USSD_MAX_UNITS 183/'
breaks 's/unsigned int length;/unsigned short length;/'
breaks 's/int reserved;/short reserved[3];/'
breaks 's/reserved0\[16\]/reserved0[12]/'
breaks 's/reserved1\[64\]/reserved1[72]/'
breaks 's/^    const unsigned short \*number;/& int more;/'
breaks 's/^    int status;/    int more; int status;/'
