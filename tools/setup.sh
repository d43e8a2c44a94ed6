# shellcheck shell=bash disable=SC2034
# Functions for run.sh, test.sh, check.sh, the benchmarks and others: packages, configured build folder, build.
# Source it. Exit codes: 2 invalid arguments, 3 unknown platform, 4 packages could not be installed.

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '== %s\n' "$*"; }

fail() { # fail CODE MESSAGE...
  local code=$1
  shift
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit "$code"
}

build_packages=(
  g++ cmake ninja-build pkgconf
  qt6-base-dev qt6-translations-l10n
  libsqlcipher-dev libzip-dev libgtest-dev
  fonts-liberation fonts-comic-neue
)
test_packages=(sqlcipher poppler-utils appstream desktop-file-utils libglib2.0-bin)
lint_packages=(clang-format clang-tidy)

# os_release FIELD: prints a field of /etc/os-release.
os_release() {
  local file=${UFERWART_OS_RELEASE:-/etc/os-release}
  [ ! -r "$file" ] || sed -n "s/^$1=//p" "$file" | tr -d "\"'"
}

# Stops with a message on a platform on which the package names above may be wrong.
require_platform() {
  local id version
  id=$(os_release ID)
  version=$(os_release VERSION_ID)
  case $id in
    debian) [ "${version:-999}" = 999 ] || [ "${version%%.*}" -ge 12 ] && return ;; # testing has no number
    ubuntu) [ "${version%%.*}" -ge 24 ] && return ;;
    *) case " $(os_release ID_LIKE) " in *' debian '* | *' ubuntu '*) return ;; esac ;;
  esac
  fail 3 "this runs on Debian 12 and newer and on Ubuntu 24.04 and newer; this is ${id:-an unknown system}" \
    "$version. Elsewhere install a C++20 compiler, CMake 3.25, Ninja, Qt 6.4 (Widgets, PrintSupport, SVG)," \
    "SQLCipher, libzip and GoogleTest, then run: cmake --preset release && cmake --build --preset release"
}

# not_installed PACKAGE...: prints the packages that are not installed.
not_installed() {
  local package
  for package; do
    dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || echo "$package"
  done
}

# Debian 13 moved the plug-in that draws SVG icons into a package of its own.
svg_icons_present() { compgen -G '/usr/lib/*/qt6/plugins/iconengines/libqsvgicon.so' >/dev/null; }
svg_icon_package() {
  if [ -n "$(apt-cache search --names-only '^qt6-svg-plugins$')" ]; then
    echo qt6-svg-plugins
  else
    echo libqt6svg6
  fi
}

as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    fail 4 "neither root nor sudo here; as root run: $*"
  fi
}

# ensure_packages PACKAGE...: installs the missing packages. Silent, and without network, if none is missing.
ensure_packages() {
  local missing
  mapfile -t missing < <(not_installed "$@")
  [ ${#missing[@]} -eq 0 ] && svg_icons_present && return
  say "Installing: ${missing[*]}$(svg_icons_present || echo ' SVG icons for Qt')"
  as_root apt-get update -q || fail 4 "apt-get update failed"
  svg_icons_present || missing+=("$(svg_icon_package)")
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "${missing[@]}" </dev/null ||
    fail 4 "these packages could not be installed: ${missing[*]}"
}

# configure PRESET: does nothing for a configured folder, since Ninja runs CMake again after changes.
configure() {
  [ -f "$top/build/$1/build.ninja" ] && return
  local launcher=()
  command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  say "Configuring build/$1"
  (cd "$top" && cmake --preset "$1" "${launcher[@]}")
}

# build PRESET [TARGET...]
build() {
  local preset=$1
  shift
  configure "$preset"
  say "Building${1:+ $*} in build/$preset"
  NINJA_STATUS='[%f/%t %es] ' cmake --build "$top/build/$preset" --parallel "$(nproc)" ${1:+--target "$@"}
}

# Fixes language, time zone and platform, so that tests do not depend on the machine's settings.
settle_test_environment() {
  export QT_QPA_PLATFORM=offscreen QT_HASH_SEED=0 LC_ALL=C.UTF-8 TZ=UTC
  export XDG_RUNTIME_DIR=$top/build/runtime
  install -d -m 700 "$XDG_RUNTIME_DIR"
  unset QT_STYLE_OVERRIDE QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS QT_QPA_PLATFORMTHEME
}
