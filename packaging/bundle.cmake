# Part of the installing: brings along what the program needs and a desktop without Qt does not have, with the
# licences of each. Which libraries those are is asked of the programs and plug-ins themselves.
# Given: folder, programs (as built), qt_plugins, qt_translations, handbook.

cmake_minimum_required(VERSION 3.25)

# The window systems, input of accents and other scripts, drawing of icons, and the printers.
set(plugins
    platforms/libqxcb.so platforms/libqoffscreen.so platforms/libqwayland-generic.so
    wayland-shell-integration/libxdg-shell.so wayland-decoration-client/libbradient.so
    platforminputcontexts/libcomposeplatforminputcontextplugin.so
    platforminputcontexts/libibusplatforminputcontextplugin.so
    iconengines/libqsvgicon.so imageformats/libqsvg.so printsupport/libcupsprintersupport.so)
# Without these there is no start, no picture or no German.
set(required platforms/libqxcb.so platforms/libqoffscreen.so imageformats/libqsvg.so)

# Every desktop has these, and they must fit its kernel, its drivers, its fonts and its printers. The rest is
# brought along: also libOpenGL, which Qt is linked to and no desktop needs.
set(left_to_the_machine
    "^ld-linux" "^lib(c|m|dl|rt|pthread|resolv|util|stdc\\+\\+|gcc_s|asan|ubsan)\\.so"
    "^lib(X11|X11-xcb|xcb|Xau|Xdmcp|Xext|bsd|md)\\.so" "^lib(GL|EGL|GLX|GLdispatch)\\.so"
    "^libwayland-(client|egl)\\.so" "^lib(drm|gbm|ffi)\\.so"
    "^lib(fontconfig|freetype|harfbuzz|graphite2|expat|png16|z)\\.so" "^libbrotli"
    "^lib(glib-2\\.0|pcre2-8|dbus-1|systemd|cap|gcrypt|gpg-error|lzma|lz4|zstd|uuid)\\.so" "^libcups\\.so")

set(fonts LiberationSans-Regular.ttf LiberationSans-Bold.ttf LiberationSans-Italic.ttf
          LiberationSans-BoldItalic.ttf ComicNeue-Regular.otf ComicNeue-Bold.otf)

# What is brought along, as it is called on this machine.
set(brought)

# Under one name and never as a symbolic link, which a memory stick could not hold.
function(bring file name)
  file(REAL_PATH "${file}" real)
  cmake_path(GET name PARENT_PATH place)
  file(MAKE_DIRECTORY "${folder}/${place}")
  file(COPY_FILE "${real}" "${folder}/${name}" ONLY_IF_DIFFERENT)
  set(brought ${brought} "${real}" PARENT_SCOPE)
endfunction()

foreach(plugin ${plugins})
  if(EXISTS "${qt_plugins}/${plugin}")
    bring("${qt_plugins}/${plugin}" plugins/${plugin})
    list(APPEND modules "${qt_plugins}/${plugin}")
  elseif(plugin IN_LIST required)
    message(FATAL_ERROR "The plug-in ${plugin} is missing in ${qt_plugins}")
  endif()
endforeach()

file(GET_RUNTIME_DEPENDENCIES
     EXECUTABLES ${programs}
     MODULES ${modules}
     PRE_EXCLUDE_REGEXES ${left_to_the_machine}
     RESOLVED_DEPENDENCIES_VAR libraries)
foreach(library ${libraries})
  cmake_path(GET library FILENAME name)
  bring("${library}" lib/${name})
endforeach()

bring("${qt_translations}/qtbase_de.qm" translations/qtbase_de.qm)

foreach(font ${fonts})
  # Of two generations of a font the newer one has the freer licence: "liberation2", which sorts behind.
  file(GLOB candidates /usr/share/fonts/*/*/${font})
  list(SORT candidates ORDER DESCENDING)
  if(candidates)
    list(GET candidates 0 candidate)
    bring("${candidate}" fonts/${font})
  else()
    message(WARNING "The font ${font} is missing; the program will look for one of its kind.")
  endif()
endforeach()

file(GLOB_RECURSE pages RELATIVE "${handbook}" "${handbook}/*.html" "${handbook}/*.css" "${handbook}/*.png"
     "${handbook}/*.svg")
foreach(page ${pages})
  cmake_path(GET page PARENT_PATH place)
  file(INSTALL "${handbook}/${page}" DESTINATION "${folder}/Handbuch/${place}")
endforeach()

include("${CMAKE_CURRENT_LIST_DIR}/notices.cmake")
