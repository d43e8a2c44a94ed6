#pragma once

#include <QByteArray>
#include <QString>

// Files for the office programs are written in Windows-1252, the code page they expect on a German machine.

/// A letter whose marks or stroke the code page lacks loses them; what else it lacks becomes "?", one for
/// each character (a surrogate pair is one).
QByteArray toWindows1252(const QString& text);

/// Every byte has a character; the five bytes that the code page leaves undefined become the control
/// characters of the same number, and toWindows1252 turns them back.
QString fromWindows1252(const QByteArray& bytes);
