#!/bin/sh
# fixed_runs.sh FUZZER CORPUS RUNS OPTION...: runs the fuzzer with RUNS inputs, which are the same
# in each run, starting with the corpus. New inputs are written to a temporary folder, so that the
# corpus does not change.
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
# The fuzzer's decisions depend on addresses, so address-space randomisation is disabled if the
# system permits this.
same=
setarch -R true 2>/dev/null && same="setarch -R"
$same "$fuzzer" -seed=1 -runs="$runs" -rss_limit_mb=3000 -artifact_prefix="$PWD/" "$@" "$scratch/new" \
    "$corpus" >"$scratch/log" 2>&1 || {
    tail -60 "$scratch/log"
    exit 1
}
tail -3 "$scratch/log"
grep -q '^Done ' "$scratch/log" # the exit status alone does not prove that all runs were completed
