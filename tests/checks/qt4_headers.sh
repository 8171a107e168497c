#!/usr/bin/env bash
# Compiles the code that Qt 4 hosts use, with the Qt 4 headers and without linking it:
#     USSD_QT4_INCLUDE=DIR ./test -R qt4_headers
# DIR is the include folder of a Qt 4 installation, which contains QtCore/ and QtGui/. The check is
# skipped if the variable is not set, because Debian does not provide Qt 4. The compiler is $CXX, by
# default g++.
. "$(dirname "$0")/common.sh"

SKIPPED=77
group="src/compat src/core src/files src/formats src/USSDUIPlugin examples/host"

include=${USSD_QT4_INCLUDE:-}
if [ -z "$include" ]; then
    echo "skipped: USSD_QT4_INCLUDE does not name a folder with the headers of Qt 4"
    exit $SKIPPED
fi
if ! grep -qs 'QT_VERSION_STR  *"4\.' "$include/QtCore/qglobal.h"; then
    complain "$include has no QtCore/qglobal.h of Qt 4"
    finish
fi

options=(-fsyntax-only -x c++ -std=c++14 -fPIC -Wall -Wextra -Werror)
options+=(-DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII)
# The macros that the build system defines for individual files.
options+=('-DUSSD_BUILD_KEY="key"' '-DUSSD_PACKAGE_NAME="name"' '-DUSSD_SHARE_FROM_LIB="share"')
for folder in "$include" "$include/QtCore" "$include/QtGui"; do
    options+=(-isystem "$folder")
done
for folder in src/compat src/core src/core/common src/files src/formats src/sdk src/USSDUIPlugin; do
    options+=(-I "$folder")
done

files=0
# Word splitting of the folder list is intended.
# shellcheck disable=SC2086
while IFS= read -r file; do
    files=$((files + 1))
    said=$("${CXX:-g++}" "${options[@]}" "$file" 2>&1) && continue
    complain "$file: $(grep -m 1 -E 'error|not found' <<<"$said" || head -n 1 <<<"$said")"
done < <(cpp_files $group)
echo "$files files compiled with the headers in $include"
[ "$files" -gt 0 ] || complain "there is no file to compile"
finish
