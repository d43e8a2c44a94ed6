#include "Sqlite.h"
#include "StoreFixture.h"

using namespace Qt::StringLiterals;

class CursorTest : public StoreTest {
protected:
    static qint32 number(const Recordset& recordset, QStringView field) {
        return recordset.Fields(field.toString()).Value().number();
    }

    /// The place of a cursor: count, position, and which ends it is at.
    static QString place(const Recordset& recordset) {
        return u"%1 %2%3%4"_s.arg(recordset.RecordCount())
            .arg(recordset.AbsolutePosition())
            .arg(recordset.Bof() ? u" bof"_s : QString(), recordset.Eof() ? u" eof"_s : QString());
    }

    Recordset cursor(bool isTable) { return isTable ? table(u"Fisch") : query(u"SELECT * FROM Fisch"_s); }

    /// Makes each step fail while some statement is running.
    void interrupt() const { sqlite3_interrupt(connection->handle()); }

    QString walk(const QString& select, QStringView field) {
        QStringList values;
        for (Recordset all = query(select); !all.Eof(); all.MoveNext())
            values += shown(all.Fields(field.toString()).Value());
        return values.join(u' ');
    }
};

TEST_F(CursorTest, CountsTheRowsOfAQueryAsTheyAreReached) {
    Recordset fish = query(u"SELECT * FROM Fisch"_s);
    EXPECT_EQ(place(fish), u"1 0");
    fish.MoveNext();
    EXPECT_EQ(place(fish), u"2 1");
    fish.MoveFirst();
    EXPECT_EQ(place(fish), u"2 0");
    fish.MoveLast();
    EXPECT_EQ(place(fish), u"4 3");
    EXPECT_EQ(number(fish, u"FNr"), 4);
    fish.MoveNext();
    EXPECT_EQ(place(fish), u"4 -1 eof");
    EXPECT_EQ(errorOf([&] { fish.MoveNext(); }), 3021);
    EXPECT_EQ(errorOf([&] { number(fish, u"FNr"); }), 3021);
    fish.MoveFirst();
    EXPECT_EQ(number(fish, u"FNr"), 1);
    Recordset none = query(u"SELECT * FROM Fisch WHERE FNr = 99"_s);
    EXPECT_EQ(place(none), u"0 -1 bof eof");
    EXPECT_EQ(errorOf([&] { none.MoveFirst(); }), 3021);
}

TEST_F(CursorTest, BearsStoredValuesOfTheWrongKind) {
    execute("UPDATE Fang SET Anzahl = 5000000000, Gewicht = 'viel', FangMonat = 1.5 WHERE FangNr = 1");
    execute("UPDATE System SET JBeitrag = 12.5, PflichtStd = NULL");
    const Recordset entry = seek(u"Fang", 1);
    EXPECT_EQ(errorOf([&] { entry.Fields(u"Anzahl"_s).Value(); }), 6);
    EXPECT_EQ(entry.Fields(u"Gewicht"_s).Value(), Value(u"viel"));
    EXPECT_EQ(entry.Fields(u"FangMonat"_s).Value(), Value(1.5));
    EXPECT_EQ(table(u"System").Fields(u"JBeitrag"_s).Value(), Value(12.5));
    EXPECT_TRUE(table(u"System").Fields(u"PflichtStd"_s).Value().isNull());
}

TEST_F(CursorTest, SeeksByKey) {
    Recordset fish = table(u"Fisch");
    EXPECT_EQ(errorOf([&] { fish.Index(u"Name"_s); }), 3015);
    fish.Index(u"primarykey"_s);
    fish.Seek(u"="_s, Value(u"3"));
    EXPECT_FALSE(fish.NoMatch());
    EXPECT_EQ(shown(fish.Fields(u"FName"_s).Value()), u"Äsche");
    EXPECT_EQ(fish.AbsolutePosition(), 2);
    fish.MoveNext();
    EXPECT_EQ(number(fish, u"FNr"), 4);
    for (const Value& missing : {Value(99), Value(-1), Value()}) {
        fish.Seek(u"="_s, missing);
        EXPECT_TRUE(fish.NoMatch());
        EXPECT_EQ(errorOf([&] { number(fish, u"FNr"); }), 3021);
    }
    EXPECT_EQ(errorOf([&] { table(u"System").Index(u"PrimaryKey"_s); }), 3015);
    EXPECT_EQ(errorOf([&] { query(u"SELECT * FROM Fisch"_s).Index(u"PrimaryKey"_s); }), 3251);
    EXPECT_EQ(errorOf([&] { table(u"Fische"); }), 3078);
}

TEST_F(CursorTest, HasNoRowAfterADeletionUntilItMoves) {
    for (const bool isTable : {true, false}) {
        Recordset fish = cursor(isTable);
        fish.Delete();
        EXPECT_EQ(errorOf([&] { number(fish, u"FNr"); }), 3167);
        EXPECT_EQ(errorOf([&] { fish.Edit(); }), 3167);
        EXPECT_EQ(errorOf([&] { fish.Delete(); }), 3167);
        fish.MoveNext();
        EXPECT_GT(number(fish, u"FNr"), 1);
        fish.Close();
    }
    EXPECT_EQ(walk(u"SELECT FNr FROM Fisch"_s, u"FNr"), u"3 4");
    Recordset rest = table(u"Fisch");
    for (; !rest.Eof(); rest.MoveNext()) rest.Delete();
    EXPECT_EQ(place(table(u"Fisch")), u"0 -1 bof eof");
}
