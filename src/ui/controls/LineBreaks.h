#pragma once

#include <QRegularExpression>

/// The text with every line break as a single "\n". The program's texts hold "\r\n" and "\n\r"; either pair
/// is one break.
inline QString withPlainBreaks(QString text) {
    static const QRegularExpression anyBreak(QStringLiteral("\r\n|\n\r|\r"));
    return text.replace(anyBreak, QStringLiteral("\n"));
}
