#include "PackedValue.h"

#include "TextPool.h"

#include <bit>

quint64 packedValue(const Value& value, TextPool& texts) {
    switch (value.kind()) {
    case Value::Kind::Null:
        break;
    case Value::Kind::Boolean:
        return value.boolean() ? 1 : 0;
    case Value::Kind::Long:
        return static_cast<quint32>(value.number());
    case Value::Kind::Double:
        return std::bit_cast<quint64>(value.real());
    case Value::Kind::Date:
        return std::bit_cast<quint64>(value.date().days);
    case Value::Kind::Text:
        return texts.numberOf(value.text());
    }
    return 0;
}

Value unpackedValue(Value::Kind kind, quint64 word, const TextPool& texts) {
    switch (kind) {
    case Value::Kind::Null:
        break;
    case Value::Kind::Boolean:
        return word != 0;
    case Value::Kind::Long:
        return static_cast<qint32>(static_cast<quint32>(word));
    case Value::Kind::Double:
        return std::bit_cast<double>(word);
    case Value::Kind::Date:
        return Date{std::bit_cast<double>(word)};
    case Value::Kind::Text:
        return texts.text(static_cast<quint32>(word));
    }
    return {};
}
