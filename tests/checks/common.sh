# Functions that the checks share. A check prints one line for each fault. Its exit status is 1 if
# there is a fault, otherwise 0. Its first argument is the root folder of the source tree.
set -u
export LC_ALL=C.UTF-8
root=$(cd "$1" && pwd) || exit 2
cd "$root" || exit 2
faults=0

complain() {
    printf '%s\n' "$*"
    faults=$((faults + 1))
}

finish() {
    [ "$faults" -eq 0 ] && exit 0
    printf '%d fault(s)\n' "$faults"
    exit 1
}

# Prints the paths of the C++ files in the given folders and their subfolders.
cpp_files() {
    local folder
    for folder in "$@"; do
        [ -d "$folder" ] && find "$folder" -type f \( -name '*.cpp' -o -name '*.h' \) | sort
    done
}

# Prints a file without its comments, and preserves its line numbers.
without_comments() {
    sed -e 's@//.*$@@' -e 's@/\*.*\*/@@g' -e '/\/\*/,/\*\//s@.*@@' "$1"
}
