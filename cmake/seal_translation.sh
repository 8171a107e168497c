#!/bin/sh
# seal_translation.sh FILE.qm: appends the SHA-1 checksum of the file. A damaged file could make
# QTranslator crash, so Languages.cpp compares the checksum first. It is stored as a section of
# the QM format with the tag "S" and a length of 40 bytes, which is encoded as the character "(".
# QTranslator skips this section.
set -e
sum=$(sha1sum <"$1")
printf 'S\000\000\000(%.40s' "$sum" >>"$1"
