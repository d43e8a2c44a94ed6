#pragma once

#include <QString>

/// A text as it is printed on one line: its line breaks as \r and \n.
QString lineText(const QString& text);
