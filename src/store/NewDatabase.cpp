#include "NewDatabase.h"

#include "UnfinishedFile.h"

namespace {

const QList<QByteArray>& seedStatements() {
    static const QList<QByteArray> statements{
        "INSERT INTO \"Katego\" VALUES (1, 'Mitglieder (aktiv)'), (2, 'Mitglieder (passiv)')",
        "INSERT INTO \"Gruppen\" VALUES (1, 'Administratoren', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1)",
        "INSERT INTO \"Benutzer\" VALUES (1, 'Admin', '', 1)",
    };
    return statements;
}

void addSystemRow(Connection& connection, int year) {
    Statement system = connection.prepare("INSERT INTO \"System\" VALUES (?1, 0, 0, '', '', '', '', '')");
    system.bind(1, static_cast<qint64>(year));
    system.run();
}

} // namespace

void createDatabase(const QString& path, const QString& password, int year) {
    UnfinishedFile file(path, password);
    for (const QByteArray& statement : schemaStatements()) file.connection().execute(statement);
    for (const QByteArray& statement : seedStatements()) file.connection().execute(statement);
    addSystemRow(file.connection(), year);
    file.finish();
}
