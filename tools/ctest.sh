#!/usr/bin/env bash
# Runs the tests of a preset on a virtual screen, tells why some were skipped, and repeats the runner's summary at last.
# Usage: tools/ctest.sh PRESET [ARGUMENT FOR CTEST...]
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit

folder=build/$1
shift
tests=$(($(nproc) + 1)) # at once: those of whole windows mostly wait
tools/screen.sh ctest --test-dir "$folder" --output-on-failure --no-tests=error -j "$tests" "$@" | tee "$folder/test.log"
result=${PIPESTATUS[0]}
echo
grep -a '^skipped: ' "$folder/Testing/Temporary/LastTest.log"
grep -a 'tests passed, ' "$folder/test.log" | tail -n 1
exit "$result"
