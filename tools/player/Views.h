#pragma once

#include <QStringList>

class QWidget;

/// What a user sees of the program as a whole.
namespace Views {

/// On the stage of the frame, or the window that stands alone before there is a frame to see or above it.
const QWidget* frontScreen();
QString cursor();
QStringList bar();
QString status();
QString state(const QString& name);
/// A file in code page 1252, its line ends shown.
QStringList linesOf(const QString& path);
/// The previewed report: all of it, or its `rows` and the sections and controls that are named.
QStringList report(const QStringList& words);
void saveReport(const QString& path);

} // namespace Views
