#pragma once

#include <QString>

/// The text between two apostrophes, for use in a statement. Error 3075 if it contains an apostrophe: that
/// would end the literal, and the text behind it would be read as SQL. So typed text can never extend a
/// statement.
QString quoted(const QString& text);
/// As above for a password: the error does not show the text.
QString quotedSecret(const QString& text);
