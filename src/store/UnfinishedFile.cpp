#include "UnfinishedFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

void requireNewFile(const QString& path) {
    const QFileInfo file(path);
    // A link that leads nowhere would be followed.
    if (file.exists() || file.isSymLink()) throw runtimeError(3204, path);
    if (!file.absoluteDir().exists()) throw runtimeError(3044, file.absolutePath());
}

UnfinishedFile::UnfinishedFile(const QString& path, const QString& password)
    : m_path(path) {
    requireNewFile(path);
    try {
        start(password);
    } catch (const RuntimeError&) {
        discard();
        throw;
    }
}

UnfinishedFile::~UnfinishedFile() {
    if (!m_finished) discard();
}

void UnfinishedFile::start(const QString& password) {
    m_connection.emplace(m_path, password, Connection::Access::Create);
    // Makes the entry in the folder last as well.
    m_connection->execute("PRAGMA synchronous = EXTRA");
    m_connection->execute("BEGIN IMMEDIATE");
}

void UnfinishedFile::attach(const QString& path, const QString& password) {
    // Only between two transactions, of which the first has written nothing yet.
    m_connection->execute("COMMIT");
    Statement attach = m_connection->prepare("ATTACH ?1 AS original KEY ?2");
    attach.bind(1, path);
    attach.bind(2, password);
    attach.run();
    m_connection->execute("PRAGMA original.cipher_compatibility = 3");
    m_connection->execute("BEGIN");
}

void UnfinishedFile::discard() {
    m_connection.reset();
    QFile::remove(m_path);
    QFile::remove(m_path + QStringLiteral("-journal"));
}

void UnfinishedFile::write() {
    m_connection->execute("COMMIT");
    m_written = true;
    m_connection->execute("PRAGMA shrink_memory");
}

void UnfinishedFile::verify() {
    // Whether the indexes know every row need not be asked: they were just made from the rows.
    Statement check = m_connection->prepare("PRAGMA main.quick_check");
    if (!check.step() || check.text(0) != u"ok") throw runtimeError(3343, m_path);
}

void UnfinishedFile::finish() {
    if (!m_written) write();
    m_connection->close();
    m_finished = true;
}
