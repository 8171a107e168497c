#!/bin/sh
# seal_translation.sh FILE.qm: appends the SHA-1 of the file, so that a damaged one is known before a
# translator reads it, which would crash. It is a section of the file's own format, 40 ("(") bytes
# long; translators pass over its tag, "S". Languages.cpp reads it.
set -e
sum=$(sha1sum <"$1")
printf 'S\000\000\000(%.40s' "$sum" >>"$1"
