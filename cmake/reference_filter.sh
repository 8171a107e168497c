#!/bin/sh
# Input filter of Doxygen. The headers are plain C, whose comments also document what precedes them on
# the same line. Marks these comments, and the comment at the start of a file, for Doxygen.
#   reference_filter.sh FILE
exec sed -E -e '1s@^/\*$@/** \\file@' -e 's@<([a-z])>@\\<\1\\>@g' -e 's@^( *[^ /*][^"]*[^ ]) +/\* (.*)$@\1 /**< \2@' "$1"
