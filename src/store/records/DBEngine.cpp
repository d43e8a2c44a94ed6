#include "DBEngine.h"

#include "Compaction.h"
#include "Connection.h"

Workspace::Workspace()
    : m_opened(std::make_shared<std::weak_ptr<cursors::Connection>>()) {}

Database Workspace::OpenDatabase(const QString& path, bool, bool readOnly, const QString& connect) {
    const auto access =
        readOnly ? cursors::Connection::Access::ReadOnly : cursors::Connection::Access::ReadWrite;
    const auto connection = std::make_shared<cursors::Connection>(path, cursors::passwordOf(connect), access);
    *m_opened = connection;
    return Database(connection);
}

/// A Database or cursor keeps the connection alive, so the reference is good for one call.
cursors::Connection& Workspace::opened() const {
    const auto connection = m_opened->lock();
    if (connection == nullptr || !connection->isOpen()) throw runtimeError(RuntimeError::objectNotSet);
    return *connection;
}

void Workspace::BeginTrans() { opened().transaction().begin(); }

void Workspace::CommitTrans() { opened().transaction().commit(); }

void Workspace::Rollback() { opened().transaction().rollback(); }

Workspace DBEngine::Workspaces(int index) {
    if (index != 0) throw runtimeError(RuntimeError::outOfRange);
    return {};
}

FileHold DBEngine::CompactDatabase(const QString& source, const QString& target, const QString& password,
                                   const QString& keptIn) {
    const bool isConnect = password.startsWith(u';');
    return compactFile(source, target, isConnect ? cursors::passwordOf(password) : password, keptIn);
}
