#!/usr/bin/env bash
# Runs clang-tidy on the source files in src, examples, tests and benchmarks:
#     scripts/tidy.sh [PATTERN]
# PATTERN is a regular expression that selects files by path. The script does not compile anything.
# The exit status is 1 if clang-tidy reports a problem. ./test --preset tidy runs this script.
set -eu
cd "$(dirname "$0")/.."
cmake --preset tidy

# A file that is part of several programs is checked only once, with the compiler options of the
# first program.
COMPILATIONS=$PWD/build/tidy/once
mkdir -p "$COMPILATIONS"
awk '/^\{/ { record = "{"; next }
     /^\}/ { if (!seen[file]++) printf "%s\n%s\n}", count++ ? "," : "[", record; next }
     /^  "/ { record = record "\n" $0 }
     /^  "file"/ { file = $2; sub(/,$/, "", file) }
     END { print "\n]" }' build/tidy/compile_commands.json >"$COMPILATIONS/compile_commands.json"

SCOPE=$PWD/build/tidy/tidy_scope.so # limits clang-tidy to our own declarations
LLVM=$(realpath "$(command -v clang-tidy)")
LLVM=${LLVM%/bin/*}
if [ ! "$SCOPE" -nt scripts/tidy_scope.cpp ]; then
    # Word splitting of the options is intended.
    # shellcheck disable=SC2046
    g++ -std=c++17 -O1 -fPIC -shared -fno-rtti -fno-exceptions $("$LLVM/bin/llvm-config" --cppflags) \
        scripts/tidy_scope.cpp -o "$SCOPE"
fi

MOC=$(pkg-config --variable=host_bins Qt5Core)/moc

# run_moc FILE FOLDER: writes the moc output of FILE to FOLDER. moc uses the include paths with
# which FILE is compiled.
run_moc()
{
    local includes
    mapfile -t includes < <(grep -B 1 "^  \"file\": \"$PWD/$1\"" "$COMPILATIONS/compile_commands.json" |
        grep -oE -- '(-I|-isystem )[^ ]+' | sed 's/^-isystem /-I/')
    mkdir -p "$2"
    "$MOC" "${includes[@]}" "$1" -o "$2/$(basename "$1" .cpp).moc"
}

# look_at "[3/370] FILE": prints its argument and runs clang-tidy on FILE. Prints the output of
# clang-tidy only if there is a problem.
look_at()
{
    local file=${1##* } folder said
    folder=$PWD/build/tidy/moc/${file%.cpp}
    echo "$1"
    if grep -q '^#include ".*\.moc"' "$file"; then
        run_moc "$file" "$folder" || return 1
    fi
    if ! said=$(clang-tidy --quiet --load "$SCOPE" -p "$COMPILATIONS" --extra-arg="-I$folder" "$file" 2>&1); then
        echo "$said"
        return 1
    fi
}
export -f look_at run_moc
export COMPILATIONS MOC SCOPE

# verify_scope: fails unless clang-tidy finds the deliberate faults in a source file and its header.
# This proves that the plug-in excludes only system headers.
verify_scope()
{
    local folder=build/tidy/planted/src said
    mkdir -p "$folder"
    printf '%s\n' '#include <QString>' 'inline int *pointer() { return 0; }' >"$folder/planted.h"
    printf '%s\n' '#include "planted.h"' \
        'namespace small { QString joined(QString a) { QString b = std::move(a); return a + b; } }' \
        'int quotient(int a) { int b = 0; return a == 7 ? a / b : 0; }' >"$folder/planted.cpp"
    # Word splitting of the options is intended.
    # shellcheck disable=SC2046
    said=$(clang-tidy --quiet --load "$SCOPE" "$folder/planted.cpp" -- -std=c++17 -fPIC \
        $(pkg-config --cflags Qt5Core | sed 's/-I/-isystem /g') 2>&1) || true
    for fault in planted.h:2.*use-nullptr planted.cpp:2.*identifier-naming \
        planted.cpp:2.*use-after-move planted.cpp:3.*DivideZero; do
        if ! grep -q -- "$fault" <<<"$said"; then
            printf 'clang-tidy does not find %s:\n%s\n' "$fault" "$said"
            return 1
        fi
    done
}

mapfile -t files < <(
    sed -n "s|^  \"file\": \"$PWD/\(.*\.cpp\)\",\{0,1\}\$|\1|p" "$COMPILATIONS/compile_commands.json" |
        grep -E '^(src|examples|tests|benchmarks)/' | grep -E "${1:-.}" | sort
)
verify_scope
if [ ${#files[@]} -eq 0 ]; then
    echo "No source file to look at."
    exit 1
fi
for i in "${!files[@]}"; do
    printf '%s\0' "[$((i + 1))/${#files[@]}] ${files[i]}"
done | xargs -0 -n 1 -P "$(nproc)" bash -c 'look_at "$1"' bash || exit 1
