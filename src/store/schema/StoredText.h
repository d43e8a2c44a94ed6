#pragma once

#include <QByteArray>
#include <QString>

// Conversion of texts to and from the file. A text is read back character for character.

/// The text with each lone surrogate replaced by U+FFFD, since UTF-8 has no bytes for it.
QString storableText(const QString& text);
/// storableText() in UTF-8.
QByteArray storedBytes(const QString& text);
/// The text of UTF-8 bytes. Keeps a U+FEFF at the beginning, which Qt would drop as a byte order mark.
QString storedText(QByteArrayView bytes);
