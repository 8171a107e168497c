#!/usr/bin/env bash
# Simulates months of use in minutes by sending a million commands and opening ten thousand windows.
# Writes build/soak/soak.png and soak.txt. The exit status is 0 if all measured resources stay
# within their permitted growth.
#     scripts/soak.sh [--commands N] [--openings N] [--report FOLDER]
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh

install_missing_packages run qt5 test test-qt5
say "Building preset quick; the first time this takes some minutes."
configure_and_build quick soak translations

export QT_QPA_PLATFORM=offscreen QT_HASH_SEED=0 TKSV_BACKEND=simulator
# Disables malloc's caches of small free blocks, which would count as used memory. The values are
# the same as in tests/soak/CMakeLists.txt.
export GLIBC_TUNABLES=glibc.malloc.tcache_count=0:glibc.malloc.mxfast=0:glibc.malloc.arena_max=1
exec nice build/quick/tests/bin/soak --commands 1000000 --openings 10000 --report build/soak "$@"
