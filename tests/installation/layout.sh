#!/usr/bin/env bash
# Tests that the installation follows the Filesystem Hierarchy Standard, and that the programs still
# find all their files after the installation has been moved.
. "$(dirname "$0")/installation.sh"

# is_there FILE...: fails unless all files exist in the installation.
is_there() {
    local file
    for file in "$@"; do
        [ -s "$prefix/$file" ] || complain "not installed: $file"
    done
}

run cmake --install "$build" --prefix "$work/first"
mkdir -p "$work/elsewhere"
prefix=$work/elsewhere/installed
mv "$work/first" "$prefix"
lib=$(cd "$prefix" && dirname "$(find lib* -name libtksv.so.1)")

is_there bin/ussd bin/ussd-dashboard bin/ussd-config bin/ussd-provision \
    "$lib/libtksv.so.1" "$lib/libhostcore.so.1" "$lib/libtksv.so" "$lib/libhostcore.so" \
    "$lib/ussd-dashboard/plugins/USSDUIPlugin/libUSSDUIPlugin.so" \
    etc/ussd-dashboard/USSDPluginConfig.xml etc/ussd-dashboard/ussdsysprofile.xml \
    share/ussd-dashboard/plain/plugins/USSDUIPlugin/USSDPluginConfig.xml \
    share/ussd-dashboard/translations/de.qm share/ussd-dashboard/translations/pt_BR.qm \
    share/ussd-dashboard/schemas/ussd-configuration.rng share/ussd-dashboard/scenarios/default.scenario \
    share/applications/ussd-dashboard.desktop share/icons/hicolor/scalable/apps/ussd-dashboard.svg \
    share/icons/hicolor/48x48/apps/ussd-dashboard.png \
    share/man/man1/ussd.1 share/bash-completion/completions/ussd share/zsh/vendor-completions/_ussd \
    share/doc/ussd-ui-plugin/LICENSE share/doc/ussd-ui-plugin/CHANGELOG.md \
    include/tksv/tksv.h include/ussd-ui-plugin/IUIPlugin.h

id=$(sed -n 's/^USSD_APPLICATION_ID:STRING=//p' "$build/CMakeCache.txt")
is_there "share/metainfo/$id.metainfo.xml"
grep -qs "<id>$id</id>" "$prefix/share/metainfo/$id.metainfo.xml" || complain "the description has another identifier than its file name"

for file in USSDPluginConfig.xml ussdsysprofile.xml; do
    link=$prefix/$lib/ussd-dashboard/plugins/USSDUIPlugin/$file
    [ -L "$link" ] && [ "$(readlink -f "$link")" = "$(readlink -f "$prefix")/etc/ussd-dashboard/$file" ] ||
        complain "$link does not link to the configuration"
done

# The tour is part of the source tree and must not be installed.
tour=$(find "$prefix" -iname '*tour*')
[ -z "$tour" ] || complain "files of the tour are installed: $tour"

# The programs must not contain paths of the build tree, which do not exist on other machines.
for file in "$prefix"/bin/* "$prefix/$lib"/*.so.1 "$prefix/$lib/ussd-dashboard/plugins/USSDUIPlugin/libUSSDUIPlugin.so"; do
    if readelf -d "$file" | grep -E 'R(UN)?PATH' | grep -qF "$source_tree"; then
        complain "$file searches for libraries in the source tree"
    fi
done

expect 'Your balance is' "$prefix/bin/ussd" send --demo '*100#'
expect 'Your balance is' "$prefix/bin/ussd-dashboard" --demo --send '*100#'
finish
