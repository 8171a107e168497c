# Sourced by ./run, ./test, benchmarks/run and scripts: installs missing Debian packages, configures,
# builds. Expects the project's root as working directory.

PROGRESS_SECONDS=10 # between two lines about a build when there is no terminal

say() { printf '%s\n' "$*" >&2; }

# listed_packages SECTION...: the packages in these sections of packages.txt.
listed_packages()
{
    awk -v sections="$*" '
        BEGIN { split(sections, list, " "); for (i in list) wanted["[" list[i] "]"] = 1 }
        { sub(/#.*/, "") }
        /^\[/ { take = $1 in wanted; next }
        take && NF { print $1 }' packages.txt
}

# missing_packages SECTION...: those that this machine lacks.
missing_packages()
{
    comm -23 <(listed_packages "$@" | sort -u) \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' 2>/dev/null |
            sed -n 's/^installed //p' | sort -u)
}

# install_missing_packages SECTION...: only what is missing is named to apt-get, so it upgrades a package
# that is there only where a dependency wants a newer one.
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

# Copies a build's output to standard output and says on standard error how far the build is: on a
# terminal in one line that is rewritten, elsewhere in a line now and then.
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

# follow LOG COMMAND...: runs COMMAND quietly. Where it fails, all is shown that it said, but for the
# lines that tell how far it is.
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

# configure_and_build PRESET [TARGET...]
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
