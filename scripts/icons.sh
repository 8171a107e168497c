#!/usr/bin/env bash
# Renders the PNG files of the program icon from its SVG file. Requires the librsvg2-bin package.
set -eu
cd "$(dirname "$0")/../desktop/icons"
for size in 16 22 24 32 48 64 128 256; do
    rsvg-convert --width "$size" --height "$size" ussd-dashboard.svg --output "ussd-dashboard-$size.png"
done
