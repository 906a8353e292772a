#!/bin/bash
# Builds Quillon and starts it. On a machine without a display it starts it on a virtual one, chooses two systems from the
# shipped catalogues, and leaves a picture of the window.
set -euo pipefail
cd "$(dirname "$0")"

has_display() { [[ -n "${DISPLAY:-}" || -n "${WAYLAND_DISPLAY:-}" ]]; }

groups=(build)
if ! has_display; then
    groups+=(virtual-display)
elif [[ -z "${DISPLAY:-}" ]]; then
    groups+=(wayland)
fi
scripts/install-packages.sh "${groups[@]}"

cmake --preset release >/dev/null
cmake --build --preset release

program="$PWD/build/release/program/Quillon"
if has_display; then
    exec "$program"
fi
echo "There is no display here, so Quillon starts on a virtual one."
scripts/on-virtual-display.sh /usr/bin/python3 -B scripts/take_picture.py "$program" "$PWD/build/release/Quillon.png"
