#include "StoreFixture.h"

using namespace Qt::StringLiterals;

namespace {

struct Answer {
    const char* select;
    QStringView rows;
};

struct Refusal {
    QByteArray select;
    int number;
};

} // namespace

class DialectTest : public StoreTest {
protected:
    void expectRows(std::initializer_list<Answer> answers) {
        for (const auto& [select, expected] : answers) {
            SCOPED_TRACE(select);
            EXPECT_EQ(rows(QString::fromUtf8(select)), expected);
        }
    }

    void expectErrors(std::initializer_list<Refusal> refusals) {
        for (const auto& [select, number] : refusals) {
            SCOPED_TRACE(select.constData());
            EXPECT_EQ(errorOf([&] { rows(QString::fromUtf8(select)); }), number);
        }
    }
};

TEST_F(DialectTest, ReadsNumbersDatesAndTextsAsTheyAreWritten) {
    expectRows({
        {"SELECT FNr FROM Fisch WHERE FName='Hecht'OR FNr=2OR FNr=3", u"1;2;3"},
        {"SELECT FNr FROM Fisch WHERE FNr > 99999999999", u""},
        {"SELECT FNr FROM Fisch WHERE FNr < 2147483648 AND FNr > -1 AND Notiz = ''", u"2"},
        {"SELECT ArbNr FROM Arbeit WHERE Datum < #1/2/2005# AND Datum > #12/31/2004#", u"1;3"},
    });
    expectErrors({
        {"SELECT ArbNr FROM Arbeit WHERE Datum = #2/31/2005#", 3075},
        {"SELECT ArbNr FROM Arbeit WHERE Datum = #1/1/2005 6:30#", 3075},
        {"SELECT ArbNr FROM Arbeit WHERE Datum = #1/1/2005", 3075},
    });
}

TEST_F(DialectTest, FindsNamesInAnySpelling) {
    execute("INSERT INTO Druck_Fangliste (FangNr, \"Gewässer\") VALUES (7, 'Waldsee')");
    expectRows({
        {"select fnr from FISCH where fname = 'Hecht'", u"1"},
        {"SELECT GEWÄSSER FROM druck_fangliste", u"Waldsee"},
        {"SELECT gewässer, Druck_Fangliste.FangNr FROM Druck_Fangliste", u"Waldsee|7"},
        {"SELECT Katego.KategoNr FROM katego WHERE KATEGO.Kategorie = 'Händler'", u"3"},
        {"SELECT f.FNr FROM Fisch f WHERE F.fname = 'Hecht'", u"1"},
    });
    expectErrors({
        {"SELECT Nix FROM Fisch", 3061},
        {"SELECT x.FNr FROM Fisch f", 3061},
        {"SELECT FNr FROM Fisch WHERE FName = Hecht", 3061},
        {"SELECT Fisch.FNr FROM Fisch f", 3061},
        {"SELECT FNr FROM Fische", 3078},
        {"SELECT name FROM sqlite_master", 3078},
        {"SELECT rowid FROM Fisch", 3061},
        {"SELECT GNr FROM Fang, Gewaesser", 3075},
        {"SELECT f.FNr FROM Fisch f, Gewaesser f", 3075},
    });
}

TEST_F(DialectTest, ComparesTextsWithoutRegardToCase) {
    expectRows({
        {"SELECT FNr FROM Fisch WHERE FName = 'asche'", u""},
        {"SELECT FNr FROM Fisch WHERE FName <> 'ÄSCHE'", u"1;2;4"},
        {"SELECT FNr FROM Fisch WHERE FName < 'b'", u"3"},
        {"SELECT BNr FROM Benutzer WHERE Name = 'jÖRG' AND Passwort = 'HECHT'", u"2"},
    });
}

TEST_F(DialectTest, MatchesPatternsWithoutRegardToCase) {
    expectRows({
        {"SELECT FNr FROM Fisch WHERE FName LIKE 'ä*'", u"3"},
        {"SELECT FNr FROM Fisch WHERE Notiz LIKE '*'", u"2;3"},
    });
}

TEST_F(DialectTest, KnowsOperatorsAndTheirBinding) {
    expectRows({
        {"SELECT FNr FROM Fisch WHERE FNr = 1 OR FNr = 2 AND FNr = 3", u"1"},
        {"SELECT FNr FROM Fisch WHERE (FNr = 1 OR FNr = 2) AND FNr <> 1", u"2"},
        {"SELECT FNr FROM Fisch WHERE Notiz = Notiz", u"2;3"},
        {"SELECT KNr FROM Mitglied WHERE Befreit = True", u"2"},
        {"SELECT KNr FROM Mitglied WHERE Bezahlt = Befreit", u""},
        {"SELECT COUNT(FangNr), COUNT(Notiz), SUM(Anzahl), MIN(Gewicht) FROM Fang", u"4|3|19|700"},
        {"SELECT MAX(Datum) FROM Arbeit", u"2005-05-01"},
    });
}

TEST_F(DialectTest, RefusesToCompareTextsWithNumbers) {
    expectErrors({
        {"SELECT FNr FROM Fisch WHERE FName = 1", 3464},
        {"SELECT FNr FROM Fisch WHERE FNr = '1'", 3464},
        {"SELECT KNr FROM Kontakt WHERE GebDatum = '1.1.2005'", 3464},
        {"SELECT SUM(FName) FROM Fisch", 3464},
        {"SELECT KNr FROM Kontakt WHERE KNr LIKE '1'", 3464},
        {"SELECT KNr FROM Mitglied WHERE Befreit = 1", 3464},
        {"SELECT FNr FROM Fisch WHERE FNr = (SELECT Name FROM Benutzer)", 3464},
    });
}

TEST_F(DialectTest, TakesASubselectForAtMostOneValue) {
    expectRows({
        {"SELECT FNr FROM Fisch WHERE FNr = (SELECT FNr FROM Fisch WHERE FName = 'keiner')", u""},
        {"SELECT FNr FROM Fisch WHERE FName = (SELECT Passwort FROM Benutzer WHERE BNr = 2)", u"1"},
    });
    expectErrors({
        {"SELECT * FROM Gruppen WHERE GNr = (SELECT GNr FROM Benutzer WHERE Name LIKE '*')", 3354},
        {"SELECT FNr FROM Fisch WHERE FNr = (SELECT FNr, FName FROM Fisch)", 3075},
    });
}

TEST_F(DialectTest, RefusesWhatIsNoSingleWellFormedSelect) {
    for (const char* select : {"",
                               ";",
                               "SELECT",
                               "SELECT FROM Fisch",
                               "SELECT FNr",
                               "SELECT FNr FROM",
                               "SELECT FNr, FROM Fisch",
                               "SELECT FNr FROM Fisch,",
                               "SELECT FNr FName FROM Fisch",
                               "SELECT FName, COUNT(FNr) FROM Fisch",
                               "SELECT SUM(MAX(FNr)) FROM Fisch",
                               "SELECT load_extension(FName) FROM Fisch",
                               "SELECT FNr FROM Fisch ORDER BY FNr",
                               "SELECT DISTINCT FNr FROM Fisch",
                               "SELECT FNr FROM Fisch UNION SELECT GNr FROM Gewaesser",
                               "SELECT FNr FROM Fisch -- alle",
                               "SELECT FNr /* alle */ FROM Fisch",
                               "SELECT FNr FROM Fisch LIMIT 1",
                               "SELECT \"FNr\" FROM Fisch",
                               "SELECT [FNr] FROM Fisch",
                               "SELECT FNr FROM Fisch;",
                               "(SELECT FNr FROM Fisch)",
                               "'x'SELECT rowid FROM Fisch",
                               "#1/1/2005#SELECT rowid FROM Fisch",
                               "DELETE FROM Fisch",
                               "PRAGMA key = 'x'",
                               "ATTACH 'x' AS y",
                               "EXPLAIN SELECT FNr FROM Fisch"})
        expectErrors({{select, 3075}});
    for (const QByteArray condition : {"",
                                       "FNr =",
                                       "FNr > 1 AND FNr ",
                                       "FNr > 1 AND FNr > ",
                                       "FNr >  AND FNr < 5",
                                       "FName = 'O'Brien'",
                                       "FName = 'Hecht",
                                       "FNr = 1 2",
                                       "FNr = 5x",
                                       "FNr > 1,5",
                                       "(FNr = 1",
                                       "FNr = 1)",
                                       "FNr IN (1, 2)",
                                       "NOT FNr = 1",
                                       "FNr = 1 + 1",
                                       "FNr = = 1",
                                       "FNr = 1; DELETE FROM Fisch",
                                       "FNr = ?1",
                                       "FNr = :x",
                                       "COUNT(FNr) > 1",
                                       "FName = 'O''Brien'",
                                       "FNr",
                                       "FNr = --1"})
        expectErrors({{"SELECT FNr FROM Fisch WHERE " + condition, 3075}});
    EXPECT_EQ(rows(QStringLiteral("SELECT COUNT(FNr) FROM Fisch")), u"4");
}

TEST_F(DialectTest, NamesWhatHasNoName) {
    const auto names = [this](QStringView select) {
        QStringList found;
        const cursors::Loan statement = connection->select(select);
        for (const dialect::ResultColumn& column : statement->plan.columns) found += column.name;
        return found.join(u' ');
    };
    EXPECT_EQ(names(u"SELECT MIN(FNr), MAX(FNr) FROM Fisch"), u"Expr1000 Expr1001");
    EXPECT_EQ(names(u"SELECT fnr, f.Notiz FROM Fisch f"), u"FNr Notiz");
}

TEST_F(DialectTest, TellsTheReasonInGerman) {
    try {
        rows(u"SELECT FNr FROM Fisch WHERE FNr = 5x"_s);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.description, u"Syntaxfehler (fehlender Operator) in Abfrageausdruck 'FNr = 5x'.");
    }
}
