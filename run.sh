#!/usr/bin/env bash
# Builds Uferwart and starts it in a program folder of its own.
set -euo pipefail
# shellcheck source=tools/setup.sh
. "$(dirname "$0")/tools/setup.sh"

usage() {
  cat <<TXT
usage: ./run.sh [demo]

  ./run.sh        builds the program, makes the folder programm/ if there is none yet, starts the program there
  ./run.sh demo   the same in programm-demo/, with an invented club to look at

Without a display it runs the tour instead, a scenario, and leaves the pictures in bilder/.
TXT
}

case $#:${1:-} in
  0:) folder=$top/programm kind=() ;;
  1:demo) folder=$top/programm-demo kind=(--demo) ;;
  1:-h | 1:--help) usage && exit ;;
  *) usage >&2 && exit 2 ;;
esac

# True if Qt can open a window here. If not, display-probe aborts.
display_reachable() {
  [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || return 1
  case ${QT_QPA_PLATFORM:-} in offscreen* | minimal*) return 1 ;; esac
  (ulimit -c 0 && timeout 20 "$top/build/release/tools/display-probe") >/dev/null 2>&1
}

run_tour() {
  local tour=$top/tools/player/rundgang.txt pictures=$top/bilder begun=$top/build/tour-begun
  say "No display here: running the tour without one, with pictures in bilder/"
  : >"$begun"
  "$top/tests/play" --keep "$pictures" "$tour"
  say "Pictures of the tour:"
  find "$pictures" -name '*.png' -newer "$begun" | sort
}

start_program() {
  [ -e "$folder" ] || "$top/build/release/tools/uferwart-neu" "$folder" "${kind[@]}"
  # The program looks for its data beside its executable.
  cp --update --remove-destination "$top/build/release/src/uferwart" "$folder/"
  mkdir -p "$folder/Handbuch/bilder"
  cp --update "$top"/docs/handbuch/*.{html,css} "$folder/Handbuch/"
  cp --update "$top"/docs/handbuch/bilder/*.png "$folder/Handbuch/bilder/"
  say "Starting $folder/uferwart (user Admin, no password)"
  cd "$folder"
  exec ./uferwart
}

require_platform
packages=("${build_packages[@]}")
[ -n "${WAYLAND_DISPLAY:-}" ] && packages+=(qt6-wayland)
ensure_packages "${packages[@]}"
build release uferwart uferwart-neu display-probe
if display_reachable; then start_program; else run_tour; fi
