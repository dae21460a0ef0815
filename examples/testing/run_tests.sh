#!/bin/sh
# Plays every test. Usage: run_tests.sh [PLAYER]
# Fails if a test fails, a callback raises an error, or --strict reports anything.
cd "$(dirname "$0")" || exit 1
player=${1:-velora-play}
status=0
for test in tests/*_test.lua; do
  echo "== $test"
  "$player" --strict --frames 3600 "$test" || { echo "FAILED with status $?"; status=1; }
done
exit $status
