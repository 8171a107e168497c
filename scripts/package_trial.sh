#!/usr/bin/env bash
# Tests the Debian packages in a minimal Debian 12 system, which it creates with debootstrap. The
# script installs all packages with one command, runs the programs, and builds the examples against
# the -dev packages. It then changes a configuration file, upgrades to a later version, and purges
# the packages.
# Prints one line for each step and stops at the first error. Must be run as root. CI does not run
# this script.
#     scripts/package_trial.sh [PACKAGES [FOLDER]]
# PACKAGES contains the packages that scripts/package.sh has built; the default is build/packages.
# The system is created in FOLDER, by default /var/tmp/ussd-trial. Later runs reuse the minimal
# system.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh
. scripts/minimal_system.sh

packages=$(realpath "${1:-build/packages}")
folder=${2:-/var/tmp/ussd-trial}
system=$folder/system
log=$folder/log
config=/etc/ussd-dashboard
own_line='<!-- changed by the administrator -->'
new_line='<!-- of the next version -->'

fail() {
    say "FAILED: $*; see $log"
    exit 1
}

ok() { printf 'ok: %s\n' "$*"; }

# inside COMMAND...: runs the command as root in the system, and writes its output to the log.
inside() {
    printf '== %s\n' "$*" >>"$log"
    in_system "$system" "$@" >>"$log" 2>&1 || fail "$*"
}

# shows PATTERN COMMAND...: runs the command as an ordinary user in the system, and fails unless a
# line of its output matches the pattern.
shows() {
    local pattern=$1 output
    shift
    output=$(as_user "$@" 2>&1) || true
    printf '== %s\n%s\n' "$*" "$output" >>"$log"
    grep -qE -- "$pattern" <<<"$output" || fail "$*: no '$pattern' in: $(tail -n 5 <<<"$output")"
    ok "$* prints: $(grep -E -m 1 -- "$pattern" <<<"$output")"
}

as_user() {
    in_system "$system" setpriv --reuid=trial --regid=trial --clear-groups \
        env -C /home/trial HOME=/home/trial QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=/home/trial "$@"
}

fresh_system() {
    make_minimal_system "$folder/minimal" >>"$log" 2>&1 || fail "debootstrap"
    rm -rf "$system"
    cp -a "$folder/minimal" "$system"
    printf '#!/bin/sh\nexit 101\n' >"$system/usr/sbin/policy-rc.d" # prevents packages from starting services
    chmod +x "$system/usr/sbin/policy-rc.d"
    inside apt-get update
    inside useradd --create-home trial
    ok "minimal system with $(in_system "$system" dpkg-query -W -f '.\n' | wc -l) packages"
}

# install_packages FOLDER: installs all packages in this folder of the system with one command.
# Keeps configuration files that were changed, which is the default answer to dpkg's prompt.
install_packages() {
    inside sh -c "apt-get install -y --no-install-recommends -o Dpkg::Options::=--force-confold $1/*.deb"
}

names() {
    for package in "$packages"/*.deb; do
        dpkg-deb --show --showformat='${Package}\n' "$package"
    done
}

try_programs() {
    shows '^Your balance is' ussd send --demo '*100#'
    shows 'Your balance is' ussd-dashboard --demo --send '*100#'
    # timeout exits with status 124 only if the program was still running at the end of the time
    # limit.
    local status=0
    as_user timeout 10 ussd-dashboard --demo >>"$log" 2>&1 || status=$?
    [ $status -eq 124 ] || fail "ussd-dashboard --demo ended with status $status"
    ok "ussd-dashboard --demo runs until it is terminated"
    shows '^0 error' sh -c 'ussd-config check /etc/ussd-dashboard/*.xml; echo "$? error"'
}

try_examples() {
    inside apt-get install -y --no-install-recommends g++ make cmake
    inside sh -c 'cp -r /usr/share/doc/ussd-ui-plugin-dev/examples/host /usr/share/doc/libtksv-dev/examples/device /home/trial &&
        chown -R trial: /home/trial'
    for example in host device; do
        as_user sh -c "cmake -S $example -B $example/build && cmake --build $example/build" >>"$log" 2>&1 ||
            fail "$example does not build"
    done
    shows '^Received: Your balance is' env TKSV_BACKEND=simulator host/build/minimal-host --once '*100#'
    shows '^Received: Echo simulation' env LD_LIBRARY_PATH=device/build host/build/minimal-host --once '*100#'
}

# make_next_version: builds packages of a later version from the existing packages. Adds a line to
# each configuration file in them, so that the upgrade meets files changed by both sides.
make_next_version() {
    local package tree=$folder/tree version
    rm -rf "$system/next"
    mkdir -p "$system/next"
    for package in "$packages"/*.deb; do
        rm -rf "$tree"
        dpkg-deb --raw-extract "$package" "$tree"
        version=$(dpkg-deb --field "$package" Version)
        sed -i "s/\b${version//./\\.}\b/$version+next/g" "$tree/DEBIAN/control"
        if [ -d "$tree$config" ]; then
            sed -i "\$a$new_line" "$tree$config"/*.xml
        fi
        dpkg-deb --root-owner-group -Zgzip -z1 --build "$tree" "$system/next" >>"$log"
    done
    rm -rf "$tree"
}

try_upgrade() {
    printf '%s\n' "$own_line" >>"$system$config/USSDPluginConfig.xml"
    make_next_version
    install_packages /next
    in_system "$system" dpkg-query -W -f '${Version}\n' ussd-dashboard | grep -q '+next$' || fail "the version is the old one"
    grep -qF "$own_line" "$system$config/USSDPluginConfig.xml" || fail "the changed configuration was lost"
    grep -qF "$new_line" "$system$config/USSDPluginConfig.xml.dpkg-dist" || fail "the new configuration is not beside it"
    grep -qF "$new_line" "$system$config/ussdsysprofile.xml" || fail "the unchanged file was not upgraded"
    ok "upgrade keeps the changed configuration and replaces the unchanged one"
    shows '^Your balance is' ussd send --demo '*100#'
}

try_purge() {
    local left
    in_system "$system" dpkg -L $(names) | sort -u >"$folder/files"
    inside apt-get purge -y $(names)
    rm -rf "$system/packages" "$system/next"
    left=$(in_system "$system" find / -xdev -not -path '/home/*' -not -path '/proc/*' \
        \( -iname '*ussd*' -o -iname '*tksv*' -o -iname '*libhostcore*' \))
    [ -z "$left" ] || fail "purge leaves $left"
    while IFS= read -r file; do
        if [ -e "$system$file" ] && [ ! -d "$system$file" ]; then fail "purge leaves $file"; fi
    done <"$folder/files"
    in_system "$system" dpkg-query -W -f '${Package} ${db:Status-Abbrev}\n' | grep -E 'ussd|tksv' && fail "dpkg still knows a package"
    ok "purge leaves nothing of $(wc -l <"$folder/files") files and folders"
}

mkdir -p "$folder"
: >"$log"
fresh_system
mkdir "$system/packages"
cp "$packages"/*.deb "$system/packages"
install_packages /packages
ok "installed with one command: $(names | tr '\n' ' ')"
try_programs
try_examples
try_upgrade
try_purge
