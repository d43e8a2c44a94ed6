#include "Sqlite.h"
#include "StoreFixture.h"

class StatementCacheTest : public StoreTest {
protected:
    static QString select(int number) { return u"SELECT FNr FROM Fisch WHERE FNr = %1"_qs.arg(number); }

    qint64 preparedStatements() const {
        int used = 0;
        int peak = 0;
        sqlite3_db_status(connection->handle(), SQLITE_DBSTATUS_STMT_USED, &used, &peak, 0);
        return used;
    }
};

TEST_F(StatementCacheTest, PreparesStatementsThatDifferInLiteralsOnlyOnce) {
    rows(select(1));
    const qint64 once = preparedStatements();
    for (int number = 2; number < 50; ++number) rows(select(number));
    EXPECT_EQ(preparedStatements(), once);
}

TEST_F(StatementCacheTest, StaysBoundedHoweverManyStatementsThereAre) {
    const auto statement = [](int number) {
        return u"SELECT f%1.FNr FROM Fisch f%1 WHERE f%1.FNr = 1"_qs.arg(number);
    };
    for (int number = 0; number < 200; ++number) rows(statement(number));
    const qint64 full = preparedStatements();
    for (int number = 200; number < 600; ++number) rows(statement(number));
    EXPECT_LT(preparedStatements(), full * 3 / 2);
    EXPECT_EQ(rows(statement(0)), u"1");
}
