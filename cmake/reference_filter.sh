#!/bin/sh
# An input filter for Doxygen. The public headers are plain C and contain comments that document the
# code before them on the same line. The filter marks these comments, and the comment at the start
# of a file, for Doxygen.
#   reference_filter.sh FILE
exec sed -E -e '1s@^/\*$@/** \\file@' -e 's@<([a-z])>@\\<\1\\>@g' -e 's@^( *[^ /*][^"]*[^ ]) +/\* (.*)$@\1 /**< \2@' "$1"
