#!/usr/bin/env bash
# Checks which headers the files of each folder may include.
. "$(dirname "$0")/common.sh"

standard='^[a-z_]+$'
qt='^Q[A-Za-z0-9]+$'
any='.'

# check FILES ANGLE QUOTED...: ANGLE is a pattern that matches the permitted headers in <>. QUOTED
# are the folders and single files whose headers may be included in "".
check() {
    local files=$1 angle=$2 file name
    [ -n "$files" ] || return 0
    shift 2
    while IFS= read -r file; do
        while IFS= read -r name; do
            [[ $name =~ $angle ]] || complain "$file: includes <$name>"
        done < <(sed -nE 's/^[[:space:]]*#[[:space:]]*include[[:space:]]*<([^>]+)>.*/\1/p' "$file")
        while IFS= read -r name; do
            case "$name" in
            *.moc | moc_*.cpp) continue ;;
            esac
            allowed "$name" "$file" "$@" || complain "$file: includes \"$name\""
        done < <(sed -nE 's/^[[:space:]]*#[[:space:]]*include[[:space:]]*"([^"]+)".*/\1/p' "$file")
    done < <(printf '%s\n' "$files")
}

allowed() {
    local name=$1 file=$2 place
    shift 2
    for place in "$@"; do
        if [ -d "$place" ]; then
            lies_in_folder "$name" "$file" "$place" && return 0
        elif [ "$name" = "${place##*/}" ]; then
            return 0
        fi
    done
    return 1
}

# lies_in_folder NAME FILE FOLDER: succeeds if the header NAME that FILE includes is inside FOLDER.
lies_in_folder() {
    local name=$1 file=$2 folder=$3 candidate path
    for candidate in "${file%/*}/$name" "$folder/$name" "${folder%/*}/$name"; do
        [ -f "$candidate" ] || continue
        path=$candidate
        [[ $path != *./* ]] || path=$(realpath --relative-to=. "$candidate") # starting a program takes time
        case "$path" in
        "$folder"/*) return 0 ;;
        esac
    done
    return 1
}

core_own=$(cpp_files src/core | grep -v '^src/core/common/')
# check_layers ANGLE PARENT BELOW FOLDER...: each FOLDER in PARENT may include headers from BELOW
# and from the folders listed before it. The files directly in PARENT may include headers from all
# of these folders.
check_layers() {
    local angle=$1 parent=$2 below=$3 folder
    shift 3
    for folder in "$@"; do
        below+=" $parent/$folder"
        # shellcheck disable=SC2086 # a list of words
        check "$(cpp_files "$parent/$folder")" "$angle" $below
    done
    # shellcheck disable=SC2086 # a list of words
    check "$(cpp_files "$parent" | grep -v "^$parent/.*/")" "$angle" "$parent" $below
}

contracts="src/core/common src/compat src/files src/sdk/tksv.h"
check_layers "$qt|$standard" src/USSDUIPlugin "src/formats $contracts" \
    base markup requests profiles windows
check "$(cpp_files src/formats)" "$qt|$standard" src/formats src/compat src/files src/sdk/tksv.h
check "$(cpp_files src/core/common)" "$qt|$standard" src/core/common src/compat
check "$core_own" "$any" src/core src/core/common src/compat src/files
check "$(cpp_files src/compat)" "$qt|$standard" src/compat
check "$(cpp_files src/files)" "$qt|$standard" src/files
check_layers "$any" src/dashboard \
    "src/provisioning src/formats src/core src/chains $contracts src/sdk/tksv_device.h src/cli/FailureText.h
    src/cli/ExitCodes.h" \
    base look device plugin sim account messages pages window tour
check "$(cpp_files src/provisioning)" '^[a-zA-Z_/.]+$' src/provisioning src/formats src/compat src/files
check "$(cpp_files src/tools)" "$any" src/tools src/provisioning src/formats src/core \
    src/core/common src/compat src/files src/sdk
sdk_angle='^[a-pr-zA-PR-Z]' # excludes Qt headers
sdk_headers='src/sdk/tksv.h src/sdk/tksv_device.h'
check "$(cpp_files src/chains)" "$sdk_angle" src/chains
check "$(cpp_files src/cli)" "$sdk_angle" src/cli src/chains $sdk_headers
sdk_top=$(cpp_files src/sdk | grep -vE '^src/sdk/(base|sim|modemmanager)/')
check "$sdk_top" "$sdk_angle" src/sdk
check "$(cpp_files src/sdk/base)" "$sdk_angle" src/sdk/base $sdk_headers
check "$(cpp_files src/sdk/sim)" "$sdk_angle" src/sdk/sim src/sdk/base $sdk_headers
check "$(cpp_files src/sdk/modemmanager)" "$sdk_angle" src/sdk/modemmanager src/sdk/base $sdk_headers
check "$(cpp_files src/sdk | grep -E '/tksv(_device)?\.h$')" '^(std(int|def)|time)\.h$' src/sdk/tksv.h
finish
