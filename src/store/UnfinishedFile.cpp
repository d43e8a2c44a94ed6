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

void UnfinishedFile::discard() {
    m_connection.reset();
    QFile::remove(m_path);
    QFile::remove(m_path + QStringLiteral("-journal"));
}

void UnfinishedFile::write() {
    m_connection->execute("COMMIT");
    m_connection->close();
}

void UnfinishedFile::finish() {
    if (m_connection->isOpen()) write();
    m_finished = true;
}
