#!/usr/bin/env bash
# What must hold before a commit: format, build, lint, tests.
# usage: ./check.sh [full]   (full: the tests once more under the sanitizers)
set -euo pipefail
# shellcheck source=tools/setup.sh
. "$(dirname "$0")/tools/setup.sh"

case $#:${1:-} in
  0: | 1:full) ;;
  *) fail 2 "usage: ./check.sh [full]" ;;
esac

check_format() {
  say "Format"
  git -C "$top" ls-files -z '*.h' '*.cpp' |
    (cd "$top" && xargs -0 --no-run-if-empty clang-format --dry-run -Werror)
}

# clang-tidy reads the compiler's own command lines; an option that only g++ knows would stop it.
lint_database() {
  mkdir -p "$top/build/lint"
  sed -e 's/ -mno-direct-extern-access//g' "$top/build/release/compile_commands.json" \
    >"$top/build/lint/compile_commands.json"
}

check_lint() {
  say "Lint"
  lint_database
  git -C "$top" ls-files -z 'src/*.cpp' 'tools/*.cpp' |
    (cd "$top" && xargs -0 --no-run-if-empty -n 1 -P 2 clang-tidy -p build/lint --quiet 2>&1) |
    grep -v ' warnings\? generated\.$' || [ "${PIPESTATUS[1]}" = 0 ]
}

require_platform
ensure_packages "${build_packages[@]}" "${lint_packages[@]}"
check_format
build release
check_lint
"$top/test.sh"
if [ "${1:-}" = full ]; then "$top/test.sh" sanitize; fi
say "All checks passed"
