#pragma once

#include <QString>

/// A text on one line, with its line breaks as \r and \n.
QString lineText(const QString& text);
