#include "DBEngine.h"

#include "Compaction.h"
#include "Connection.h"

Database Workspace::OpenDatabase(const QString& path, bool, bool readOnly, const QString& connect) {
    const auto access = readOnly ? Connection::Access::ReadOnly : Connection::Access::ReadWrite;
    return Database(std::make_shared<Connection>(path, passwordOf(connect), access));
}

Workspace DBEngine::Workspaces(int index) {
    if (index != 0) throw runtimeError(9);
    return {};
}

void DBEngine::CompactDatabase(const QString& source, const QString& target, const QString& password) {
    const bool isConnect = password.startsWith(u';');
    compactFile(source, target, isConnect ? passwordOf(password) : password);
}
