#include "Transaction.h"
#include "StoreFixture.h"

using namespace Qt::StringLiterals;

class TransactionTest : public StoreTest {
protected:
    static void rename(Recordset fish, const QString& name) {
        fish.Edit();
        fish.Collect(u"FName"_s, name);
        fish.Update();
    }

    QString namesInFile() const { return rowsInFile(u"SELECT FName FROM Fisch"_s); }

    static constexpr QStringView unchanged = u"Hecht;Zander;Äsche;Barsch";
};

TEST_F(TransactionTest, WritesWhenTheLastWritingCursorIsClosed) {
    Recordset reading = query(u"SELECT * FROM Kontakt"_s);
    Recordset fish = table(u"Fisch");
    Recordset waters = table(u"Gewaesser");
    rename(fish, u"Aal"_s);
    waters.Delete();
    fish.Close();
    EXPECT_EQ(namesInFile(), unchanged);
    waters.Close();
    EXPECT_EQ(namesInFile(), u"Aal;Zander;Äsche;Barsch");
    reading.MoveNext();
    EXPECT_EQ(reading.Fields(u"KNr"_s).Value(), Value(2));
}

TEST_F(TransactionTest, ReportsAFailedCommitAtTheCloseAndStaysUsable) {
    const auto other = connectTo(path());
    other->execute("BEGIN");
    rowsOf(*other, u"SELECT FNr FROM Fisch"_s);
    Recordset fish = table(u"Fisch");
    rename(fish, u"Aal"_s);
    EXPECT_EQ(errorOf([&] { fish.Close(); }), 3260);
    EXPECT_EQ(errorOf([&] { fish.Close(); }), 91);
    other->execute("COMMIT");
    EXPECT_EQ(namesInFile(), unchanged);
    Recordset again = table(u"Fisch");
    rename(again, u"Stör"_s);
    again.Close();
    EXPECT_EQ(namesInFile(), u"Stör;Zander;Äsche;Barsch");
}

TEST_F(TransactionTest, TakesBackTheActionOfACursorThatNobodyCloses) {
    Recordset waters = table(u"Gewaesser");
    waters.Delete();
    rename(table(u"Fisch"), u"Aal"_s);
    waters.MoveLast();
    EXPECT_EQ(errorOf([&] { waters.Delete(); }), 3034);
    EXPECT_EQ(errorOf([&] { waters.Close(); }), 0);
    EXPECT_EQ(namesInFile(), unchanged);
    Recordset next = table(u"Gewaesser");
    next.Delete();
    next.Close();
    EXPECT_EQ(rowsInFile(u"SELECT COUNT(GNr) FROM Gewaesser"_s), u"1");
}

class HeldTransactionTest : public TransactionTest {
protected:
    Recordset fishOfAal() {
        Recordset fish = held.OpenRecordset(u"Fisch"_s, dbOpenTable);
        rename(fish, u"Aal"_s);
        return fish;
    }

    Database held = DBEngine::Workspaces(0).OpenDatabase(path(), false, false, connect());
};

TEST_F(HeldTransactionTest, TakesBackWhatEndsWithoutACommit) {
    Recordset stillOpen;
    {
        const Transaction action(held);
        fishOfAal().Close();
        stillOpen = fishOfAal();
    }
    EXPECT_EQ(namesInFile(), unchanged);
    EXPECT_EQ(errorOf([&] { rename(stillOpen, u"Barbe"_s); }), 3034);
    EXPECT_EQ(errorOf([&] { stillOpen.Close(); }), 0);
    fishOfAal().Close();
    EXPECT_EQ(namesInFile(), u"Aal;Zander;Äsche;Barsch");
}
