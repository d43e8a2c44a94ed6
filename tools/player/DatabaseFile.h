#pragma once

#include <QString>
#include <QStringList>
#include <memory>

struct sqlite3;

/// A connection to the database file of a program folder, beside the program's own. It stays open until the
/// file is replaced by another, since deriving the key takes a while.
class DatabaseFile {
public:
    explicit DatabaseFile(QString path);
    ~DatabaseFile();
    DatabaseFile(const DatabaseFile&) = delete;
    DatabaseFile& operator=(const DatabaseFile&) = delete;

    /// Runs SQLite statements. CommandFailure with SQLite's message if one fails.
    void run(const QString& statements);
    /// A line for each row, cells joined by |, Null as empty. Errors as for run().
    QStringList query(const QString& statement);
    void close();

private:
    struct Closer {
        void operator()(sqlite3* handle) const;
    };

    sqlite3* handle();
    void open();

    QString m_path;
    QString m_opened; ///< the identity of the open file
    std::unique_ptr<sqlite3, Closer> m_handle;
};
