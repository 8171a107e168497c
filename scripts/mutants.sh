#!/usr/bin/env bash
# Applies faults to a copy of the plug-in, one at a time, and prints which tests detect each fault:
#     scripts/mutants.sh [--part K/N] [--trust] [PATTERN...]
# PATTERN selects faults by name. With --part, the script tries only every Nth fault, so that N
# processes can share the work. --trust skips the initial run, which verifies that the tests pass
# without a fault. The faults are in tests/mutants; docs/testing.md describes the file format.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh

part=1
parts=1
if [ "${1:-}" = --part ]; then
    part=${2%/*}
    parts=${2#*/}
    shift 2
fi
trust=no
if [ "${1:-}" = --trust ]; then
    trust=yes
    shift
fi
patterns=("$@")
root=$PWD/build/mutants-$part
tree=$root/tree
build=$root/build
report=$root/report.txt

chosen()
{
    local pattern
    [ ${#patterns[@]} -eq 0 ] && return 0
    for pattern in "${patterns[@]}"; do
        # shellcheck disable=SC2053
        [[ $1 == *$pattern* ]] && return 0
    done
    return 1
}

# Copies the files of the working tree to $tree, where the faults are applied. Only files that
# differ are copied. If a killed run has left a fault in a copy, this restores the copy.
copy_tree()
{
    local path
    while IFS= read -r -d '' path; do
        cmp --quiet "$path" "$tree/$path" && continue
        mkdir -p "$tree/$(dirname "$path")"
        cp "$path" "$tree/$path"
    done < <(git ls-files -z --cached --others --exclude-standard)
}

configure()
{
    cmake -G Ninja -S "$tree" -B "$build" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 \
        -DUSSD_BUILD_BENCHMARKS=OFF -DUSSD_BUILD_EXAMPLES=OFF \
        -DUSSD_WARNINGS_AS_ERRORS=OFF
}

# build_and_run TARGET... -- CTEST-ARGUMENT...: builds the targets and runs the tests. Returns 0 if
# all tests passed, 1 if a test failed, and 2 if the build failed.
build_and_run()
{
    local targets=()
    while [ "$1" != -- ]; do
        targets+=("$1")
        shift
    done
    shift
    cmake --build "$build" --target "${targets[@]}" >"$root/build.log" 2>&1 || return 2
    ctest --test-dir "$build" --timeout 60 -j2 --stop-on-failure "$@" >"$root/test.log" 2>&1 || return 1
}

everything() { build_and_run tests_plugin tests_hostile -- -L '^(plugin|hostile)$' "$@"; }

who_noticed() { sed -n 's/^.* - \([a-z0-9_]*\) (.*$/\1/p' "$root/test.log" | sort -u | tr '\n' ' '; }

# replace FILE: replaces $old with $new. $old must occur in the file exactly once.
replace()
{
    old=$old new=$new perl -0777 -i -pe '
        my $count = () = /\Q$ENV{old}\E/g;
        $count == 1 or do { warn "stands there $count times\n"; exit 3 };
        s/\Q$ENV{old}\E/$ENV{new}/' "$1"
}

# Applies the fault $name, which replaces $old with $new in $file. Runs the tests in $tests first. If
# these tests pass, also runs all tests with the labels plugin and hostile.
try_fault()
{
    local source result=0 pattern
    source=$(find "$tree"/src/{USSDUIPlugin,formats} -name "$file")
    cp "$source" "$root/before"
    if ! replace "$source"; then
        result=3
        cp "$root/before" "$source"
    else
        pattern="^($(tr ' ' '|' <<<"$tests"))\$"
        # shellcheck disable=SC2086
        build_and_run $tests -- -R "$pattern" || result=$?
        if [ $result -eq 0 ]; then
            everything || result=$?
        fi
        cp "$root/before" "$source"
        touch "$source"
    fi
    case $result in
    0) printf 'UNNOTICED  %s\n' "$name" ;;
    1) printf 'noticed    %s: %s\n' "$name" "$(who_noticed)" ;;
    2) printf 'BROKEN     %s: does not compile\n' "$name" ;;
    *) printf 'BROKEN     %s: its text does not stand in %s exactly once\n' "$name" "$file" ;;
    esac | tee -a "$report"
}

# run_list FILE: calls try_fault for each selected fault in the file.
run_list()
{
    local line name='' file='' tests='' old='' new='' number=0
    while IFS= read -r line <&3; do
        case $line in
        '#'*) ;;
        'tests '*) tests=${line#tests } ;;
        'file '*) file=${line#file } ;;
        'fault '*)
            name=${line#fault }
            old=
            new=
            ;;
        -*) old+=${old:+$'\n'}${line#-} ;;
        +*) new+=${new:+$'\n'}${line#+} ;;
        '')
            if [ -n "$name" ]; then
                count=$((count + 1))
                number=$((count % parts + 1))
                [ "$number" -eq "$part" ] && chosen "$name" && try_fault
                name=
            fi
            ;;
        *) say "$1: what is this: $line" && exit 2 ;;
        esac
    done 3< <(cat "$1" && echo)
}

install_missing_packages run qt5 test test-qt5
mkdir -p "$tree"
: >"$report"
copy_tree
configure >"$root/build.log" 2>&1 || { cat "$root/build.log" >&2 && exit 1; }
[ $trust = yes ] || say "Building and running the tests without a fault..."
if [ $trust = no ] && ! everything; then
    cat "$root/test.log" >&2
    say "They have to pass before they can notice anything; see $root."
    exit 1
fi
count=0
for list in tests/mutants/*.faults; do
    run_list "$list"
done
printf '%d faults, %d noticed, %d not, %d broken; see %s\n' "$(wc -l <"$report")" \
    "$(grep -c '^noticed' "$report")" "$(grep -c '^UNNOTICED' "$report")" \
    "$(grep -c '^BROKEN' "$report")" "$report"
