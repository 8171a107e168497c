#!/usr/bin/env bash
# Every C++ file looks as clang-format makes it.
. "$(dirname "$0")/common.sh"

command -v clang-format >/dev/null || complain "clang-format is not installed"
# One line for each file: the first place that differs.
while IFS= read -r hit; do
    complain "$hit"
done < <(cpp_files src tests benchmarks examples | xargs -r -P 2 -n 20 clang-format --style=file \
    --dry-run -Werror 2>&1 | grep ': error: ' | sort -t : -k 1,1 -u)
finish
