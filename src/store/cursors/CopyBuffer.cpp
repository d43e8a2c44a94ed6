#include "CopyBuffer.h"

#include "Conversions.h"
#include "RuntimeError.h"
#include "StoredText.h"

#include <cmath>
#include <limits>

namespace cursors {

namespace {

Value storableNumber(double number) {
    const bool isLong = std::trunc(number) == number && number >= std::numeric_limits<qint32>::min() &&
                        number <= std::numeric_limits<qint32>::max();
    return isLong ? Value(static_cast<qint32>(number)) : Value(number);
}

Value storableTruth(const Value& value) {
    if (value.isNull()) return false;
    return value.kind() == Value::Kind::Boolean ? value : Value(CDbl(value) != 0);
}

Value storable(FieldKind kind, const Value& value) {
    if (kind == FieldKind::AutoNumber) throw runtimeError(RuntimeError::fieldNotUpdatable);
    if (kind == FieldKind::Boolean) return storableTruth(value);
    if (value.isNull()) return {};
    switch (kind) {
    case FieldKind::Long:
        return CLng(value);
    case FieldKind::Number:
        return storableNumber(CDbl(value));
    case FieldKind::Double:
        return CDbl(value);
    case FieldKind::Date:
        return CDate(value);
    default:
        return storableText(CStr(value));
    }
}

} // namespace

void CopyBuffer::begin(Mode mode, const TableSpec& table) {
    m_mode = mode;
    m_table = &table;
    m_values.assign(table.fields.size(), std::nullopt);
}

void CopyBuffer::set(int field, const Value& value) {
    const auto place = static_cast<size_t>(field);
    m_values[place] = storable(m_table->fields[place].kind, value);
}

void CopyBuffer::take(const CopyBuffer& other) {
    for (size_t i = 0; i < m_values.size(); ++i)
        if (other.m_values[i]) m_values[i] = other.m_values[i];
}

const Value* CopyBuffer::find(int field) const {
    const auto& value = m_values[static_cast<size_t>(field)];
    return value ? &*value : nullptr;
}

Value CopyBuffer::initial(int field) const {
    if (const Value* value = find(field)) return *value;
    const bool isTruth = m_table->fields[static_cast<size_t>(field)].kind == FieldKind::Boolean;
    return isTruth ? Value(false) : Value();
}

} // namespace cursors
