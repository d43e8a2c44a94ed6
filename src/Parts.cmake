# One folder is one library with one include path. A part sees its own headers, those of the parts it uses and
# of what these use in turn; an include of anything else is not found.
#
# uw_part(FOLDER [USES PART...] [HIDDEN PART...])
#   FOLDER  below src/, which names the library: store/records becomes uw_store_records
#   USES    parts, by their folders, or imported targets; passed on to whoever uses this part
#   HIDDEN  the same, but not passed on
function(uw_part folder)
  cmake_parse_arguments(PARSE_ARGV 1 part "" "" "USES;HIDDEN")
  uw_part_target(target ${folder})
  file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
  add_library(${target} STATIC ${sources})
  # Named so that a new header is seen by the meta-object compiler in a build folder that is there already.
  set_target_properties(${target} PROPERTIES AUTOGEN_TARGET_DEPENDS "${sources}")
  target_include_directories(${target} PUBLIC ${folder})
  uw_part_targets(uses ${part_USES})
  uw_part_targets(hidden ${part_HIDDEN})
  target_link_libraries(${target} PUBLIC ${uses} PRIVATE ${hidden})
  uw_precompile(${target} "${uses}")
endfunction()

function(uw_part_target result folder)
  string(REPLACE "/" "_" name ${folder})
  set(${result} uw_${name} PARENT_SCOPE)
endfunction()

function(uw_part_targets result)
  set(targets "")
  foreach(used ${ARGN})
    if(NOT used MATCHES "::")
      uw_part_target(used ${used})
    endif()
    list(APPEND targets ${used})
  endforeach()
  set(${result} ${targets} PARENT_SCOPE)
endfunction()

# Headers of Qt and the language that most files read: read once instead of once a file. None of ours is among
# them, so that the arrows between our parts stay visible to the compiler. The first part without widgets and the
# first with them build theirs, the others share these.
set(uw_core_headers <QByteArray> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QList> <QObject> <QString>
    <QStringList> <QVariant> <algorithm> <array> <functional> <map> <memory> <optional> <span> <utility>
    <variant> <vector>)
set(uw_widget_headers ${uw_core_headers} <QApplication> <QBoxLayout> <QCheckBox> <QGridLayout> <QGroupBox> <QIcon>
    <QKeyEvent> <QLabel> <QLineEdit> <QPainter> <QPushButton> <QTabWidget> <QToolButton> <QWidget>)

# uw_precompile(TARGET USED): with the headers of widgets if one of the used targets has them. Only such parts can
# have classes for the meta-object compiler.
function(uw_precompile target used)
  set(kind core)
  foreach(library ${used})
    get_target_property(inherited ${library} UW_KIND)
    if(library STREQUAL "Qt6::Widgets" OR inherited STREQUAL "widget")
      set(kind widget)
    endif()
  endforeach()
  set_target_properties(${target} PROPERTIES UW_KIND ${kind})
  if(kind STREQUAL "widget")
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
  endif()
  get_property(owner GLOBAL PROPERTY uw_precompiled_${kind})
  if(owner)
    target_precompile_headers(${target} REUSE_FROM ${owner})
  else()
    target_precompile_headers(${target} PRIVATE ${uw_${kind}_headers})
    set_property(GLOBAL PROPERTY uw_precompiled_${kind} ${target})
  endif()
endfunction()
