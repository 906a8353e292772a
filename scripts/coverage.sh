#!/bin/bash
# Counts the lines of engine/ and store/ that the tests run, in a language with a decimal comma, and fails below 100 %.
# scripts/coverage.sh [--html]: with --html the lines themselves, in build/coverage/lines/index.html.
set -euo pipefail
cd "$(dirname "$0")/.."

tests=(quillon_engine_tests quillon_store_tests quillon_data_tests)

scripts/install-packages.sh build test check locales
cmake --preset coverage >/dev/null
cmake --build --preset coverage --target "${tests[@]}"
find build/coverage -name '*.gcda' -delete
for test in "${tests[@]}"; do
    scripts/in-locale.sh pl_PL.UTF-8 "$(find build/coverage/tests -name "$test" -type f)" --gtest_brief=1
done

report=()
if [[ "${1:-}" == --html ]]; then
    mkdir -p build/coverage/lines
    report=(--html-details build/coverage/lines/index.html)
fi
# Only what the tests are made of: the fuzz targets may have been built in there, too.
gcovr --root . --object-directory build/coverage --filter 'engine/' --filter 'store/' \
    --print-summary --txt --fail-under-line 100 "${report[@]}" build/coverage/{engine,store,tests}
