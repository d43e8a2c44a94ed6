#include "StoreFixture.h"

using namespace Qt::StringLiterals;

class WritingTest : public StoreTest {
protected:
    static void addFish(Recordset& fish, const QString& name) {
        fish.AddNew();
        fish.Collect(u"FName"_s, name);
        fish.Update();
    }

    /// Sets a field of a new row. Returns the error and the field's content.
    QString collected(QStringView tableName, QStringView field, const Value& value) {
        Recordset rows = table(tableName);
        rows.AddNew();
        const int error = errorOf([&] { rows.Collect(field.toString(), value); });
        return error != 0 ? QString::number(error) : shown(rows.Fields(field.toString()).Value());
    }
};

TEST_F(WritingTest, NeverGivesANumberOutTwice) {
    Recordset last = seek(u"Fisch", 4);
    last.Delete();
    addFish(last, u"Aal"_s);
    last.Close();
    EXPECT_EQ(rowsInFile(u"SELECT FNr FROM Fisch"_s), u"1;2;3;5");
}

TEST_F(WritingTest, ConvertsToTheKindOfTheField) {
    EXPECT_EQ(collected(u"Fang", u"Anzahl", Value(u"12")), u"12");
    EXPECT_EQ(collected(u"Fang", u"Anzahl", Value(2.5)), u"2");
    EXPECT_EQ(collected(u"Fang", u"Anzahl", Value(u"99999999999")), u"6");
    EXPECT_EQ(collected(u"Fang", u"Anzahl", Value(u"")), u"13");
    EXPECT_EQ(collected(u"Fang", u"Anzahl", Value()), u"Null");
    EXPECT_EQ(collected(u"Fang", u"FangNr", Value(7)), u"3164");
    EXPECT_EQ(collected(u"Fang", u"Nix", Value(7)), u"3265");
    EXPECT_EQ(collected(u"Fang", u"Notiz", Value(2.5)), u"2,5");
    EXPECT_EQ(collected(u"Arbeit", u"ArbStd", Value(u"3,25")), u"3.25d");
    EXPECT_EQ(collected(u"Arbeit", u"Datum", Value(u"24.12.2004")), u"2004-12-24");
    EXPECT_EQ(collected(u"Arbeit", u"Datum", Value(u"00:00:0000")), u"1899-12-30");
    EXPECT_EQ(collected(u"Arbeit", u"Datum", Value(u"31.02.2004")), u"13");
    EXPECT_EQ(collected(u"Mitglied", u"JG", Value(-1)), u"True");
    EXPECT_EQ(collected(u"Mitglied", u"JG", Value(0)), u"False");
    EXPECT_EQ(collected(u"Mitglied", u"JG", Value()), u"False");
    EXPECT_EQ(collected(u"System", u"JBeitrag", Value(20)), u"20");
    EXPECT_EQ(collected(u"System", u"JBeitrag", Value(20.5)), u"20.5d");
}

TEST_F(WritingTest, RefusesKeysThatAreDoubleOrNull) {
    Recordset members = table(u"Mitglied");
    members.AddNew();
    EXPECT_EQ(errorOf([&] { members.Update(); }), 3058);
    members.Collect(u"KNr"_s, 1);
    EXPECT_EQ(errorOf([&] { members.Update(); }), 3022);
    members.Collect(u"KNr"_s, 3);
    members.Update();
    members.Close();
    EXPECT_EQ(rowsInFile(u"SELECT KNr FROM Mitglied"_s), u"1;2;3;4");
}

TEST_F(WritingTest, DeletesTheUsersOfADeletedGroupAndNothingElse) {
    for (Recordset gone : {seek(u"Gruppen", 1), seek(u"Fisch", 1), seek(u"Kontakt", 1)}) {
        gone.Delete();
        gone.Close();
    }
    EXPECT_EQ(rowsInFile(u"SELECT COUNT(BNr) FROM Benutzer"_s), u"0");
    EXPECT_EQ(rowsInFile(u"SELECT COUNT(FangNr) FROM Fang"_s), u"4");
    EXPECT_EQ(rowsInFile(u"SELECT KNr FROM Mitglied WHERE KNr = 1"_s), u"1");
    Recordset users = table(u"Benutzer");
    users.AddNew();
    users.Collect(u"GNr"_s, 77);
    users.Update();
    users.Close();
    EXPECT_EQ(rowsInFile(u"SELECT GNr FROM Benutzer"_s), u"77") << "a user needs no group";
}

TEST_F(WritingTest, NoticesThatARowIsGone) {
    Recordset entry = seek(u"Fang", 1);
    Recordset other = seek(u"Fang", 1);
    other.Delete();
    entry.Edit();
    entry.Collect(u"Anzahl"_s, 1);
    EXPECT_EQ(errorOf([&] { entry.Update(); }), 3167);
}
