#!/bin/sh
# check_exports.sh PLUGIN: checks that the plug-in library exports only the entry points for the
# plug-in loaders of Qt 4 and of the Qt version with which it was built.
set -eu
metadata=qt_plugin_query_metadata
if readelf -d "$1" | grep -q libQt6Core; then metadata=qt_plugin_query_metadata_v2; fi
expected="qt_plugin_instance
$metadata
qt_plugin_query_verification_data"
actual=$(nm -D --defined-only "$1" | awk '{ print $3 }' | sort)
if [ "$actual" != "$expected" ]; then
    printf 'exported:\n%s\nexpected:\n%s\n' "$actual" "$expected" >&2
    exit 1
fi
# The library may depend only on Qt, the core library, the device SDK, and the compiler and C
# libraries.
if readelf -d "$1" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' |
    grep -vE '^(libQt5(Core|Gui|Widgets)\.so|libQt6(Core|Core5Compat|Gui|Widgets)\.so|libhostcore\.so\.1|libtksv\.so\.1|libstdc\+\+|libgcc_s|libm\.|libc\.|ld-linux|lib(a|ub|t)san)'; then
    echo "the plug-in links to what stands above" >&2
    exit 1
fi
