#pragma once

#include <QString>
#include <QStringList>
#include <memory>

struct sqlite3;

/// The database file of a program folder through a connection of our own, beside that of the program. The
/// connection stays open as long as the same file lies there, since unlocking takes a while.
class DatabaseFile {
public:
    explicit DatabaseFile(QString path);
    ~DatabaseFile();
    DatabaseFile(const DatabaseFile&) = delete;
    DatabaseFile& operator=(const DatabaseFile&) = delete;

    /// Throws CommandFailure with SQLite's words.
    void run(const QString& statements);
    /// A line a row, cells joined by |, Null as empty.
    QStringList query(const QString& statement);
    void close();

private:
    struct Closer {
        void operator()(sqlite3* handle) const;
    };

    sqlite3* handle();
    void open();

    QString m_path;
    QString m_opened; ///< which file the connection is to
    std::unique_ptr<sqlite3, Closer> m_handle;
};
