#!/bin/bash
# Runs clang-tidy over source files, all of them unless some are named; any finding fails: scripts/lint.sh [FILE...]
set -uo pipefail
cd "$(dirname "$0")/.."

# The command lines of the tests' build, but for the precompiled headers, which are another compiler's.
cmake --preset dev >/dev/null || exit
mkdir -p build/lint
sed 's/ -Winvalid-pch -include [^ ]*//' build/dev/compile_commands.json >build/lint/compile_commands.json

if [[ $# -gt 0 ]]; then
    printf '%s\0' "$@"
else
    find app engine store ui tests -name '*.cpp' -print0
fi | xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p build/lint 2>&1 |
    grep --line-buffered -v ' warnings generated\.$' || [[ ${PIPESTATUS[1]} -eq 0 ]]
