#!/bin/bash
# Builds everything and runs every test, windows included.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-packages.sh build virtual-display test
cmake --preset dev >/dev/null
cmake --build --preset dev
exec ctest --preset dev
