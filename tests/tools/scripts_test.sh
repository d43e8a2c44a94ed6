#!/usr/bin/env bash
# Tests the scripts with invalid arguments, a foreign platform and missing packages. Builds nothing.
# shellcheck disable=SC2016
set -uo pipefail
top=$(cd "$(dirname "$0")/../.." && pwd)
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
failures=0

expect() { # expect WHAT EXPECTED GOT
  [ "$2" = "$3" ] && return
  printf 'FAILED %s: expected "%s", got "%s"\n' "$1" "$2" "$3"
  failures=$((failures + 1))
}

code_of() { # code_of COMMAND...
  "$@" >"$place/out" 2>&1 </dev/null
  echo $?
}

for words in 'run.sh nichts' 'run.sh demo demo' 'test.sh debug' 'check.sh release' 'tests/fuzz/run viel' 'tools/test-in-root'; do
  # shellcheck disable=SC2086
  expect "$words" 2 "$(code_of "$top"/$words)"
done

while IFS='|' read -r lines wanted; do
  printf '%b\n' "$lines" >"$place/os-release"
  got=$(code_of env UFERWART_OS_RELEASE="$place/os-release" bash -euo pipefail -c '. "$0"; require_platform' \
    "$top/tools/setup.sh")
  expect "platform $lines" "$wanted" "$got"
done <<'TXT'
ID=debian\nVERSION_ID="12"|0
ID=debian\nVERSION_ID="13"|0
ID=debian|0
ID=debian\nVERSION_ID="11"|3
ID=ubuntu\nVERSION_ID="24.04"\nID_LIKE=debian|0
ID=ubuntu\nVERSION_ID="22.04"\nID_LIKE=debian|3
ID=linuxmint\nVERSION_ID="22"\nID_LIKE="ubuntu debian"|0
ID=fedora\nVERSION_ID=41|3
NAME=Something|3
TXT

# Stand-ins for the package programs: here only "cmake" and "g++" are installed, and calls of apt-get are noted.
mkdir "$place/bin"
cat >"$place/bin/dpkg-query" <<'SH'
#!/usr/bin/env bash
case ${!#} in cmake | g++) echo installed ;; *) exit 1 ;; esac
SH
cat >"$place/bin/apt-get" <<SH
#!/usr/bin/env bash
echo "\$1 \${*: -2}" >>"$place/calls"
[ "\${*: -1}" != hopeless ]
SH
cat >"$place/bin/sudo" <<'SH'
#!/usr/bin/env bash
exec "$@"
SH
chmod +x "$place"/bin/*
: >"$place/calls"

install() {
  code_of env PATH="$place/bin:$PATH" bash -euo pipefail -c \
    '. "$1"; svg_icons_present() { true; }; shift; ensure_packages "$@"' - "$top/tools/setup.sh" "$@"
}
expect 'nothing missing' 0 "$(install cmake g++)"
expect 'nothing missing, said' '' "$(cat "$place/out" "$place/calls")"
expect 'two missing' 0 "$(install cmake ninja-build g++ libzip-dev)"
expect 'two missing, calls' $'update update -q\ninstall ninja-build libzip-dev' "$(cat "$place/calls")"
expect 'two missing, said' '== Installing: ninja-build libzip-dev' "$(cat "$place/out")"
expect 'not to be had' 4 "$(install cmake hopeless)"

if [ "$failures" -eq 0 ]; then echo "the scripts answer as they should"; fi
exit $((failures > 0))
