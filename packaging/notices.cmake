# Included by bundle.cmake. Finds the packages of the files in `brought` and writes their licences into the folder
# `Lizenzen`, with the long texts that they refer to and a list of the sources.

find_program(dpkg_query dpkg-query)
if(NOT dpkg_query)
  message(WARNING "Without dpkg-query the licences of the libraries can't be found: add them to Lizenzen by hand.")
  return()
endif()

set(licences "${folder}/Lizenzen")
file(MAKE_DIRECTORY "${licences}")

# A package may list its files by the old names, from before /lib became a part of /usr.
list(TRANSFORM brought REPLACE "^/usr/lib/" "/lib/" OUTPUT_VARIABLE old_names)
execute_process(COMMAND ${dpkg_query} -S ${brought} ${old_names} OUTPUT_VARIABLE owners ERROR_QUIET)
string(REGEX MATCHALL "[^\n]+" owners "${owners}")
list(TRANSFORM owners REPLACE "[:,].*" "")
list(SORT owners)
list(REMOVE_DUPLICATES owners)

execute_process(COMMAND ${dpkg_query} -W -f "\${source:Package} \${source:Version} \${Package}\n" ${owners}
                OUTPUT_VARIABLE sources COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" sources "${sources}")
list(SORT sources)

# One licence for each source, since its packages share it.
set(list_of_sources)
set(long_texts)
foreach(entry ${sources})
  separate_arguments(words UNIX_COMMAND "${entry}")
  list(GET words 0 source)
  list(GET words 1 version)
  list(GET words 2 package)
  if(list_of_sources MATCHES "(^|\n)${source}=")
    continue()
  endif()
  string(APPEND list_of_sources "${source}=${version}\n")
  file(REAL_PATH "/usr/share/doc/${package}/copyright" copyright)
  file(COPY_FILE "${copyright}" "${licences}/${source}.txt" ONLY_IF_DIFFERENT)
  file(STRINGS "${copyright}" lines REGEX "/usr/share/common-licenses/")
  string(REGEX MATCHALL "/usr/share/common-licenses/[A-Za-z]+(-[0-9.]*[0-9])?" mentioned "${lines}")
  list(APPEND long_texts ${mentioned})
endforeach()
list(REMOVE_DUPLICATES long_texts)
foreach(text ${long_texts})
  if(EXISTS "${text}")
    cmake_path(GET text FILENAME name)
    file(REAL_PATH "${text}" text)
    file(COPY_FILE "${text}" "${licences}/${name}.txt" ONLY_IF_DIFFERENT)
  endif()
endforeach()

file(WRITE "${licences}/Bibliotheken.txt"
"Uferwart selbst steht unter der MIT-Lizenz (Datei LICENSE im Ordner darüber).

Die Dateien in lib, plugins, translations und fonts sind unverändert aus der Distribution übernommen, auf der
dieser Ordner entstanden ist. Unten stehen ihre Quellpakete mit den Versionen; zu jedem gibt es hier eine
Datei mit seiner Lizenz. Die Quellen bekommt man mit \"apt-get source NAME=VERSION\" oder auf
https://snapshot.debian.org/ (bei Ubuntu: https://launchpad.net/ubuntu).

Qt (qt6-base, qt6-svg, qt6-wayland) steht unter der LGPL 3: Seine Bibliotheken in lib und plugins dürfen
gegen eigene, dazu passende Fassungen ausgetauscht werden.

${list_of_sources}")
