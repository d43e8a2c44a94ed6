#include "UnfinishedFile.h"

#include "InterruptedFile.h"
#include "RuntimeError.h"

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
    engine::Statement check = m_connection.prepare("PRAGMA integrity_check");
    if (!check.step() || check.text(0) != u"ok") throw runtimeError(RuntimeError::damagedFile, m_path.path());
    check.reset();
    m_connection.close();
    m_path.keep();
}
