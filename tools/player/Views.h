#pragma once

#include <QStringList>

class QWidget;

/// The state of the whole program, as a user sees it.
namespace Views {

/// The screen in front: a window above the frame, else the screen on the stage, else the frame. If the frame
/// is not visible, the last visible window; null if there is none.
const QWidget* frontScreen();
QString cursor();
QStringList bar();
QString status();
QString state(const QString& name);
/// The lines of a file in code page 1252, with their line ends. CommandFailure if there is no such file.
QStringList linesOf(const QString& path);
/// The previewed report: all of it, or only the named sections and controls and, with `rows`, its rows.
QStringList report(const QStringList& words);
void saveReport(const QString& path);

} // namespace Views
