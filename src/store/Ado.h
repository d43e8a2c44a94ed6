#pragma once

#include "Recordset.h"

#include <QStringList>
#include <memory>

class Connection;

/// The second connection on the database file, open only while a report is being staged: table by table, row
/// by row, beside the program's own. What a record set writes reaches the disk when it is closed.
namespace ADODB {

enum CursorType { adOpenDynamic = 2 };
enum LockType { adLockOptimistic = 3 };
enum CommandType { adCmdTable = 2 };

class Connection {
public:
    void setProvider(const QString& provider) { m_provider = provider; }
    /// "Data Source" is the file's path, "Jet OLEDB:Database Password" its password; others are error 3265.
    void setProperty(const QString& name, const QString& value);
    /// Errors as for Workspace::OpenDatabase; 3706 for a provider that is not the file's.
    void Open();
    void Close(); ///< 91 when it is not open

private:
    friend class Recordset;
    QString m_provider;
    QString m_dataSource;
    QString m_password;
    std::shared_ptr<::Connection> m_connection;
};

class Recordset {
public:
    /// Opens a table. Errors as for Database::OpenRecordset.
    void Open(const QString& table, const Connection& connection, CursorType cursor, LockType lock,
              CommandType type);
    /// The table's fields in their order.
    QStringList FieldNames() const { return m_rows.FieldNames(); }
    bool Bof() const { return m_rows.Bof(); }
    bool Eof() const { return m_rows.Eof(); }
    void MoveFirst() { m_rows.MoveFirst(); }
    void MoveNext() { m_rows.MoveNext(); }
    void Delete() { m_rows.Delete(); }
    void AddNew() { m_rows.AddNew(); }
    void Collect(const QString& field, const Value& value) { m_rows.Collect(field, value); }
    Value Collect(const QString& field) const { return m_rows.Collect(field); }
    std::vector<Field> Fields() const { return m_rows.Fields(); }
    void Update() { m_rows.Update(); }
    void Close() { m_rows.Close(); }

private:
    ::Recordset m_rows;
};

} // namespace ADODB
