#include "Conversions.h"

#include "DateText.h"
#include "NumberText.h"
#include "RuntimeError.h"

#include <cmath>
#include <limits>

namespace {

double numberOf(const QString& text) {
    const auto number = numberFromText(text);
    if (!number) throw runtimeError(RuntimeError::typesDiffer);
    if (std::isinf(*number)) throw runtimeError(RuntimeError::overflow);
    return *number;
}

template<typename Whole>
Whole rounded(const Value& value) {
    // Rounds half to even: that is the default mode, and the program never changes it.
    const double whole = std::nearbyint(CDbl(value));
    const bool fits =
        whole >= std::numeric_limits<Whole>::min() && whole <= std::numeric_limits<Whole>::max();
    if (!fits) throw runtimeError(RuntimeError::overflow);
    return static_cast<Whole>(whole);
}

} // namespace

qint32 CLng(const Value& value) { return rounded<qint32>(value); }

qint16 CInt(const Value& value) { return rounded<qint16>(value); }

double CDbl(const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Null:
        break;
    case Value::Kind::Boolean:
        return value.boolean() ? -1 : 0;
    case Value::Kind::Long:
        return value.number();
    case Value::Kind::Double:
        return value.real();
    case Value::Kind::Date:
        return value.date().days;
    case Value::Kind::Text:
        return numberOf(value.text());
    }
    throw runtimeError(RuntimeError::nullUsed);
}

QString CStr(const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Null:
        break;
    case Value::Kind::Boolean:
        return value.boolean() ? QStringLiteral("Wahr") : QStringLiteral("Falsch");
    case Value::Kind::Long:
        return QString::number(value.number());
    case Value::Kind::Double:
        return numberText(value.real());
    case Value::Kind::Date:
        return dateText(value.date());
    case Value::Kind::Text:
        return value.text();
    }
    throw runtimeError(RuntimeError::nullUsed);
}

Date CDate(const Value& value) {
    const bool isText = value.kind() == Value::Kind::Text;
    const auto date = isText ? dateFromText(value.text()) : Date{CDbl(value)};
    if (!date) throw runtimeError(RuntimeError::typesDiffer);
    if (!date->toQDate().isValid()) throw runtimeError(RuntimeError::overflow);
    return *date;
}

bool IsDate(const Value& value) {
    return value.kind() == Value::Kind::Date ||
           (value.kind() == Value::Kind::Text && dateFromText(value.text()));
}

bool IsNumeric(const Value& value) {
    if (value.kind() != Value::Kind::Text) return !value.isNull();
    const auto number = numberFromText(value.text());
    return number && std::isfinite(*number);
}
