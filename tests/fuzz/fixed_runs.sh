#!/bin/sh
# fixed_runs.sh FUZZER CORPUS RUNS OPTION...: tries the same RUNS inputs each time, the seeds first.
# What it finds on the way goes to a folder of its own, and the seeds stay as they are.
set -eu
fuzzer=$1 corpus=$2 runs=$3
shift 3
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/new"
if [ -z "$(ls -A "$corpus")" ]; then
    echo "$corpus holds no seeds" >&2
    exit 1
fi
# Addresses count as coverage of a kind, so they are to be the same in each run where that is allowed.
same=
setarch -R true 2>/dev/null && same="setarch -R"
$same "$fuzzer" -seed=1 -runs="$runs" -rss_limit_mb=3000 -artifact_prefix="$PWD/" "$@" "$scratch/new" \
    "$corpus" >"$scratch/log" 2>&1 || {
    tail -60 "$scratch/log"
    exit 1
}
tail -3 "$scratch/log"
grep -q '^Done ' "$scratch/log" # and not just anything that ends with 0
