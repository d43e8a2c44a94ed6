#include "SqlText.h"

#include "RuntimeError.h"

namespace {

/// `place` ends the error's description.
QString quotedOr(const QString& text, const QString& place) {
    if (text.contains(u'\''))
        throw RuntimeError{3075,
                           QStringLiteral("Syntaxfehler (fehlender Operator) in Abfrageausdruck") + place};
    return u'\'' + text + u'\'';
}

} // namespace

QString quoted(const QString& text) { return quotedOr(text, QStringLiteral(" '%1'.").arg(text)); }

QString quotedSecret(const QString& text) { return quotedOr(text, QStringLiteral(".")); }
