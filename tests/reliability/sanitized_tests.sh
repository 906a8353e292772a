#!/bin/bash
# Runs all tests of the sanitized build, in the language whose capital letters differ most; the first report of a sanitizer
# ends the test that it belongs to.
set -uo pipefail
cd "$(dirname "$0")/../.."

output=$(scripts/in-locale.sh tr_TR.UTF-8 ctest --preset asan 2>&1)
status=$?
printf '%s\n' "$output"
reports=$(grep -cE 'ERROR: (Address|Leak)Sanitizer|: runtime error: ' <<<"$output")
echo "$(grep -oE '[0-9]+ tests failed out of [0-9]+' <<<"$output") test programs, $reports reports"
exit $status
