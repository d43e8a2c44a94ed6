#include "UnfinishedFile.h"

UnfinishedFile::UnfinishedFile(const QString& path, const QString& password)
    : m_path(path)
    , m_connection(path, password, cursors::Connection::Access::Create) {
    m_connection.execute("BEGIN IMMEDIATE");
}

void UnfinishedFile::finish() {
    m_connection.execute("COMMIT");
    m_connection.execute("PRAGMA shrink_memory");
    engine::Statement check = m_connection.prepare("PRAGMA integrity_check");
    if (!check.step() || check.text(0) != u"ok") throw runtimeError(3343, m_path.path());
    check.reset();
    m_connection.close();
    m_path.keep();
}
