#pragma once

#include "Connection.h"
#include "DBEngine.h"
#include "ErrorOf.h"
#include "FixedClock.h"
#include "NewDatabase.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

/// Opens a new database file with a small club, in a folder of its own.
class StoreTest : public ::testing::Test {
    QTemporaryDir m_folder; // first, so that it outlives what is open in it
    FixedClock m_clock;

protected:
    StoreTest();

    static QString password() { return QStringLiteral("geheim"); }
    static QString connect() { return QStringLiteral(";pwd=geheim"); }
    QString file(const QString& name) const { return m_folder.filePath(name); }
    QString path() const { return file(QStringLiteral("uw01.mdb")); }

    std::shared_ptr<cursors::Connection> connectTo(const QString& file) const;
    Recordset table(QStringView name) { return database.OpenRecordset(name.toString(), dbOpenTable); }
    Recordset query(const QString& select) { return database.OpenRecordset(select, dbOpenDynaset); }
    /// A table cursor on the row with this key.
    Recordset seek(QStringView name, qint32 key);
    /// Rows joined by ";", their values by "|".
    QString rows(const QString& select) { return rowsOf(*connection, select); }
    /// As above through another connection, which sees only committed rows.
    QString rowsInFile(const QString& select) const { return rowsOf(*connectTo(path()), select); }
    /// Runs a statement in SQLite's own SQL.
    void execute(const QByteArray& sql) const;

    static QString rowsOf(cursors::Connection& connection, const QString& select);

    std::shared_ptr<cursors::Connection> connection;
    Database database;
};

QString shown(const Value& value);

// GoogleTest calls this to print a text that differs.
inline void PrintTo(const QString& text, std::ostream* stream) { *stream << text.toStdString(); }
