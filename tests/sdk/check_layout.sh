#!/bin/sh
# check_layout.sh COMPILER BITS SOURCE INCLUDE: the records are laid out as both sides expect.
set -eu
"$1" -m"$2" -DEXPECTED_BITS="$2" -Wall -Wextra -Werror -fsyntax-only -I"$4" "$3"
