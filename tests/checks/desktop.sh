#!/usr/bin/env bash
# Checks the menu entry, the description for software centres and the icons, and that all files
# contain the same version. If a validator is not installed and no fault was found, the exit status
# is 77, which CTest reports as skipped.
. "$(dirname "$0")/common.sh"
entry=desktop/ussd-dashboard.desktop
template=desktop/ussd-dashboard.metainfo.xml.in
placeholder=$(sed -n 's/^set(USSD_APPLICATION_ID "\(.*\)" CACHE.*/\1/p' CMakeLists.txt)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
metainfo=$folder/$placeholder.metainfo.xml
skipped=

# validate COMMAND FILE: reports the validator's output if the validator rejects the file or prints
# an error, a warning or a hint. Skips validators that are not installed.
validate() {
    local said
    if ! command -v "${1%% *}" >/dev/null; then
        skipped="$skipped ${1%% *}"
    elif ! said=$($1 "$2" 2>&1) || grep -qE '^[^ ]*: (error|warning|hint)' <<<"$said"; then
        complain "$said"
    fi
}

# number_at FILE OFFSET: prints the 32-bit number at this offset in a PNG file.
number_at() {
    od -An -tu1 -j "$2" -N 4 "$1" | awk '{ print (($1 * 256 + $2) * 256 + $3) * 256 + $4 }'
}

check_icon() {
    local size=${1%.png}
    size=${size##*-}
    [ "$(number_at "$1" 16)x$(number_at "$1" 20)" = "${size}x$size" ] || complain "$1: is not $size pixels wide and high"
}

validate desktop-file-validate "$entry"
sed "s/@USSD_APPLICATION_ID@/$placeholder/" "$template" >"$metainfo"
case $placeholder in
org.example.*) ;;
*) complain "CMakeLists.txt: the identifier '$placeholder' is not in a reserved domain" ;;
esac
validate "appstreamcli validate --pedantic --no-net" "$metainfo"
for icon in desktop/icons/*.png; do
    check_icon "$icon"
done
version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
grep -q "<release version=\"$version\"" "$metainfo" || complain "$template: no release $version"
head -n 1 debian/changelog | grep -qF "($version)" || complain "debian/changelog: the version is not $version"
program=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$entry" | sort -u)
[ "$program" = ussd-dashboard ] || complain "$entry: starts $program"
window_entry=$(sed -n 's/.*setDesktopFileName(QLatin1String("\(.*\)")).*/\1/p' src/dashboard/Program.cpp)
[ "$window_entry.desktop" = "${entry##*/}" ] || complain "src/dashboard/Program.cpp: windows belong to the menu entry '$window_entry'"
grep -q "<binary>$program</binary>" "$metainfo" || complain "$template: does not provide $program"
nobody=$(sed -n "s/^NOBODY='\(.*\)'/\1/p" scripts/package.sh)
for file in debian/control debian/changelog; do
    grep -qF "${nobody:-no placeholder}" "$file" || complain "$file: not the maintainer that scripts/package.sh replaces"
done
[ "$faults" -gt 0 ] || [ -z "$skipped" ] || { printf 'not installed:%s\n' "$skipped"; exit 77; }
finish
