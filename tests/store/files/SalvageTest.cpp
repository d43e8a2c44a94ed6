#include "StoreFixture.h"

#include <QFile>
#include <QFileInfo>
#include <map>
#include <set>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 page = 1024;

/// An INSERT of `count` rows, with their number in i.
QByteArray many(int count, const QByteArray& insert) {
    return "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
           QByteArray::number(count) + ") " + insert + " FROM n";
}

} // namespace

class SalvageTest : public StoreTest {
protected:
    SalvageTest() { database.Close(); }

    qint64 pages() const { return QFileInfo(path()).size() / page; }
    QString target() const { return file(u"uwtmp.mdb"_s); }

    void overwrite(qint64 at, const QByteArray& bytes) const {
        QFile damaged(path());
        ASSERT_TRUE(damaged.open(QIODevice::ReadWrite) && damaged.seek(at));
        damaged.write(bytes);
    }

    /// Inverts some bytes of a page. A second call restores them.
    void flip(qint64 number) const {
        QFile damaged(path());
        ASSERT_TRUE(damaged.open(QIODevice::ReadWrite));
        const qint64 at = (number - 1) * page + 200;
        ASSERT_TRUE(damaged.seek(at));
        QByteArray piece = damaged.read(16);
        for (char& byte : piece) byte = static_cast<char>(~byte);
        ASSERT_TRUE(damaged.seek(at));
        damaged.write(piece);
    }

    /// Sets a key of plain bytes: with a password, many repairs would spend most of their time on deriving
    /// the key.
    void useBareKey() {
        m_password = u"x'"_s + QString(64, u'7') + u'\'';
        execute("PRAGMA rekey = \"" + m_password.toUtf8() + '"');
    }

    std::set<QString> contentOf(const QString& path) const {
        cursors::Connection file(path, m_password, cursors::Connection::Access::ReadWrite);
        return content(file);
    }

    int repair() const {
        QFile::remove(target());
        return errorOf(
            [&] { DBEngine::CompactDatabase(path(), target(), m_password, file(u"Sicherung"_s)); });
    }

    static std::set<QString> content(cursors::Connection& connection) {
        std::set<QString> found;
        for (const TableSpec& table : schemaTables()) {
            if (table.name.startsWith(u"Druck_")) continue;
            const QString name = table.name.toString();
            const QString all = rowsOf(connection, u"SELECT * FROM "_s + name);
            for (const QString& row : all.split(u';', Qt::SkipEmptyParts)) found.insert(name + u": "_s + row);
        }
        return found;
    }

private:
    QString m_password = password();
};

TEST_F(SalvageTest, BringsBackEveryRowThatDoesNotLieOnTheDamagedPage) {
    execute("UPDATE System SET Verein = 'Petri Heil'");
    execute(many(50, "INSERT INTO Fisch (FName, Notiz) SELECT 'Art ' || i, 'Notiz'"));
    execute(many(40, "INSERT INTO Gewaesser (GName, Notiz) SELECT 'Teich ' || i, NULL"));
    execute("UPDATE Gewaesser SET Notiz = hex(zeroblob(900)) WHERE GNr = 30");
    execute(many(120, "INSERT INTO Fang (FangJahr, FangMonat, FischNr, GNr, Notiz, Anzahl, Gewicht) "
                      "SELECT 2005, 5, 1 + i % 50, 2, 'am Ufer', i, 250"));
    execute(
        many(40, "INSERT INTO Arbeit (KNr, Jahr, Datum, ArbStd, Notiz) SELECT 1, 2005, 38500.0, 1.5, ''"));
    useBareKey();
    const std::set<QString> before = contentOf(path());
    std::map<QString, int> losses;
    for (qint64 number = 1; number <= pages(); ++number) {
        flip(number);
        ASSERT_EQ(repair(), 0) << number;
        const std::set<QString> after = contentOf(target());
        for (const QString& row : before)
            if (!after.contains(row)) ++losses[row];
        flip(number);
    }
    // Each row is on one page, except for the long one. More losses of a row mean that damage elsewhere takes
    // it along.
    for (const auto& [row, times] : losses)
        EXPECT_EQ(times, row.size() > 1000 ? 2 : 1) << row.left(80).toStdString();
    // The two system categories and the first group are restored as they were.
    EXPECT_EQ(losses.size(), before.size() - 3);
}

TEST_F(SalvageTest, GivesNoNumberOutAgainThatWasLostOrIsStillReferredTo) {
    execute("INSERT INTO Fisch VALUES (500, 'Wels', ''), (600, 'Rapfen', '')");
    execute("DELETE FROM Fisch WHERE FNr = 600");
    execute("INSERT INTO Arbeit (KNr, Jahr, Datum, ArbStd) VALUES (77, 2005, 38500.0, 1.0)");
    execute("DELETE FROM sqlite_sequence WHERE name = 'Kontakt'");
    flip(1);
    ASSERT_EQ(repair(), 0);
    Database salvaged(connectTo(target()));
    for (const auto& [name, key, last] :
         {std::tuple(u"Fisch"_s, u"FNr"_s, 600), {u"Kontakt"_s, u"KNr"_s, 77}}) {
        Recordset rows = salvaged.OpenRecordset(name, dbOpenTable);
        rows.AddNew();
        rows.Update();
        rows.Index(u"PrimaryKey"_s);
        rows.MoveLast();
        EXPECT_EQ(rows.Fields(key).Value(), Value(last + 1)) << name.toStdString();
    }
}

TEST_F(SalvageTest, LetsSomebodyInWhateverIsLost) {
    // Only catches are left.
    for (const char* table : {"System", "Katego", "Gruppen", "Benutzer", "Mitglied"})
        execute(QByteArray("DELETE FROM ") + table);
    flip(1);
    ASSERT_EQ(repair(), 0);
    const auto copy = connectTo(target());
    EXPECT_EQ(rowsOf(*copy, u"SELECT FJahr FROM System"_s), u"2005");
    EXPECT_EQ(rowsOf(*copy, u"SELECT * FROM Katego"_s), u"1|Mitglieder (aktiv);2|Mitglieder (passiv)");
    EXPECT_EQ(rowsOf(*copy, u"SELECT b.Name, b.Passwort, g.Benutzerverwaltung FROM Benutzer b, Gruppen g "
                            u"WHERE b.GNr = g.GNr"_s),
              u"Admin||True");
    EXPECT_EQ(rowsOf(*copy, u"SELECT KNr, Eintritt FROM Mitglied"_s).count(u"00:00:00"), 0);
    EXPECT_EQ(rowsOf(*copy, u"SELECT COUNT(KNr) FROM Mitglied"_s), u"3");
}
