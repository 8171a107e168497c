#!/usr/bin/env bash
# Runs the fuzzers one after another for the given time each:
#     scripts/fuzz.sh [SECONDS [FUZZER...]]
# By default, each fuzzer runs for 600 s. New inputs are stored in build/fuzz-corpus, where the next
# run finds them. An input that causes a failure is stored in build/fuzz-findings. After you have
# analysed the failure, copy the input to tests/fuzz/corpus. The exit status is 1 if an input caused
# a failure.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh

seconds=${1:-600}
[ $# -eq 0 ] || shift
install_missing_packages run qt5 check
configure_and_build fuzz tests_fuzz

fuzzers=("$@")
if [ ${#fuzzers[@]} -eq 0 ]; then
    for options in build/fuzz/tests/fuzz/*.options; do
        fuzzers+=("$(basename "$options" .options)")
    done
fi

home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
chmod 700 "$home"
export HOME=$home XDG_RUNTIME_DIR=$home QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
export TKSV_BACKEND=simulator # never use the developer's own modem
export LSAN_OPTIONS=suppressions=$PWD/tests/sanitizers/lsan.supp:print_suppressions=0

failed=0
for fuzzer in "${fuzzers[@]}"; do
    learnt=build/fuzz-corpus/$fuzzer
    findings=build/fuzz-findings/$fuzzer
    mkdir -p "$learnt" "$findings"
    mapfile -t options < <(grep -v '^$' "build/fuzz/tests/fuzz/$fuzzer.options")
    log=$findings/log
    if "build/fuzz/tests/bin/$fuzzer" "${options[@]}" -rss_limit_mb=3000 -print_final_stats=1 \
        -max_total_time="$seconds" -artifact_prefix="$findings/" "$learnt" \
        "tests/fuzz/corpus/$fuzzer" >"$log" 2>&1; then
        say "$fuzzer: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs, nothing found"
    else
        tail -40 "$log" >&2
        say "$fuzzer: found something; the input lies in $findings"
        failed=1
    fi
done
exit "$failed"
