#!/usr/bin/env bash
# Tests that the plug-in works with the example device library, which LD_LIBRARY_PATH selects.
#     echo_device.sh PROGRAM
set -u
output=$("$1" --once '*100#' 2>&1) && grep -qxF 'Received: Echo simulation: *100#' <<<"$output" && exit 0
tail -n 5 <<<"$output" >&2
exit 1
