#include "Recordset.h"

#include "Cursor.h"

Value Recordset::Field::Value() const {
    if (!m_cursor->isOpen()) throw runtimeError(RuntimeError::objectNotSet);
    return m_cursor->value(m_column);
}

Recordset::Recordset(std::shared_ptr<cursors::Cursor> cursor)
    : m_cursor(std::move(cursor)) {}

cursors::Cursor& Recordset::cursor() const {
    if (m_cursor == nullptr || !m_cursor->isOpen()) throw runtimeError(RuntimeError::objectNotSet);
    return *m_cursor;
}

void Recordset::Index(const QString& name) { cursor().useIndex(name); }

void Recordset::Seek(const QString& comparison, const Value& key) { cursor().seek(comparison, key); }

bool Recordset::NoMatch() const { return cursor().noMatch(); }

void Recordset::MoveFirst() { cursor().moveFirst(); }

void Recordset::MoveLast() { cursor().moveLast(); }

void Recordset::MoveNext() { cursor().moveNext(); }

bool Recordset::Eof() const { return cursor().eof(); }

bool Recordset::Bof() const { return cursor().bof(); }

qint32 Recordset::RecordCount() const { return cursor().recordCount(); }

qint32 Recordset::AbsolutePosition() const { return cursor().absolutePosition(); }

Recordset::Field Recordset::Fields(const QString& name) const {
    const int column = cursor().columnIndex(name);
    return {m_cursor, column};
}

std::vector<Recordset::Field> Recordset::Fields() const {
    std::vector<Recordset::Field> fields;
    const int count = static_cast<int>(cursor().columnNames().size());
    fields.reserve(static_cast<size_t>(count));
    for (int column = 0; column < count; ++column) fields.push_back(Recordset::Field(m_cursor, column));
    return fields;
}

QStringList Recordset::FieldNames() const { return cursor().columnNames(); }

void Recordset::AddNew() { cursor().addNew(); }

void Recordset::Edit() { cursor().edit(); }

void Recordset::Collect(const QString& name, const Value& value) { cursor().collect(name, value); }

void Recordset::Update() { cursor().update(); }

void Recordset::Delete() { cursor().remove(); }

void Recordset::Close() { cursor().close(); }

void Recordset::Abandon() { cursor().abandon(); }
