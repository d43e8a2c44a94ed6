#include "Database.h"

#include "Connection.h"
#include "QueryCursor.h"
#include "TableCursor.h"

Database::Database(std::shared_ptr<cursors::Connection> connection)
    : m_connection(std::move(connection)) {}

bool Database::isOpen() const { return m_connection != nullptr && m_connection->isOpen(); }

bool Database::isSound() const {
    try {
        return m_connection->isSound();
    } catch (const RuntimeError&) {
        return true;
    }
}

Recordset Database::OpenRecordset(const QString& nameOrSelect, RecordsetType type) {
    if (!isOpen()) throw runtimeError(RuntimeError::objectNotSet);
    if (type == dbOpenDynaset)
        return Recordset(std::make_shared<cursors::QueryCursor>(m_connection, nameOrSelect));
    const TableSpec* table = findTable(nameOrSelect);
    if (table == nullptr) throw runtimeError(RuntimeError::tableNotFound, nameOrSelect);
    return Recordset(std::make_shared<cursors::TableCursor>(m_connection, *table));
}

void Database::Close() {
    if (!isOpen()) throw runtimeError(RuntimeError::objectNotSet);
    m_connection->close();
}
