#include "UnfinishedFile.h"

#include "FileShape.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

UnfinishedPath::UnfinishedPath(const QString& path)
    : m_path(path) {
    const QFileInfo file(path);
    // A link that leads nowhere would be followed.
    if (file.exists() || file.isSymLink()) throw runtimeError(RuntimeError::databaseExists, path);
    if (!file.absoluteDir().exists()) throw runtimeError(RuntimeError::badPath, file.absolutePath());
}

UnfinishedPath::~UnfinishedPath() {
    if (m_kept) return;
    QFile::remove(m_path);
    for (const QString& journal : engine::journalsOf(m_path)) QFile::remove(journal);
}

UnfinishedFile::UnfinishedFile(const QString& path, const QString& password)
    : m_path(path)
    , m_connection(path, password, cursors::Connection::Access::Create) {
    m_connection.execute("BEGIN IMMEDIATE");
}

void UnfinishedFile::finish() {
    m_connection.execute("COMMIT");
    m_connection.execute("PRAGMA shrink_memory");
    if (m_connection.text("PRAGMA integrity_check") != u"ok")
        throw runtimeError(RuntimeError::damagedFile, m_path.path());
    m_connection.close();
    m_path.keep();
}
