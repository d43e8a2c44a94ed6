#include "SqlText.h"

#include "RuntimeError.h"

namespace {

QString quotedOr(const QString& text, const RuntimeError& error) {
    if (text.contains(u'\'')) throw error;
    return u'\'' + text + u'\'';
}

} // namespace

QString quoted(const QString& text) {
    return quotedOr(text, runtimeError(RuntimeError::operatorExpected, text));
}

QString quotedSecret(const QString& text) {
    return quotedOr(text, runtimeError(RuntimeError::operatorExpected));
}
