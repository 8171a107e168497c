#!/bin/sh
# check_header.sh C-COMPILER C++-COMPILER HEADER...: tests that each header compiles on its own with
# several C and C++ standards.
set -eu
c=$1
cxx=$2
shift 2
for header in "$@"; do
    for standard in c89 c99 c11; do
        "$c" -std=$standard -pedantic-errors -Wall -Wextra -Werror -fsyntax-only -x c "$header"
    done
    for standard in c++98 c++14 c++20; do
        "$cxx" -std=$standard -pedantic-errors -Wall -Wextra -Werror -fsyntax-only -x c++ "$header"
    done
done
