#include "DialectError.h"

namespace dialect {

namespace {

QString shortened(QStringView place) {
    constexpr qsizetype longest = 120;
    place = place.trimmed();
    if (place.size() <= longest) return place.toString();
    return place.first(longest).toString() + u'…';
}

} // namespace

RuntimeError syntaxError(const RuntimeError::Kind& fault, QStringView place) {
    return runtimeError(fault, shortened(place));
}

RuntimeError unknownField() { return runtimeError(RuntimeError::missingParameter, QStringLiteral("1")); }

} // namespace dialect
