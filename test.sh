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
ctest --test-dir "$top/build/$preset" -j2 --output-on-failure --no-tests=error
