#include "PageReader.h"

#include "FileShape.h"
#include "RawContent.h"
#include "RuntimeError.h"
#include "Sqlite.h"

#include <QFile>
#include <algorithm>
#include <limits>

namespace engine {

namespace {

/// More fields than any table has.
constexpr int fieldCount = 24;

/// A field missing at the end of a row is read as its default, a blob. Our rows contain no blobs.
QByteArray tableDefinition() {
    QByteArrayList fields;
    for (int i = 0; i < fieldCount; ++i) fields += "c" + QByteArray::number(i) + " DEFAULT x''";
    return "CREATE TABLE page(" + fields.join(", ") + ')';
}

void writeAll(QFile& file, const QByteArray& bytes) {
    if (file.write(bytes) != bytes.size() || !file.flush()) throw runtimeError(RuntimeError::noDiskSpace);
}

void execute(sqlite3* database, const QByteArray& sql) { Statement(database, sql).run(); }

DatabaseHandle openWithKey(const QString& path, const QString& password) {
    DatabaseHandle handle = openHandle(path.toUtf8(), SQLITE_OPEN_READWRITE);
    setKey(handle.get(), password);
    return handle;
}

/// Makes writing fast but unsafe, as the copy is deleted in any case.
void forgetSafety(sqlite3* database) {
    execute(database, "PRAGMA journal_mode = MEMORY");
    execute(database, "PRAGMA synchronous = OFF");
}

/// Empty if the next row is damaged.
std::optional<bool> tryStep(Statement& statement) {
    try {
        return statement.step();
    } catch (const RuntimeError& error) {
        if (!error.is(RuntimeError::damagedFile)) throw;
        return std::nullopt;
    }
}

} // namespace

PageReader::PageReader(const RawContent& original, const QString& password, int mostPages)
    : m_copy(m_folder.filePath(QStringLiteral("pages"))) {
    if (!m_folder.isValid()) throw runtimeError(RuntimeError::pathFailed, m_folder.path());
    m_pageCount = static_cast<int>(std::min<qint64>(original.size() / pageBytes, mostPages));
    if (m_pageCount == 0) throw runtimeError(RuntimeError::cannotBeRepaired);
    growCopy(original.read(0, saltBytes), password);
    fillCopy(original);
    execute(m_pointing.get(), "PRAGMA writable_schema = ON");
    m_reading = openWithKey(m_copy, password);
    m_begin = Statement(m_pointing.get(), "BEGIN");
    m_point = Statement(m_pointing.get(), "UPDATE sqlite_master SET rootpage = ?1");
    m_commit = Statement(m_pointing.get(), "COMMIT");
    m_rows = Statement(m_reading.get(), "SELECT rowid, * FROM page WHERE rowid > ?1 ORDER BY rowid");
    m_next = Statement(m_reading.get(), "SELECT rowid FROM page WHERE rowid > ?1 ORDER BY rowid LIMIT 1");
}

void PageReader::growCopy(const QByteArray& salt, const QString& password) {
    QFile copy(m_copy);
    if (!copy.open(QIODevice::ReadWrite)) throw runtimeError(RuntimeError::noDiskSpace);
    // SQLCipher 3 takes the salt from the file while keying. SQLCipher 4 keys at the first page, for which it
    // must be told the salt of an empty file.
    writeAll(copy, salt);
    m_pointing = openWithKey(m_copy, password);
    if (!copy.resize(0)) throw runtimeError(RuntimeError::noDiskSpace);
    execute(m_pointing.get(), "PRAGMA cipher_salt = \"x'" + salt.toHex() + "'\"");
    forgetSafety(m_pointing.get());
    execute(m_pointing.get(), tableDefinition());
    // The first page holds the number of pages, so make them all here. fillCopy() overwrites the others.
    Statement grow(m_pointing.get(), "INSERT INTO page(c0) VALUES (zeroblob(?1))");
    grow.bind(1, m_pageCount * pageBytes);
    grow.run();
}

void PageReader::fillCopy(const RawContent& original) const {
    QFile copy(m_copy);
    if (!copy.open(QIODevice::ReadWrite)) throw runtimeError(RuntimeError::noDiskSpace);
    const qint64 end = copy.size();
    for (qint64 at = pageBytes; at < end; at += pageBytes) {
        // Make pages beyond the original's end damaged ones: valid pages full of zeros would be taken for the
        // rest of a row.
        const bool isThere = at < m_pageCount * pageBytes;
        const QByteArray page = isThere ? original.read(at, pageBytes) : QByteArray();
        if (!copy.seek(at)) throw runtimeError(RuntimeError::noDiskSpace);
        writeAll(copy, page.leftJustified(pageBytes, 'x'));
    }
}

/// Makes `page` the first page of the copy's table. The changed schema version makes m_reading look it up
/// again.
void PageReader::turnTo(int page) {
    m_begin.run();
    m_point.bind(1, static_cast<qint64>(page));
    m_point.run();
    execute(m_pointing.get(), "PRAGMA schema_version = " + QByteArray::number(page));
    m_commit.run();
}

/// Sets `row` to the next row's number, which may be readable though the row is not. False if it is not.
bool PageReader::passOver(qint64& row) {
    m_next.bind(1, row);
    const bool found = tryStep(m_next).value_or(false);
    if (found) row = m_next.integer(0);
    m_next.reset();
    return found;
}

bool PageReader::rowsOf(int page, const std::function<bool(const Statement&)>& take) {
    turnTo(page);
    qint64 last = std::numeric_limits<qint64>::min();
    bool whole = true;
    do {
        m_rows.bind(1, last);
        std::optional<bool> more = tryStep(m_rows);
        while (more.value_or(false)) {
            last = m_rows.integer(0);
            if (!take(m_rows)) break;
            more = tryStep(m_rows);
        }
        m_rows.reset();
        if (more) return whole;
        whole = false;
    } while (passOver(last));
    return false;
}

bool fitsOtherPages(const QString& path, const QString& password) {
    // Enough to meet pages of any kind.
    constexpr int samplePages = 64;
    try {
        PageReader pages(RawContent(path), password, samplePages);
        for (int page = 2; page <= pages.pageCount(); ++page)
            if (pages.rowsOf(page, [](const Statement&) { return false; })) return true;
    } catch (const RuntimeError& error) {
        if (error.is(RuntimeError::diskFailed)) throw;
        // Without room for the copy it can't be told.
    }
    return false;
}

} // namespace engine
