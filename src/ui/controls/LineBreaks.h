#pragma once

#include <QString>

/// The text with every line break as a single "\n". The program's texts hold "\r\n" and "\n\r"; either pair
/// is one break.
QString withPlainBreaks(const QString& text);
