#include "DBEngine.h"

#include "Compaction.h"
#include "Connection.h"

Database Workspace::OpenDatabase(const QString& path, bool, bool readOnly, const QString& connect) {
    const auto access =
        readOnly ? cursors::Connection::Access::ReadOnly : cursors::Connection::Access::ReadWrite;
    return Database(std::make_shared<cursors::Connection>(path, cursors::passwordOf(connect), access));
}

Workspace DBEngine::Workspaces(int index) {
    if (index != 0) throw runtimeError(RuntimeError::outOfRange);
    return {};
}

FileHold DBEngine::CompactDatabase(const QString& source, const QString& target, const QString& password,
                                   const QString& keptIn) {
    const bool isConnect = password.startsWith(u';');
    return compactFile(source, target, isConnect ? cursors::passwordOf(password) : password, keptIn);
}
