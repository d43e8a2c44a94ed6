#pragma once

#include <QString>

/// A text between two apostrophes, as the routines put it into their statements.
/// There is no escaping: an apostrophe in the text would end the literal, and what follows it would be read
/// as SQL. Such a text is refused here, with the error of an invalid statement (3075), so that nothing typed
/// into a box can ever widen a statement.
QString quoted(const QString& text);
/// As above for a text that no error may show.
QString quotedSecret(const QString& text);
