# Sourced by ./run, ./test and benchmarks/run: installs missing Debian packages, configures, builds.
# Expects the project's root as working directory.

say() { printf '%s\n' "$*" >&2; }

# The packages of packages.txt that this machine lacks.
missing_packages()
{
    local wanted
    wanted=$(sed -e 's/#.*//' -e '/^[[:space:]]*$/d' packages.txt)
    # shellcheck disable=SC2086
    comm -23 <(printf '%s\n' $wanted | sort) \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' 2>/dev/null |
            sed -n 's/^installed //p' | sort -u)
}

install_missing_packages()
{
    local missing
    missing=$(missing_packages | tr '\n' ' ')
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

# configure_and_build PRESET [TARGET...]: quiet unless something goes wrong.
configure_and_build()
{
    local preset=$1 log
    shift
    mkdir -p build
    log=build/$preset.log
    if ! { cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}; } >"$log" 2>&1; then
        cat "$log" >&2
        say "The build failed; what it said stands above and in $log."
        return 1
    fi
}
