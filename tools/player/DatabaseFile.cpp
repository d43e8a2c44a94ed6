#include "DatabaseFile.h"

#include "CommandFailure.h"
#include "LineText.h"

#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>
#include <utility>

#ifndef Q_OS_WIN
#include <sys/stat.h>

using namespace Qt::StringLiterals;
#endif

namespace {

/// Changes when another file is put in the place of this one.
QString identity(const QString& path) {
#ifndef Q_OS_WIN
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) == 0)
        return QString::number(status.st_dev) + u'/' + QString::number(status.st_ino);
#endif
    return {};
}

void check(sqlite3* handle, int code) {
    if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE)
        throw CommandFailure{QString::fromUtf8(sqlite3_errmsg(handle))};
}

QString rowText(sqlite3_stmt* statement) {
    QStringList cells;
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        cells.append(lineText(QString::fromUtf8(text)));
    }
    return cells.join(u'|');
}

struct Finaliser {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

} // namespace

void DatabaseFile::Closer::operator()(sqlite3* handle) const { sqlite3_close(handle); }

DatabaseFile::DatabaseFile(QString path)
    : m_path(std::move(path)) {}

DatabaseFile::~DatabaseFile() = default;

void DatabaseFile::close() {
    m_handle.reset();
    m_opened.clear();
}

void DatabaseFile::open() {
    close();
    if (!QFileInfo::exists(m_path)) throw CommandFailure{u"there is no file %1"_s.arg(m_path)};
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(m_path.toUtf8().constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    m_handle.reset(opened);
    check(opened, code);
    constexpr char unlock[] = "PRAGMA key = 'qx-1987-nkr'; PRAGMA cipher_compatibility = 3;";
    check(opened, sqlite3_exec(opened, unlock, nullptr, nullptr, nullptr));
    m_opened = identity(m_path);
}

sqlite3* DatabaseFile::handle() {
    if (m_opened.isEmpty() || m_opened != identity(m_path)) open();
    return m_handle.get();
}

void DatabaseFile::run(const QString& statements) {
    sqlite3* file = handle();
    check(file, sqlite3_exec(file, statements.toUtf8().constData(), nullptr, nullptr, nullptr));
}

QStringList DatabaseFile::query(const QString& statement) {
    sqlite3* file = handle();
    sqlite3_stmt* prepared = nullptr;
    check(file, sqlite3_prepare_v2(file, statement.toUtf8().constData(), -1, &prepared, nullptr));
    const std::unique_ptr<sqlite3_stmt, Finaliser> owner(prepared);
    QStringList rows;
    int code = SQLITE_DONE;
    while ((code = sqlite3_step(prepared)) == SQLITE_ROW) rows.append(rowText(prepared));
    check(file, code);
    return rows;
}
