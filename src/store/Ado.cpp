#include "Ado.h"

#include "Connection.h"
#include "Database.h"
#include "RuntimeError.h"

namespace ADODB {

namespace {
constexpr int noSuchProvider = 3706;
constexpr int notInCollection = 3265;
constexpr int notOpen = 91;
} // namespace

void Connection::setProperty(const QString& name, const QString& value) {
    if (name == u"Data Source"_qs)
        m_dataSource = value;
    else if (name == u"Jet OLEDB:Database Password"_qs)
        m_password = value;
    else
        throw runtimeError(notInCollection);
}

void Connection::Open() {
    if (m_provider != u"Microsoft.Jet.OLEDB.4.0"_qs) throw runtimeError(noSuchProvider);
    m_connection = std::make_shared<::Connection>(m_dataSource, m_password, ::Connection::Access::ReadWrite);
}

void Connection::Close() {
    if (!m_connection) throw runtimeError(notOpen);
    const auto closing = std::move(m_connection);
    closing->close();
}

void Recordset::Open(const QString& table, const Connection& connection, CursorType, LockType, CommandType) {
    m_rows = Database(connection.m_connection).OpenRecordset(table, dbOpenTable);
}

} // namespace ADODB
