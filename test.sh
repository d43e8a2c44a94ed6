#!/usr/bin/env bash
# Builds everything with warnings as errors and runs all tests without a display.
# usage: ./test.sh [PRESET]   (release, the default, or sanitize)
set -euo pipefail
# shellcheck source=tools/setup.sh
. "$(dirname "$0")/tools/setup.sh"

preset=${1:-release}
case $#:$preset in
  [01]:release | 1:sanitize) ;;
  *) fail 2 "usage: ./test.sh [release|sanitize]" ;;
esac

require_platform
ensure_packages "${build_packages[@]}" "${test_packages[@]}"
build "$preset"
settle_test_environment
say "Testing in build/$preset"

# Prints the tests that were left out and what they need, so that nobody takes them for passed.
tell_left_out() {
  local left_out
  left_out=$(awk '/^needs / { why = $0 } /^\[  SKIPPED \] .* ms\)$/ { print "  " $4 " " why }' \
    "$top/build/$preset/Testing/Temporary/LastTest.log" | sort -u)
  if [ "$preset" = sanitize ]; then left_out+=$'\n  delivery is tested in the release build only'; fi
  if [ -n "$left_out" ]; then say "LEFT OUT"$'\n'"$left_out"; else say "No test was left out"; fi
}

status=0
ctest --test-dir "$top/build/$preset" -j"$(nproc)" --output-on-failure --no-tests=error || status=$?
tell_left_out
exit "$status"
