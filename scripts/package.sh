#!/usr/bin/env bash
# Builds the Debian packages from the working tree, and checks them with lintian. docs/building.md
# lists the packages.
#     scripts/package.sh [--version VERSION] [--check-reproducible] [FOLDER]
# The packages are written to FOLDER, by default build/packages. --version overrides the latest
# version in debian/changelog. --check-reproducible builds the packages again under different
# conditions, and compares all packages byte for byte.
#
# Environment variables for packages that are published:
#     DEBFULLNAME, DEBEMAIL    name and address of the maintainer, as for Debian's own tools
#     USSD_APPLICATION_ID      identifier in software centres, with the reversed name of a domain
# Without them, the packages contain placeholders in reserved domains.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh
. scripts/minimal_system.sh

version=
check_reproducible=
while [ $# -gt 0 ]; do
    case $1 in
    --version)
        version=$2
        shift
        ;;
    --check-reproducible) check_reproducible=yes ;;
    -*)
        say "$0: unknown option $1"
        exit 2
        ;;
    *) break ;;
    esac
    shift
done
output=$(realpath -m "${1:-build/packages}")
NOBODY='The USSD UI plug-in authors <nobody@ussd-ui-plugin.invalid>'

# set_maintainer FOLDER: replaces the placeholder for the maintainer in the source tree in FOLDER
# with DEBFULLNAME and DEBEMAIL, if DEBEMAIL is set.
set_maintainer()
{
    [ -n "${DEBEMAIL:-}" ] || return 0
    placeholder=$NOBODY maintainer="${DEBFULLNAME:-$DEBEMAIL} <$DEBEMAIL>" \
        perl -pi -e 's/\Q$ENV{placeholder}\E/$ENV{maintainer}/' "$1/debian/control" "$1/debian/changelog"
}

# report_placeholders: prints the variables that are required for packages that are published.
report_placeholders()
{
    local variable
    for variable in DEBEMAIL USSD_APPLICATION_ID; do
        [ -n "${!variable:-}" ] || say "$variable is not set, so the packages contain a placeholder."
    done
}

# add_version FOLDER: adds an entry for $version to the changelog of the source tree in FOLDER.
add_version()
{
    local changelog=$1/debian/changelog
    {
        printf 'ussd-ui-plugin (%s) unstable; urgency=medium\n\n  * Version for tests.\n\n' "$version"
        grep -m 1 '^ -- ' "$changelog"
        echo
        cat "$changelog"
    } >"$changelog.new"
    mv "$changelog.new" "$changelog"
}

# build_in FOLDER: builds the packages from a copy of $snapshot in FOLDER/source, and stores them in
# FOLDER.
build_in()
{
    mkdir -p "$1"
    cp -a "$snapshot" "$1/source"
    [ -z "$version" ] || add_version "$1/source"
    set_maintainer "$1/source"
    # Give all files the time of the changelog entry. The packages contain the modification times,
    # which differ between checkouts.
    find "$1/source" -exec touch --no-dereference \
        --date="@$(cd "$1/source" && dpkg-parsechangelog --show-field Timestamp)" {} +
    (cd "$1/source" && DEB_BUILD_OPTIONS="parallel=$(nproc) terse" dpkg-buildpackage --build=binary --no-sign)
}

# build_differently FOLDER: like build_in, but under conditions that must not affect the packages.
build_differently()
{
    (
        umask 0027
        export TZ=Pacific/Kiritimati LC_ALL=C USER=somebody-else
        build_in "$1/another/folder"
    )
}

# compare FOLDER: fails unless the packages in FOLDER are identical to those in $work.
compare()
{
    local package differences=0
    for package in "$work"/*.deb; do
        cmp "$package" "$1/${package##*/}" || differences=$((differences + 1))
    done
    [ "$differences" -eq 0 ] || { say "$differences package(s) differ between two builds"; return 1; }
    say "All packages of two builds are equal byte for byte."
}

install_missing_packages run qt5 validate package
mkdir -p build "$output"
work=$PWD/build/package # a fixed path, so that ccache can reuse the results of earlier builds
rm -rf "$work"
mkdir "$work"
snapshot=$work/snapshot # the source of both builds, because the working tree may change between them
copy_source_tree "$snapshot"
follow build/package.log build_in "$work"
lintian --fail-on error,warning --allow-root "$work"/*.changes
if [ -n "$check_reproducible" ]; then
    follow build/package-again.log build_differently "$work"
    compare "$work/another/folder"
fi
cp "$work"/*.deb "$work"/*.changes "$work"/*.buildinfo "$output"
report_placeholders
say "The packages are in $output."
