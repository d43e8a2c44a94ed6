#include "SqlText.h"

#include "RuntimeError.h"

QString quoted(const QString& text) {
    if (text.contains(u'\'')) {
        const QString reason = QStringLiteral("Syntaxfehler (fehlender Operator) in Abfrageausdruck '%1'.");
        throw RuntimeError{3075, reason.arg(text)};
    }
    return u'\'' + text + u'\'';
}
