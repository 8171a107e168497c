#!/usr/bin/env bash
# Builds the device SDK library, ussd, the plug-in and the minimal host for arm64. Then runs the
# tests of the record layouts, ussd and the host under qemu-user. The script works in a Debian 12
# system in FOLDER, so the packages of this machine remain unchanged. Must be run as root. The first
# run downloads about 500 MB. CI does not run this script.
#     scripts/cross.sh [FOLDER]          the default FOLDER is /var/tmp/ussd-cross
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh
. scripts/minimal_system.sh

folder=${1:-/var/tmp/ussd-cross}
host_packages=(cmake ninja-build pkg-config g++ g++-aarch64-linux-gnu qemu-user qtbase5-dev-tools qttools5-dev-tools)
arm64_packages=(libglib2.0-dev:arm64 libmm-glib-dev:arm64 libjson-glib-dev:arm64 qtbase5-dev:arm64
    qtbase5-private-dev:arm64 libqt5svg5-dev:arm64)
tests='^(sdk_records_m64|sdk_header_alone|sdk_promises|sdk_device|sdk_simulator)$'

# prepare: creates the system in $folder.
prepare() {
    make_minimal_system "$folder"
    [ -e "$folder/prepared" ] && return
    in_system "$folder" dpkg --add-architecture arm64
    in_system "$folder" apt-get update -qq
    in_system "$folder" apt-get install -qq -y --no-install-recommends "${host_packages[@]}" "${arm64_packages[@]}"
    touch "$folder/prepared"
}

# in_build COMMAND...: runs the command in the build folder inside the system.
in_build() { in_system "$folder" env -C /build QT_QPA_PLATFORM=offscreen TKSV_BACKEND=simulator "$@"; }

build() {
    mkdir -p "$folder/build"
    copy_source_tree "$folder/source"
    in_build cmake -S /source -B /build -G Ninja --toolchain /source/cmake/arm64.cmake \
        -DCMAKE_BUILD_TYPE=RelWithDebInfo -DUSSD_BUILD_BENCHMARKS=OFF
    in_build cmake --build /build --target ussd scenarios minimal-host USSDUIPlugin plugin_data translations \
        sdk_promises sdk_device sdk_simulator
}

# shows PATTERN PROGRAM ARGUMENT...: runs the arm64 program and fails unless a line of its output
# matches the pattern. Prints this line.
shows() {
    local pattern=$1 program=$2 output
    shift 2
    file_is_arm64 "$folder/build/$program"
    output=$(in_build qemu-aarch64 "/build/$program" "$@" 2>&1) || say "$program failed"
    grep -E -m 1 -- "$pattern" <<<"$output" || { printf '%s\n' "$output" >&2; exit 1; }
}

file_is_arm64() {
    aarch64=183 # the value of EM_AARCH64 in elf.h
    [ "$(od -An -tu2 -j 18 -N 2 "$1")" -eq $aarch64 ] || { say "$1 is not a program for arm64"; exit 1; }
}

follow_to_log() {
    say "$1; see $folder.log"
    "$2" >>"$folder.log" 2>&1 || { tail -n 30 "$folder.log" >&2; exit 1; }
}

: >"$folder.log"
follow_to_log "Preparing $folder" prepare
follow_to_log "Building for arm64" build
in_build ctest --test-dir /build --output-on-failure -R "$tests"
shows '^Your balance is' bin/ussd send --demo '*100#'
shows '^Received: Your balance is' examples/minimal-host --once '*100#'
