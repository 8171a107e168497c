#!/bin/sh
# fixed_runs.sh FUZZER CORPUS RUNS OPTION...: tries the same RUNS inputs each time, starting with
# the initial inputs in CORPUS. New inputs are written to a temporary folder, so that CORPUS is not
# changed.
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
# The coverage data contain addresses. Address space randomisation is therefore disabled if the
# system permits this.
same=
setarch -R true 2>/dev/null && same="setarch -R"
$same "$fuzzer" -seed=1 -runs="$runs" -rss_limit_mb=3000 -artifact_prefix="$PWD/" "$@" "$scratch/new" \
    "$corpus" >"$scratch/log" 2>&1 || {
    tail -60 "$scratch/log"
    exit 1
}
tail -3 "$scratch/log"
grep -q '^Done ' "$scratch/log" # exit status 0 does not mean that all runs are complete
