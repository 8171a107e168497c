# Functions that the tests of the installation share. The arguments of each test are the root
# folders of the build tree and of the source tree.
set -u
build=$1
source_tree=$2
faults=0
work=$(mktemp -d) || exit 2
trap 'rm -rf "$work"' EXIT
prefix=$work/installed

complain() {
    printf '%s\n' "$*" >&2
    faults=$((faults + 1))
}

# run COMMAND...: runs the command. Prints its output only if the command fails.
run() {
    local said
    said=$("$@" 2>&1) || complain "$* failed: $said"
}

# expect PATTERN COMMAND...: runs the command, and fails unless a line of its output matches the
# pattern.
expect() {
    local pattern=$1 said
    shift
    said=$("$@" 2>&1)
    grep -qE -- "$pattern" <<<"$said" || complain "$*: no '$pattern' in: $(tail -n 5 <<<"$said")"
}

finish() { exit $((faults > 0)); }
