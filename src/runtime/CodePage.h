#pragma once

#include <QString>

// Conversion to and from Windows-1252, in which files for the office programs are written: they expect that
// code page on a German computer.

/// A letter that the code page lacks loses its marks or stroke. Any other character that it lacks becomes one
/// "?", a surrogate pair too.
QByteArray toWindows1252(const QString& text);

/// Every byte gives a character. The five undefined bytes become the control characters of the same number;
/// toWindows1252() reverses that.
QString fromWindows1252(const QByteArray& bytes);
