#!/usr/bin/env bash
# Installs the delivered folder under a difficult name, starts it there and enters it into a menu of its own.
# usage: delivery_test.sh CMAKE BUILD_FOLDER
# shellcheck disable=SC2016,SC2317
set -uo pipefail
place=$(mktemp -d)
program=
trap 'kill $program 2>/dev/null; rm -rf "$place"' EXIT
folder=$place/'Unser "Verein" für $HOME, 100% `Angler` \ Süd'
export XDG_DATA_HOME=$place/data XDG_RUNTIME_DIR=$place/runtime QT_QPA_PLATFORM=offscreen
entry=$XDG_DATA_HOME/applications/uferwart.desktop
install -d -m 700 "$XDG_RUNTIME_DIR"
failures=0

holds() { # holds WHAT COMMAND...
  local what=$1
  shift
  "$@" >"$place/out" 2>&1 </dev/null && return
  printf 'FAILED %s\n' "$what"
  cat "$place/out"
  failures=$((failures + 1))
}

fails() { ! "$@"; }
lacks() { ! grep -q "$@"; }
untouched() { (cd "$folder" && sha256sum --check --status share/uw01.mdb.sha256); }
menu() { "$folder/ins-menue.sh" "$@"; }

# True if the program runs from the folder and has its database open: it waits at the login.
runs() {
  for _ in {1..100}; do
    for program in $(pidof uferwart); do
      [ "$(readlink "/proc/$program/exe")" = "$folder/uferwart" ] || continue
      find "/proc/$program/fd" -lname '*/uw01.mdb' 2>/dev/null | grep -q . && return
    done
    sleep 0.1
  done
  program=
  return 1
}

# Renames the folder after installing: CMake takes a quotation mark or a backslash in a prefix for syntax.
holds 'the installing' "$1" --install "$2" --strip --prefix "$place/Unser Verein für Angler"
mv "$place/Unser Verein für Angler" "$folder" || exit 1

holds 'the desktop entry' desktop-file-validate "$folder/share/applications/uferwart.desktop"
holds 'the metainfo' appstreamcli validate --no-net "$folder/share/metainfo/uferwart.metainfo.xml"
holds 'the licence of Qt' grep -q LGPL "$folder/Lizenzen/qt6-base.txt"
holds 'a delivered file' untouched

holds 'the way into the menu' menu
holds 'the entry in the menu' desktop-file-validate "$entry"
holds 'an untouched file, made again for this year' test ! "$(untouched && echo old)"
before=$(sha256sum "$folder/uw01.mdb")
holds 'the way into the menu once more' menu
holds 'a file with data in it, kept' test "$before" = "$(sha256sum "$folder/uw01.mdb")"

holds 'the start from the menu' gio launch "$entry"
holds 'the login' runs
holds 'libraries of its own' lacks -E '/usr/.*/(libQt6|libsqlcipher|libzip|libicu|plugins)' "/proc/$program/maps"

install -D "$folder/ins-menue.sh" "$place/alt/ins-menue.sh"
holds "another folder's entry, kept" fails "$place/alt/ins-menue.sh" --entfernen
holds 'the way out of the menu' menu --entfernen
holds 'nothing left in the menu' test -z "$(find "$XDG_DATA_HOME" -name 'uferwart*')"

if [ "$failures" -eq 0 ]; then echo "the delivered folder runs"; fi
exit $((failures > 0))
