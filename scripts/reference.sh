#!/usr/bin/env bash
# Generates the reference documentation of the public headers with Doxygen, in FOLDER/tksv for the
# device SDK and in FOLDER/ussd-ui-plugin for hosts. Fails if Doxygen prints a warning, for example
# because a function has no comment.
#     scripts/reference.sh FOLDER
set -eu
folder=$(realpath -m "$1")
cd "$(dirname "$0")/.."

# settings NAME BRIEF HEADER...: prints the Doxygen settings.
settings()
{
    local name=$1 brief=$2
    shift 2
    sed -e '/^#/d' cmake/Doxyfile
    printf '%s\n' "PROJECT_NAME=$name" "PROJECT_BRIEF=\"$brief\"" "PROJECT_NUMBER=$version" \
        "OUTPUT_DIRECTORY=$folder" "HTML_OUTPUT=$name" \
        "INPUT=docs/reference/$name.md $*" "USE_MDFILE_AS_MAINPAGE=docs/reference/$name.md"
}

version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
mkdir -p "$folder"
settings tksv "Device SDK" src/sdk/tksv.h src/sdk/tksv_device.h | doxygen -
settings ussd-ui-plugin "Interfaces of host and plug-in" src/core/common \
    src/core/HostState.h src/core/Languages.h src/core/PluginFolderChoice.h | doxygen -
