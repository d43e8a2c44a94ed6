#!/usr/bin/env bash
# Checks a tree before a commit: format, build, lint of the changed files, tests.
# usage: ./check.sh [full]   (full: lint of all files, and the tests once more under the sanitizers)
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

# Copies the compiler's command lines for clang-tidy, without the option and the precompiled header that only g++
# knows: they would stop clang-tidy.
lint_database() {
  mkdir -p "$top/build/lint"
  sed -E -e 's/ -mno-direct-extern-access//g; s/ -Winvalid-pch -include [^ ]+cmake_pch\.hxx//g' \
    "$top/build/release/compile_commands.json" >"$top/build/lint/compile_commands.json"
}

# The sources that differ from origin/main (or from HEAD if there is none); with "full" all sources.
sources_to_lint() {
  if [ "$1" = full ]; then
    git -C "$top" ls-files 'src/*.cpp' 'tools/*.cpp'
  else
    local landed
    landed=$(git -C "$top" rev-parse -q --verify origin/main || git -C "$top" rev-parse HEAD)
    git -C "$top" diff --name-only --diff-filter=d "$landed" -- 'src/*.cpp' 'tools/*.cpp'
  fi
}

check_lint() {
  say "Lint"
  lint_database
  sources_to_lint "$1" |
    (cd "$top" && xargs --no-run-if-empty -n 1 -P "$(nproc)" clang-tidy -p build/lint --quiet 2>&1) |
    grep -v ' warnings\? generated\.$' || [ "${PIPESTATUS[1]}" = 0 ]
}

require_platform
ensure_packages "${build_packages[@]}" "${lint_packages[@]}"
check_format
build release
check_lint "${1:-changed}"
"$top/test.sh"
if [ "${1:-}" = full ]; then "$top/test.sh" sanitize; fi
say "All checks passed"
