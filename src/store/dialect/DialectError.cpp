#include "DialectError.h"

namespace dialect {

namespace {

QString wording(SyntaxFault fault) {
    switch (fault) {
    case SyntaxFault::Operator:
        return QStringLiteral("Syntaxfehler (fehlender Operator) in Abfrageausdruck '%1'.");
    case SyntaxFault::Comma:
        return QStringLiteral("Syntaxfehler (Komma) in Abfrageausdruck '%1'.");
    case SyntaxFault::Text:
        return QStringLiteral("Syntaxfehler in Zeichenfolge in Abfrageausdruck '%1'.");
    case SyntaxFault::Date:
        return QStringLiteral("Syntaxfehler in Datum in Abfrageausdruck '%1'.");
    case SyntaxFault::NoSelect:
        return QStringLiteral("Unzulässige SQL-Anweisung; 'SELECT' erwartet: '%1'.");
    case SyntaxFault::From:
        return QStringLiteral("Syntaxfehler in FROM-Klausel '%1'.");
    case SyntaxFault::Nesting:
        return QStringLiteral("Zu tief geschachtelter Abfrageausdruck '%1'.");
    case SyntaxFault::General:
        break;
    }
    return QStringLiteral("Syntaxfehler in Abfrageausdruck '%1'.");
}

QString shortened(QStringView place) {
    constexpr qsizetype longest = 120;
    place = place.trimmed();
    if (place.size() <= longest) return place.toString();
    return place.first(longest).toString() + u'…';
}

} // namespace

RuntimeError syntaxError(SyntaxFault fault, QStringView place) {
    return {3075, wording(fault).arg(shortened(place))};
}

RuntimeError unknownField() { return runtimeError(3061, QStringLiteral("1")); }

RuntimeError ambiguousField(const QString& name) {
    return {3079, QStringLiteral("Das angegebene Feld '%1' kann sich auf mehr als eine der Tabellen in der "
                                 "FROM-Klausel der SQL-Anweisung beziehen.")
                      .arg(name)};
}

RuntimeError unknownFunction(const QString& name) {
    return {3085, QStringLiteral("Undefinierte Funktion '%1' in Ausdruck.").arg(name)};
}

RuntimeError misplacedAggregate(QStringView place) {
    return {3096, QStringLiteral("Aggregatfunktion ist hier nicht zulässig: '%1'.").arg(shortened(place))};
}

RuntimeError fieldOutsideAggregate(const QString& name) {
    return {3122, QStringLiteral("Der Ausdruck '%1' ist nicht Teil einer Aggregatfunktion.").arg(name)};
}

RuntimeError tooManyFields() { return {3190, QStringLiteral("Zu viele Felder definiert.")}; }

RuntimeError tooManyColumns() {
    return {3306, QStringLiteral("Eine Unterabfrage, die als Wert verwendet wird, darf nur ein Feld haben.")};
}

RuntimeError tooComplex() { return runtimeError(3360); }

RuntimeError unlikeKinds() { return runtimeError(3464); }

} // namespace dialect
