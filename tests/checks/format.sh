#!/usr/bin/env bash
# Checks that all C++ files are formatted as clang-format would format them.
. "$(dirname "$0")/common.sh"

command -v clang-format >/dev/null || complain "clang-format is not installed"
# Prints the first difference in each file.
while IFS= read -r hit; do
    complain "$hit"
done < <(cpp_files src tests benchmarks examples | xargs -r -P 2 -n 20 clang-format --style=file \
    --dry-run -Werror 2>&1 | grep ': error: ' | sort -t : -k 1,1 -u)
finish
