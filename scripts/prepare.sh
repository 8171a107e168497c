# Functions that ./run, ./test, benchmarks/run and the other scripts share: they install missing
# Debian packages, and configure and build the project. The working directory must be the root of
# the source tree.

PROGRESS_SECONDS=10 # the interval between progress lines if the output is not a terminal

say() { printf '%s\n' "$*" >&2; }

# listed_packages SECTION...: prints the packages that packages.txt lists in these sections.
listed_packages()
{
    awk -v sections="$*" '
        BEGIN { split(sections, list, " "); for (i in list) wanted["[" list[i] "]"] = 1 }
        { sub(/#.*/, "") }
        /^\[/ { take = $1 in wanted; next }
        take && NF { print $1 }' packages.txt
}

# missing_packages SECTION...: prints the packages in these sections that are not installed.
missing_packages()
{
    comm -23 <(listed_packages "$@" | sort -u) \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' 2>/dev/null |
            sed -n 's/^installed //p' | sort -u)
}

# install_missing_packages SECTION...: installs the missing packages in these sections. Passes only
# the missing packages to apt-get, so that installed packages are upgraded only if a dependency
# requires it. If the user is not root, prints the command and returns 1.
install_missing_packages()
{
    local missing
    missing=$(missing_packages "$@" | tr '\n' ' ')
    [ -z "$missing" ] && return 0
    local install="apt-get install -y --no-install-recommends $missing"
    if [ "$(id -u)" -ne 0 ]; then
        say "Packages are missing. Install them with this line, then try again:"
        say "  sudo sh -c 'apt-get update && $install'"
        return 1
    fi
    say "Installing: $missing"
    # shellcheck disable=SC2086
    DEBIAN_FRONTEND=noninteractive apt-get update -qq >&2 &&
        DEBIAN_FRONTEND=noninteractive $install >&2
}

# installed_qt: prints 6 if only the packages for Qt 6 are installed, otherwise 5.
installed_qt()
{
    if [ -n "$(missing_packages qt5)" ] && [ -z "$(missing_packages qt6)" ]; then
        echo 6
    else
        echo 5
    fi
}

# Copies a build's output from standard input to standard output, and shows the progress on standard
# error. On a terminal, the progress is shown in a single line. Otherwise, a new line is printed
# every PROGRESS_SECONDS.
follow_build()
{
    local line next=0 width
    width=$(tput cols 2>/dev/null || echo 80)
    while IFS= read -r line; do
        printf '%s\n' "$line"
        [[ $line == \[+([0-9])/* ]] || continue
        if [ -t 2 ]; then
            printf '\r\033[K%.*s' $((width - 1)) "$line" >&2
        elif [ "$SECONDS" -ge "$next" ]; then
            say "$line"
            next=$((SECONDS + PROGRESS_SECONDS))
        fi
    done
    [ ! -t 2 ] || printf '\r\033[K' >&2
}

# follow LOG COMMAND...: runs COMMAND, shows only the progress, and writes the output to LOG. If
# COMMAND fails, prints all output except the progress lines, and returns 1.
follow()
{
    local log=$1
    shift
    "$@" 2>&1 | follow_build >"$log"
    [ "${PIPESTATUS[0]}" -eq 0 ] && return 0
    grep -v '^\[[0-9]*/' "$log" >&2
    say "This failed; what it said stands above and in $log."
    return 1
}

# configure_and_build PRESET [TARGET...]: configures the project and builds the given targets, or
# all targets by default. The log file is build/PRESET.log.
configure_and_build()
{
    local preset=$1
    shift
    mkdir -p build
    follow "build/$preset.log" build_preset "$preset" "$@"
}

build_preset()
{
    local preset=$1
    shift
    cmake --preset "$preset" &&
        NINJA_STATUS='[%f/%t, %es] ' cmake --build --preset "$preset" ${1:+--target "$@"}
}
