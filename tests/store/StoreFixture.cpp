#include "StoreFixture.h"

namespace {

const QList<QByteArray>& clubStatements() {
    static const QList<QByteArray> statements{
        "INSERT INTO Fisch VALUES (1, 'Hecht', NULL), (2, 'Zander', ''), (3, 'Äsche', 'selten'), (4, "
        "'Barsch', NULL)",
        "INSERT INTO Gewaesser VALUES (1, 'Waldsee', NULL), (2, 'Mühlbach', NULL)",
        "INSERT INTO Fang VALUES (1, 2005, 1, 1, 1, 'früh', 3, 1500), (2, 2005, 1, 2, 2, '', 1, 800),"
        " (3, 2005, 7, 3, 1, NULL, 10, 2500), (4, 2004, 7, 9, 1, '', 5, 700)",
        "INSERT INTO Katego VALUES (3, 'Händler')",
        "INSERT INTO Kontakt (KNr, KategoNr, Nachname, Vorname, Firma, GebDatum, Bankeinzug) VALUES"
        " (1, 1, 'Müller', 'Jörg', NULL, 25569.0, 1), (2, 1, 'Meier', 'Anna', '', 0.0, 0),"
        " (3, 3, 'Straub', 'Otto', 'Angel-Öztürk', 32874.0, 0), (4, 2, 'Weiß', 'Ute', '', 36526.0, 0)",
        "INSERT INTO Mitglied VALUES (1, 1, 0, 1, 36526.0, 0.0, 0), (2, 0, 1, 0, 36892.0, 0.0, 1),"
        " (4, 0, 0, 1, 36892.0, 38353.0, 0)",
        "INSERT INTO Arbeit VALUES (1, 1, 2005, 38353.0, 2.5, 'Uferpflege'), (2, 1, 2005, 38473.0, 3.0, ''),"
        " (3, 2, 2005, 38353.0, 4.0, NULL), (4, 1, 2004, 38000.0, 20.0, '')",
        "INSERT INTO Besatzung VALUES (1, 2005, 1, 1, 'Frühjahr', 12.5)",
        "INSERT INTO Benutzer VALUES (2, 'Jörg', 'Hecht', 1)",
    };
    return statements;
}

} // namespace

StoreTest::StoreTest() {
    createDatabase(path(), password(), 2005);
    connection = connectTo(path());
    database = Database(connection);
    connection->execute("BEGIN");
    for (const QByteArray& statement : clubStatements()) connection->execute(statement);
    connection->execute("COMMIT");
}

std::shared_ptr<cursors::Connection> StoreTest::connectTo(const QString& file) const {
    return std::make_shared<cursors::Connection>(file, password(), cursors::Connection::Access::ReadWrite);
}

Recordset StoreTest::seek(QStringView name, qint32 key) {
    Recordset found = table(name);
    found.Index(QStringLiteral("PrimaryKey"));
    found.Seek(QStringLiteral("="), key);
    return found;
}

void StoreTest::execute(const QByteArray& sql) const { connectTo(path())->execute(sql); }

QString shown(const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Null:
        return QStringLiteral("Null");
    case Value::Kind::Boolean:
        return value.boolean() ? QStringLiteral("True") : QStringLiteral("False");
    case Value::Kind::Long:
        return QString::number(value.number());
    case Value::Kind::Double:
        return QString::number(value.real()) + u'd';
    case Value::Kind::Date:
        return value.date().toQDate().toString(Qt::ISODate);
    case Value::Kind::Text:
        return value.text();
    }
    return {};
}

QString StoreTest::rowsOf(cursors::Connection& connection, const QString& select) {
    const cursors::Loan statement = connection.select(select);
    const dialect::SelectPlan& plan = statement->plan;
    QStringList lines;
    while (statement->step()) {
        QStringList cells;
        int index = plan.firstColumn();
        for (const dialect::ResultColumn& column : plan.columns)
            cells += shown(statement->column(index++, column.kind));
        lines += cells.join(u'|');
    }
    return lines.join(u';');
}
