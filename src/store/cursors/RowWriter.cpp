#include "RowWriter.h"

#include "Connection.h"

namespace cursors {

QByteArray RowWriter::insertSql() const {
    QByteArrayList names;
    QByteArrayList parameters;
    for (const FieldSpec& field : m_table.fields) {
        names += quotedName(field.name);
        parameters += "?";
    }
    return "INSERT INTO " + quotedName(m_table.name) + " (" + names.join(", ") + ") VALUES (" +
           parameters.join(", ") + ')';
}

void RowWriter::insert(const CopyBuffer& buffer) {
    // SQLite would choose a number for a Null key.
    const bool givenKey = m_table.keyed && m_table.fields.front().kind != FieldKind::AutoNumber;
    if (givenKey && buffer.initial(0).isNull()) throw runtimeError(RuntimeError::nullKey);
    if (!m_insert) m_insert = m_connection.statement(insertSql());
    const int fields = static_cast<int>(m_table.fields.size());
    for (int field = 0; field < fields; ++field) m_insert->bind(field + 1, buffer.initial(field));
    m_insert->run();
}

QByteArray RowWriter::updateSql(const std::vector<int>& fields) const {
    QByteArrayList assignments;
    for (const int field : fields)
        assignments += quotedName(m_table.fields[static_cast<size_t>(field)].name) + " = ?";
    return "UPDATE " + quotedName(m_table.name) + " SET " + assignments.join(", ") + " WHERE rowid = ?";
}

void RowWriter::update(qint64 row, const CopyBuffer& buffer) {
    std::vector<int> fields;
    for (int field = 0; field < static_cast<int>(m_table.fields.size()); ++field)
        if (buffer.find(field) != nullptr) fields.push_back(field);
    if (fields.empty()) return;
    if (!m_update || fields != m_updated) {
        m_update = m_connection.statement(updateSql(fields));
        m_updated = fields;
    }
    int position = 1;
    for (const int field : fields) m_update->bind(position++, *buffer.find(field));
    m_update->bind(position, row);
    m_update->run();
    requireOneRow();
}

void RowWriter::remove(qint64 row) {
    if (!m_remove)
        m_remove = m_connection.statement("DELETE FROM " + quotedName(m_table.name) + " WHERE rowid = ?");
    m_remove->bind(1, row);
    m_remove->run();
    requireOneRow();
}

void RowWriter::requireOneRow() const {
    if (m_connection.changes() != 1) throw runtimeError(RuntimeError::recordDeleted);
}

} // namespace cursors
