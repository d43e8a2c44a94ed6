#!/usr/bin/env bash
# Enters Uferwart into the menu of the user who runs it, or takes it out again.
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

# A text as the value of a key.
as_value() { printf '%s' "${1//\\/\\\\}"; }

# A path as what Exec starts: quoted, its percent signs no field codes, and all that as a value. GNOME looks for
# the first word as it stands, and would not find one with a doubled percent sign.
as_command() {
  local word=$1 sign
  for sign in \\ \" \` \$; do word=${word//"$sign"/"\\$sign"}; done
  case $word in *%*) printf 'env ' ;; esac
  as_value "\"${word//%/%%}\""
}

# The delivered entry with the paths of this folder.
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

# Most menus notice by themselves; the rest reads a cache, or looks at the age of the icon folder.
tell_menu() {
  if command -v update-desktop-database >/dev/null; then
    update-desktop-database -q "$data/applications" || true
  fi
  if [ -d "$data/icons/hicolor" ]; then touch "$data/icons/hicolor"; fi
}

# A file that nobody has written to is made anew with this year, so that the first login does not begin with a
# change of the year. As soon as there is anything in it, the checksum is another one, and the file stays.
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
  # An entry whose program is gone belongs to nobody: its folder has been moved or deleted.
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
