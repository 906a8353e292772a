#!/bin/bash
# Draws the icon's sizes from its sources: app/icons/render.sh [FOLDER]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
folder=${1:-$here}

for size in 16 24 32 48 64 128 256; do
    source=quillon.svg
    [[ $size -gt 32 ]] || source=quillon_small.svg
    rsvg-convert --width "$size" --height "$size" --output "$folder/quillon_$size.png" "$here/$source"
done
