#pragma once

#include "DBEngine.h"

#include <QString>

/// The database of a program folder, as the program opens it.
inline Database openFolder(const QString& folder) {
    const QString connect = QStringLiteral(";pwd=qx-1987-nkr");
    return DBEngine::Workspaces(0).OpenDatabase(folder + QStringLiteral("/uw01.mdb"), false, false, connect);
}

/// The result of a SELECT of one COUNT, SUM, MIN or MAX.
inline Value only(Database& database, const QString& select) {
    return database.OpenRecordset(select, dbOpenDynaset).Collect(QStringLiteral("Expr1000"));
}
