# For the checks: each prints one line for each fault and ends with 1 when there was one.
# The tree to look at is the script's first argument.
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

# Our C++ files below the folders named.
cpp_files() {
    local folder
    for folder in "$@"; do
        [ -d "$folder" ] && find "$folder" -type f \( -name '*.cpp' -o -name '*.h' \) | sort
    done
}

# A file without its comments, line for line.
without_comments() {
    sed -e 's@//.*$@@' -e 's@/\*.*\*/@@g' -e '/\/\*/,/\*\//s@.*@@' "$1"
}
