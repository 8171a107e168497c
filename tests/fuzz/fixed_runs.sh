#!/bin/sh
# fixed_runs.sh FUZZER CORPUS RUNS OPTION...: runs the fuzzer with the same RUNS inputs each time,
# starting with the seeds. New inputs are written to a temporary folder, so that the seeds stay
# unchanged.
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
# The coverage data contains addresses, so address randomisation is switched off if the system
# allows it.
same=
setarch -R true 2>/dev/null && same="setarch -R"
$same "$fuzzer" -seed=1 -runs="$runs" -rss_limit_mb=3000 -artifact_prefix="$PWD/" "$@" "$scratch/new" \
    "$corpus" >"$scratch/log" 2>&1 || {
    tail -60 "$scratch/log"
    exit 1
}
tail -3 "$scratch/log"
grep -q '^Done ' "$scratch/log" # an exit status of 0 does not prove that all runs were completed
