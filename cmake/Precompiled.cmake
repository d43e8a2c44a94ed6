# Headers of Qt and the language that most files read: read once a library instead of once a file. None of
# ours is among them, so that the arrows between our libraries stay visible to the compiler.
set(uw_core_headers <QByteArray> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QList> <QObject> <QString>
    <QStringList> <QVariant> <algorithm> <array> <functional> <map> <memory> <optional> <span> <utility>
    <variant> <vector>)
set(uw_widget_headers ${uw_core_headers} <QApplication> <QBoxLayout> <QCheckBox> <QGridLayout> <QGroupBox> <QIcon>
    <QKeyEvent> <QLabel> <QLineEdit> <QPainter> <QPushButton> <QTabWidget> <QToolButton> <QWidget>)

# uw_precompile(TARGET core|widgets)
function(uw_precompile target kind)
  if(kind STREQUAL widgets)
    target_precompile_headers(${target} PRIVATE ${uw_widget_headers})
  else()
    target_precompile_headers(${target} PRIVATE ${uw_core_headers})
  endif()
endfunction()
