# Part of the installation: copies the files that the program needs and a desktop without Qt lacks, with their
# licences. The libraries are those that the programs and plug-ins are linked to.
# Variables to set before: folder, programs (as built), qt_plugins, qt_translations, handbook.

cmake_minimum_required(VERSION 3.25)

# For the window systems, the input of accents and other scripts, the drawing of icons, and the printers.
set(plugins
    platforms/libqxcb.so platforms/libqoffscreen.so platforms/libqwayland-generic.so
    wayland-shell-integration/libxdg-shell.so wayland-decoration-client/libbradient.so
    platforminputcontexts/libcomposeplatforminputcontextplugin.so
    platforminputcontexts/libibusplatforminputcontextplugin.so
    iconengines/libqsvgicon.so imageformats/libqsvg.so printsupport/libcupsprintersupport.so)
# Without these the program does not start or has no icons.
set(required platforms/libqxcb.so platforms/libqoffscreen.so imageformats/libqsvg.so)

# Not copied: every desktop has these, and they must fit its kernel, drivers, fonts and printers. All others are
# copied, even libOpenGL: Qt is linked to it, but a desktop may lack it.
set(left_to_the_machine
    "^ld-linux" "^lib(c|m|dl|rt|pthread|resolv|util|stdc\\+\\+|gcc_s|asan|ubsan)\\.so"
    "^lib(X11|X11-xcb|xcb|Xau|Xdmcp|Xext|bsd|md)\\.so" "^lib(GL|EGL|GLX|GLdispatch)\\.so"
    "^libwayland-(client|egl)\\.so" "^lib(drm|gbm|ffi)\\.so"
    "^lib(fontconfig|freetype|harfbuzz|graphite2|expat|png16|z)\\.so" "^libbrotli"
    "^lib(glib-2\\.0|pcre2-8|dbus-1|systemd|cap|gcrypt|gpg-error|lzma|lz4|zstd|uuid)\\.so" "^libcups\\.so")

set(fonts LiberationSans-Regular.ttf LiberationSans-Bold.ttf LiberationSans-Italic.ttf
          LiberationSans-BoldItalic.ttf ComicNeue-Regular.otf ComicNeue-Bold.otf)

# The copied files by their paths on this machine.
set(brought)

# Copies a file to `name` in the folder. Follows symbolic links, since a memory stick could not hold them.
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
  # If there are two generations of a font, take the newer one for its freer licence: "liberation2" sorts last.
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
