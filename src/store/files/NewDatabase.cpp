#include "NewDatabase.h"

#include "RawContent.h"
#include "SafetyCopy.h"
#include "UnfinishedFile.h"

namespace {

bool hasTable(cursors::Connection& file, const TableSpec& table) {
    engine::Statement found =
        file.prepare("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?1 COLLATE NOCASE");
    found.bind(1, table.name.toString());
    return found.step();
}

bool hasField(cursors::Connection& file, const TableSpec& table, const FieldSpec& field) {
    engine::Statement fields = file.prepare("PRAGMA table_info(" + quotedName(table.name) + ')');
    while (fields.step())
        if (field.name.compare(fields.text(1), Qt::CaseInsensitive) == 0) return true;
    return false;
}

QStringList addFields(cursors::Connection& file, const TableSpec& table) {
    QStringList added;
    for (const FieldSpec& field : table.fields) {
        if (hasField(file, table, field)) continue;
        file.execute("ALTER TABLE " + quotedName(table.name) + " ADD COLUMN " +
                     columnDefinition(table, field));
        added += table.name.toString() + u'.' + field.name.toString();
    }
    return added;
}

QStringList addAll(const QString& path, const QString& password) {
    // Access::Create checks no tables; an ordinary opening would fail for the missing ones.
    cursors::Connection file(path, password, cursors::Connection::Access::Create);
    file.execute("BEGIN EXCLUSIVE");
    QStringList added;
    for (const TableSpec& table : schemaTables()) {
        if (hasTable(file, table)) {
            added += addFields(file, table);
        } else {
            file.execute(tableDefinition(table));
            added += table.name.toString();
        }
    }
    for (const QByteArray& index : indexStatements()) file.execute(index);
    file.execute("COMMIT");
    return added;
}

} // namespace

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
    QByteArray fields = "\"GNr\", \"GName\"";
    QByteArray values = "1, 'Administratoren'";
    for (const FieldSpec& field : findTable(u"Gruppen")->fields) {
        if (field.kind != FieldKind::Boolean) continue;
        fields += ", " + quotedName(field.name);
        values += ", 1";
    }
    file.execute("INSERT OR IGNORE INTO \"Gruppen\" (" + fields + ") VALUES (" + values + ')');
}

void seedUser(cursors::Connection& file) {
    const QByteArray group = "(SELECT MIN(\"GNr\") FROM \"Gruppen\" WHERE \"Benutzerverwaltung\")";
    // Two users with the same name and password would lock each other out, so an existing Admin is moved.
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

QStringList completeDatabase(const QString& path, const QString& password, const QString& keptIn) {
    {
        engine::RawContent content(path);
        content.lock();
        keepFileBefore(QStringLiteral("Ergänzung"), content, path, keptIn, QDateTime::currentDateTime());
    }
    return addAll(path, password);
}
