#!/bin/sh
# seal_translation.sh FILE.qm: appends the SHA-1 of the file, so that Languages.cpp recognises a
# damaged file before QTranslator reads it and crashes. The checksum is a section in the file's own
# format, 40 ("(") bytes long, with the tag "S", which QTranslator skips.
set -e
sum=$(sha1sum <"$1")
printf 'S\000\000\000(%.40s' "$sum" >>"$1"
