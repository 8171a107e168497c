#!/usr/bin/env bash
# Tests that other programs and libraries can be built with only the installed files. Builds copies
# of the examples with CMake outside the source tree, and the host also with pkg-config. Runs the
# programs afterwards.
. "$(dirname "$0")/installation.sh"
compiler=$3

# build_example NAME: copies the example to $work/NAME and builds it with CMake in $work/NAME/build.
build_example() {
    cp -r "$source_tree/examples/$1" "$work/$1"
    run cmake -S "$work/$1" -B "$work/$1/build" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$compiler" \
        -DCMAKE_CXX_FLAGS="-Wall -Wextra -Werror"
    run cmake --build "$work/$1/build"
    if grep -rqF "$source_tree" "$work/$1/build" --include='*.make' --include='*.txt' --include='*.ninja'; then
        complain "the build of $1 uses files of the source tree"
    fi
}

# build_with_pkg_config: builds the host with the compiler flags that pkg-config prints.
build_with_pkg_config() {
    local flags
    flags=$(PKG_CONFIG_PATH=$lib/pkgconfig pkg-config --cflags --libs ussd-ui-plugin) || complain "no pkg-config file"
    # shellcheck disable=SC2086
    run "$compiler" -std=c++17 -fPIC -o "$work/host-of-pkg-config" "$source_tree/examples/host/main.cpp" $flags
    [ "$(PKG_CONFIG_PATH=$lib/pkgconfig pkg-config --variable=plugindir ussd-ui-plugin)" -ef \
        "$lib/ussd-dashboard/plugins/USSDUIPlugin" ] || complain "ussd-ui-plugin.pc: wrong plugindir"
    [ -f "$(PKG_CONFIG_PATH=$lib/pkgconfig pkg-config --variable=includedir tksv)/tksv.h" ] ||
        complain "tksv.pc: wrong includedir"
}

run cmake --install "$build" --prefix "$prefix"
lib=$(dirname "$(find "$prefix" -name libtksv.so.1)")
build_example host
build_example device
build_with_pkg_config

balance='^Received: Your balance is 7\.00'
expect "$balance" "$work/host/build/minimal-host" --once '*100#'
expect "$balance" env LD_LIBRARY_PATH="$lib" "$work/host-of-pkg-config" --once '*100#'
expect '^Received: Echo simulation: \*100#$' env LD_LIBRARY_PATH="$work/device/build" \
    "$work/host/build/minimal-host" --once '*100#'
finish
