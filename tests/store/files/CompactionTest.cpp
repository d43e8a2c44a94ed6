#include "StoreFixture.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

class CompactionTest : public StoreTest {
protected:
    CompactionTest() { database.Close(); }

    QString target() const { return file(u"uwtmp.mdb"_s); }

    int compact(const QString& password = connect()) {
        return errorOf([&] { DBEngine::CompactDatabase(path(), target(), password); });
    }
};

TEST_F(CompactionTest, CopiesEverythingIntoASmallerFile) {
    execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000) "
            "INSERT INTO Fang (FangJahr, Notiz) SELECT 1990, 'x' || i FROM n");
    execute("DELETE FROM Fang WHERE FangJahr = 1990");
    execute("UPDATE Fang SET Gewicht = 'viel', Anzahl = 7000000000 WHERE FangNr = 1");
    execute("INSERT INTO Benutzer VALUES (9, 'Waise', NULL, 77)");
    execute("CREATE TABLE Eigenes (Was TEXT)");
    execute("INSERT INTO Eigenes VALUES ('eins')");
    execute("PRAGMA user_version = 7");
    execute("PRAGMA application_id = -5");
    constexpr QFileDevice::Permissions ownerOnly(QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(QFile::setPermissions(path(), ownerOnly));
    EXPECT_EQ(compact(), 0);
    EXPECT_EQ(QFile::permissions(target()), QFile::permissions(path()));
    EXPECT_LT(QFileInfo(target()).size(), QFileInfo(path()).size() / 2);

    const auto copy = connectTo(target());
    for (const TableSpec& table : schemaTables()) {
        const QString all = u"SELECT * FROM "_s + table.name.toString();
        if (table.name == u"Fang") continue;
        EXPECT_EQ(rowsOf(*copy, all), rowsInFile(all)) << table.name.toString().toStdString();
    }
    engine::Statement raw =
        copy->prepare("SELECT Anzahl || Gewicht || (SELECT Was FROM Eigenes) FROM Fang WHERE FangNr = 1");
    ASSERT_TRUE(raw.step());
    EXPECT_EQ(raw.text(0), u"7000000000vieleins");

    for (const auto& [mark, value] : {std::pair("PRAGMA user_version", 7), {"PRAGMA application_id", -5}}) {
        engine::Statement kept = copy->prepare(mark);
        EXPECT_TRUE(kept.step());
        EXPECT_EQ(kept.integer(0), value) << mark;
    }

    Recordset entries = Database(copy).OpenRecordset(u"Fang"_s, dbOpenTable);
    entries.AddNew();
    entries.Update();
    entries.MoveLast();
    EXPECT_GT(entries.Fields(u"FangNr"_s).Value().number(), 20'000) << "numbers are not given out twice";
}

TEST_F(CompactionTest, LeavesNoTargetBehindWhenItFailsAndNoneAloneThatExists) {
    QFile existing(target());
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    existing.close();
    EXPECT_EQ(compact(), 3204);
    EXPECT_TRUE(QFile::exists(target()));
    EXPECT_EQ(errorOf([&] { DBEngine::CompactDatabase(path(), file(u"temp/x.mdb"_s), connect()); }), 3044);
    EXPECT_EQ(rowsInFile(u"SELECT COUNT(FNr) FROM Fisch"_s), u"4");
}
