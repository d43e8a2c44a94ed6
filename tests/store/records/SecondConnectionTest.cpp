#include "StoreFixture.h"

using namespace Qt::StringLiterals;

/// The program's connection and the one for staging a report, on one file.
class SecondConnectionTest : public StoreTest {
protected:
    SecondConnectionTest() {
        staging = DBEngine::Workspaces(0).OpenDatabase(path(), false, false, u";pwd="_s + password());
    }

    Recordset stage(qint32 number) {
        Recordset rows = staging.OpenRecordset(u"Druck_ArbListe"_s, dbOpenTable);
        rows.AddNew();
        rows.Collect(u"ArbNr"_s, number);
        rows.Update();
        return rows;
    }

    QString staged() const { return rowsInFile(u"SELECT ArbNr FROM Druck_ArbListe"_s); }

    Database staging;
};

TEST_F(SecondConnectionTest, ReachesTheFileAtTheCloseWhileTheProgramKeepsAShortResultOpen) {
    Recordset member = query(u"SELECT * FROM Kontakt WHERE KNr = 1"_s);
    Recordset count = query(u"SELECT COUNT(KNr) FROM Kontakt"_s);
    Recordset rows = stage(5);
    EXPECT_EQ(staged(), u"");
    rows.Close();
    EXPECT_EQ(staged(), u"5");
    EXPECT_EQ(rowsOf(*connection, u"SELECT ArbNr FROM Druck_ArbListe"_s), u"5");
    EXPECT_EQ(member.Fields(u"Nachname"_s).Value(), Value(u"Müller"));

    Recordset program = table(u"Druck_ArbListe");
    program.Delete();
    program.Close();
    staging.Close();
    EXPECT_EQ(staged(), u"");
}
