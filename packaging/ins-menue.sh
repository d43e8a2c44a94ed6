#!/usr/bin/env bash
# Adds Uferwart to the menu of the user who runs this script, or removes it from there.
set -euo pipefail

folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
data=${XDG_DATA_HOME:-$HOME/.local/share}
entry=$data/applications/uferwart.desktop

usage() {
  cat <<TXT
Aufruf: ./ins-menue.sh [--entfernen]

  ./ins-menue.sh               trägt Uferwart mit seinem Symbol in Ihr Menü ein
  ./ins-menue.sh --entfernen   nimmt es wieder heraus; Programm und Daten bleiben

Wenn Sie den Ordner verschieben, führen Sie es dort noch einmal aus.
TXT
}

fail() {
  printf 'Uferwart: %s\n' "$*" >&2
  exit 1
}

# as_value TEXT: escapes a text as the value of a key in a .desktop file.
as_value() { printf '%s' "${1//\\/\\\\}"; }

# as_command PATH: escapes a path as the value of Exec: quoted, with percent signs doubled, since single ones begin
# field codes. GNOME looks for the first word without undoing this, so a path with a percent sign goes after "env".
as_command() {
  local word=$1 sign
  for sign in \\ \" \` \$; do word=${word//"$sign"/"\\$sign"}; done
  case $word in *%*) printf 'env ' ;; esac
  as_value "\"${word//%/%%}\""
}

# Prints the delivered menu entry with the paths of this folder.
menu_entry() {
  local line
  while IFS= read -r line; do
    case $line in
      Exec=*)
        printf 'Exec=%s\n' "$(as_command "$folder/uferwart")"
        printf 'TryExec=%s\n' "$(as_value "$folder/uferwart")"
        printf 'Path=%s\n' "$(as_value "$folder")"
        ;;
      *) printf '%s\n' "$line" ;;
    esac
  done <"$folder/share/applications/uferwart.desktop"
}

icons() { (cd "$folder/share" && find icons -type f -name 'uferwart.*'); }

# Most menus notice the change. Others read a cache, or check the time of the icon folder.
tell_menu() {
  if command -v update-desktop-database >/dev/null; then
    update-desktop-database -q "$data/applications" || true
  fi
  if [ -d "$data/icons/hicolor" ]; then touch "$data/icons/hicolor"; fi
}

# Replaces an unused database by one of this year, so that the first login does not begin with a change of the
# year. The checksum shows that the database is unused; a database with data stays.
renew_untouched_file() {
  (cd "$folder" && sha256sum --check --status share/uw01.mdb.sha256) 2>/dev/null || return 0
  local made
  made=$(mktemp -d "$folder/temp/neu.XXXXXX")
  if "$folder/uferwart-neu" "$made"; then mv -f "$made/uw01.mdb" "$folder/uw01.mdb"; fi
  rm -rf "$made"
}

enter() {
  [ -x "$folder/uferwart" ] || fail "Das Programm fehlt im Ordner $folder."
  case $folder in *$'\n'*) fail 'Der Name des Ordners enthält einen Zeilenumbruch.' ;; esac
  local icon
  icons | while IFS= read -r icon; do install -D -m 644 "$folder/share/$icon" "$data/$icon"; done
  install -d "$data/applications"
  menu_entry >"$entry"
  tell_menu
  renew_untouched_file
  echo "Uferwart steht jetzt in Ihrem Menü und startet aus dem Ordner $folder."
}

take_out() {
  [ -e "$entry" ] || fail 'Im Menü steht kein Uferwart.'
  # If the program of the entry is gone, its folder was moved or deleted: then any copy may remove the entry.
  local icon owner
  owner=$(sed -n 's/^Path=//p' "$entry")
  owner=${owner//\\\\/\\}
  [ "$owner" = "$folder" ] || [ ! -x "$owner/uferwart" ] ||
    fail "Im Menü steht Uferwart aus dem Ordner $owner. Entfernen Sie es dort."
  rm -f "$entry"
  icons | while IFS= read -r icon; do rm -f "$data/$icon"; done
  tell_menu
  echo "Uferwart steht nicht mehr in Ihrem Menü. Programm und Daten sind noch im Ordner $folder."
}

case $#:${1:-} in
  0:) enter ;;
  1:--entfernen) take_out ;;
  1:-h | 1:--help | 1:--hilfe) usage ;;
  *) usage >&2 && exit 2 ;;
esac
