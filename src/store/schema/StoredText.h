#pragma once

#include <QByteArray>
#include <QString>

// Texts on their way into the file and out of it. What was written is read back sign for sign.

/// The text as a file can hold it: half of a pair of surrogates, which UTF-8 has no bytes for, becomes
/// U+FFFD.
QString storableText(const QString& text);
/// UTF-8 of a storable text.
QByteArray storedBytes(const QString& text);
/// Keeps a U+FEFF at the beginning, which is a sign like any other here.
QString storedText(QByteArrayView bytes);
