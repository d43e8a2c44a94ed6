#include "NewDatabase.h"

#include "UnfinishedFile.h"

void seedSystem(cursors::Connection& file, int year) {
    engine::Statement system = file.prepare("INSERT INTO \"System\" VALUES (?1, 0, 0, '', '', '', '', '')");
    system.bind(1, static_cast<qint64>(year));
    system.run();
}

void seedCategories(cursors::Connection& file) {
    file.execute("INSERT OR IGNORE INTO \"Katego\" VALUES (1, 'Mitglieder (aktiv)'), "
                 "(2, 'Mitglieder (passiv)')");
}

void seedGroup(cursors::Connection& file) {
    file.execute(
        "INSERT OR IGNORE INTO \"Gruppen\" VALUES (1, 'Administratoren', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1)");
}

void seedUser(cursors::Connection& file) {
    const QByteArray group = "(SELECT MIN(\"GNr\") FROM \"Gruppen\" WHERE \"Benutzerverwaltung\")";
    // Two of one name and password would keep each other out.
    file.execute("UPDATE \"Benutzer\" SET \"GNr\" = " + group +
                 " WHERE \"Name\" = 'Admin' COLLATE NOCASE AND \"Passwort\" = ''");
    if (file.changes() == 0) file.execute("INSERT INTO \"Benutzer\" SELECT NULL, 'Admin', '', " + group);
}

void createDatabase(const QString& path, const QString& password, int year) {
    UnfinishedFile file(path, password);
    for (const QByteArray& statement : schemaStatements()) file.connection().execute(statement);
    seedCategories(file.connection());
    seedGroup(file.connection());
    seedUser(file.connection());
    seedSystem(file.connection(), year);
    file.finish();
}
