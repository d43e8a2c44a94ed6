#include "StoreFixture.h"

namespace {

struct Answer {
    const char* select;
    QStringView rows;
};

struct Refusal {
    const char* select;
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
            SCOPED_TRACE(select);
            EXPECT_EQ(errorOf([&] { rows(QString::fromUtf8(select)); }), number);
        }
    }
};

TEST_F(DialectTest, UnderstandsTheStatementsOfTheProgram) {
    expectRows({
        {"SELECT FNr FROM Fisch WHERE FName = 'Hecht'", u"1"},
        {"SELECT GName FROM Gewaesser WHERE GNr = 2", u"Mühlbach"},
        {"SELECT KategoNr FROM Katego WHERE Kategorie = 'Mitglieder (aktiv)'", u"1"},
        {"SELECT * FROM Gruppen WHERE GNr = (SELECT GNr FROM Benutzer WHERE Name = 'Admin' AND Passwort = "
         "'')",
         u"1|Administratoren|True|True|True|True|True|True|True|True|True|True"},
        {"SELECT MIN(FangJahr) FROM Fang", u"2004"},
        {"SELECT fa.FangNr, f.FName, g.GName, fa.FangMonat, fa.Anzahl, fa.Gewicht FROM Fang fa , Fisch f, "
         "Gewaesser g WHERE fa.FangJahr = 2005AND fa.FangMonat = 1 AND fa.FischNr = f.FNr AND fa.GNr = g.GNr",
         u"1|Hecht|Waldsee|1|3|1500;2|Zander|Mühlbach|1|1|800"},
        {"SELECT COUNT(fa.FangNr) FROM Fang fa, Fisch f, Gewaesser g WHERE fa.FangJahr = 2005 AND "
         "fa.FangMonat = 1 "
         "AND fa.FischNr = f.FNr AND fa.GNr = g.GNr",
         u"2"},
        {"SELECT COUNT(fa.FangNr) FROM Fang fa WHERE fa.FangJahr = 2004", u"1"},
        {"SELECT SUM(fa.Anzahl) FROM Fang fa , Fisch f, Gewaesser g WHERE fa.FischNr = f.FNr AND fa.GNr = "
         "g.GNr"
         " AND fa.FangJahr = 2005 AND f.FName = 'Hecht' AND g.GName = 'Waldsee' AND fa.FangMonat = 1"
         " AND fa.Anzahl >= 1 AND fa.Anzahl <= 9 AND fa.Gewicht > 0 AND fa.Gewicht <> 7",
         u"3"},
        {"SELECT SUM(fa.Gewicht) FROM Fang fa WHERE fa.FangJahr = 1999", u"Null"},
        {"SELECT KNr FROM Kontakt WHERE Vorname LIKE 'J*' Or Nachname LIKE 'J*' Or Firma LIKE 'J*'", u"1"},
        {"SELECT KNr FROM Kontakt WHERE (Vorname LIKE '*ö*' Or Nachname LIKE '*ö*' Or Firma LIKE '*ö*') AND "
         "(KategoNr = 3)",
         u"3"},
        {"SELECT k.KNr, k.GebDatum, m.Eintritt FROM Kontakt k, Mitglied m WHERE k.KNr = m.KNr AND k.KategoNr "
         "= 1",
         u"1|1970-01-01|2000-01-01;2|1899-12-30|2001-01-01"},
        {"SELECT k.KNr FROM Kontakt k, Mitglied m WHERE k.KNr = m.KNr AND k.GebDatum >= #1/1/1970# AND "
         "k.GebDatum "
         "< #12/31/1999# AND m.Geschlecht = True AND m.Bezahlt = True AND k.KategoNr = 1 AND m.Befreit = "
         "False "
         "AND m.Austritt = 0 AND m.JG = False",
         u"1"},
        {"SELECT k.KNr FROM Kontakt k, Mitglied m WHERE k.KNr = m.KNr AND m.Austritt <> 0", u"4"},
        {"SELECT SUM(ArbStd) FROM Arbeit WHERE KNr = 1 AND Jahr = 2005", u"5.5d"},
        {"SELECT ArbNr, KNr, ArbStd, Datum FROM Arbeit WHERE KNr = 2 AND Jahr = 2005", u"3|2|4d|2005-01-01"},
        {"SELECT ArbNr FROM Arbeit WHERE Datum = #1/1/2005#", u"1;3"},
        {"SELECT b.BNr, f.FName, g.GName, b.Zeit, b.Menge FROM Besatzung b, Fisch f, Gewaesser g WHERE b.BNr "
         "= 1 "
         "AND b.FNr = f.FNr AND b.GNr = g.GNr AND b.BJahr = 2005",
         u"1|Hecht|Waldsee|Frühjahr|12.5d"},
        {"SELECT b.BNr, b.Name, b.Passwort, g.GName FROM Benutzer b, Gruppen g WHERE g.GNr = b.GNr",
         u"1|Admin||Administratoren;2|Jörg|Hecht|Administratoren"},
        {"SELECT * FROM System", u"2005|0|0|||||"},
    });
}

TEST_F(DialectTest, ReadsNumbersDatesAndTextsAsTheyAreWritten) {
    expectRows({
        {"SELECT FNr FROM Fisch WHERE FName='Hecht'OR FNr=2OR FNr=3", u"1;2;3"},
        {"SELECT FNr FROM Fisch WHERE FNr = 3.0 OR FNr = .5E1", u"3"},
        {"SELECT FNr FROM Fisch WHERE FNr > 99999999999", u""},
        {"SELECT FNr FROM Fisch WHERE FNr = -(-2)", u"2"},
        {"SELECT 'O''Brien', 'a''''b', '' FROM System", u"O'Brien|a''b|"},
        {"SELECT #2/28/2005#, #2005-02-28#, #2/28/05#, #2/29/2000# FROM System",
         u"2005-02-28|2005-02-28|2005-02-28|2000-02-29"},
        {"SELECT ArbNr FROM Arbeit WHERE Datum < #1/1/2005 6:30:00# AND Datum > #12/31/2004 23:59:59#",
         u"1;3"},
        {"SELECT -1, 2147483647, 2147483648, 1.5 FROM System", u"-1|2147483647|2.14748e+09d|1.5d"},
    });
    expectErrors({
        {"SELECT ArbNr FROM Arbeit WHERE Datum = #2/31/2005#", 3075},
        {"SELECT ArbNr FROM Arbeit WHERE Datum = #13/1/2005#", 3075},
        {"SELECT ArbNr FROM Arbeit WHERE Datum = #1/1/2005 25:00#", 3075},
        {"SELECT ArbNr FROM Arbeit WHERE Datum = #1/1/2005", 3075},
        {"SELECT ArbNr FROM Arbeit WHERE Datum = ##", 3075},
    });
}

TEST_F(DialectTest, FindsNamesInAnySpelling) {
    execute("INSERT INTO Druck_Fangliste (FangNr, \"Gewässer\") VALUES (7, 'Waldsee')");
    expectRows({
        {"select fnr from FISCH where fname = 'Hecht'", u"1"},
        {"SELECT GEWÄSSER FROM druck_fangliste", u"Waldsee"},
        {"SELECT [gewässer], [Druck_Fangliste].[FangNr] FROM [Druck_Fangliste]", u"Waldsee|7"},
        {"SELECT Katego.KategoNr FROM katego WHERE KATEGO.Kategorie = 'Händler'", u"3"},
        {"SELECT f.FNr FROM Fisch f WHERE F.fname = 'Hecht';", u"1"},
    });
    expectErrors({
        {"SELECT Nix FROM Fisch", 3061},
        {"SELECT f.Nix FROM Fisch f", 3061},
        {"SELECT x.FNr FROM Fisch f", 3061},
        {"SELECT FNr FROM Fisch WHERE FName = Hecht", 3061},
        {"SELECT Fisch.FNr FROM Fisch f", 3061},
        {"SELECT FNr FROM Fische", 3078},
        {"SELECT name FROM sqlite_master", 3078},
        {"SELECT rowid FROM Fisch", 3061},
        {"SELECT GNr FROM Fang, Gewaesser", 3079},
        {"SELECT f.FNr FROM Fisch f, Gewaesser f", 3075},
    });
}

TEST_F(DialectTest, ComparesTextsWithoutRegardToCase) {
    expectRows({
        {"SELECT FNr FROM Fisch WHERE FName = 'HECHT'", u"1"},
        {"SELECT FNr FROM Fisch WHERE FName = 'äSCHE'", u"3"},
        {"SELECT FNr FROM Fisch WHERE 'ÄSCHE' = FName", u"3"},
        {"SELECT FNr FROM Fisch WHERE FName = 'asche'", u""},
        {"SELECT FNr FROM Fisch WHERE FName <> 'ÄSCHE'", u"1;2;4"},
        {"SELECT FNr FROM Fisch WHERE FName < 'b'", u"3"},
        {"SELECT MIN(FName), MAX(FName) FROM Fisch", u"Äsche|Zander"},
        {"SELECT BNr FROM Benutzer WHERE Name = 'jÖRG' AND Passwort = 'HECHT'", u"2"},
    });
}

TEST_F(DialectTest, MatchesPatternsWithoutRegardToCase) {
    expectRows({
        {"SELECT FNr FROM Fisch WHERE FName LIKE 'ä*'", u"3"},
        {"SELECT FNr FROM Fisch WHERE FName LIKE '?ander'", u"2"},
        {"SELECT FNr FROM Fisch WHERE FName LIKE '[A-Z]*'", u"1;2;4"},
        {"SELECT FNr FROM Fisch WHERE FName LIKE '[!hz]*'", u"3;4"},
        {"SELECT FNr FROM Fisch WHERE Notiz LIKE '*'", u"2;3"},
        {"SELECT KNr FROM Kontakt WHERE Nachname LIKE 'weiss'", u""},
        {"SELECT KNr FROM Kontakt WHERE KNr LIKE '#' AND Nachname LIKE 'm*'", u"1;2"},
    });
    expectErrors({{"SELECT FNr FROM Fisch WHERE FName LIKE '[a'", 93}});
}

TEST_F(DialectTest, KnowsOperatorsAndTheirBinding) {
    expectRows({
        {"SELECT FNr FROM Fisch WHERE FNr = 1 OR FNr = 2 AND FNr = 3", u"1"},
        {"SELECT FNr FROM Fisch WHERE (FNr = 1 OR FNr = 2) AND FNr <> 1", u"2"},
        {"SELECT FNr FROM Fisch WHERE Notiz = Notiz", u"2;3"},
        {"SELECT KNr FROM Mitglied WHERE Befreit", u"2"},
        {"SELECT KNr FROM Mitglied WHERE Befreit = -1", u"2"},
        {"SELECT KNr FROM Mitglied WHERE Bezahlt = Befreit", u""},
        {"SELECT COUNT(FangNr), COUNT(Notiz), SUM(Anzahl), MIN(Gewicht) FROM Fang", u"4|3|19|700"},
        {"SELECT MAX(Datum) FROM Arbeit", u"2005-05-01"},
    });
    expectErrors({
        {"SELECT FName, COUNT(FNr) FROM Fisch", 3122},
        {"SELECT FNr FROM Fisch WHERE COUNT(FNr) > 1", 3096},
        {"SELECT SUM(MAX(FNr)) FROM Fisch", 3096},
        {"SELECT Upper(FName) FROM Fisch", 3085},
        {"SELECT load_extension('x') FROM Fisch", 3085},
    });
}

TEST_F(DialectTest, RefusesToCompareTextsWithNumbers) {
    expectErrors({
        {"SELECT FNr FROM Fisch WHERE FName = 1", 3464},
        {"SELECT FNr FROM Fisch WHERE FNr = '1'", 3464},
        {"SELECT KNr FROM Kontakt WHERE GebDatum = '1.1.2005'", 3464},
        {"SELECT KNr FROM Mitglied WHERE JG = 'True'", 3464},
        {"SELECT SUM(FName) FROM Fisch", 3464},
        {"SELECT FNr FROM Fisch WHERE FNr = (SELECT Name FROM Benutzer)", 3464},
    });
}

TEST_F(DialectTest, TakesASubselectForAtMostOneValue) {
    expectRows({
        {"SELECT FNr FROM Fisch WHERE FNr = (SELECT FNr FROM Fisch WHERE FName = 'keiner')", u""},
        {"SELECT FNr FROM Fisch WHERE FNr = (SELECT MAX(FNr) FROM Fisch)", u"4"},
        {"SELECT FNr FROM Fisch f WHERE 10 = (SELECT Anzahl FROM Fang WHERE FischNr = f.FNr)", u"3"},
        {"SELECT (SELECT GName FROM Gruppen) FROM System", u"Administratoren"},
    });
    expectErrors({
        {"SELECT * FROM Gruppen WHERE GNr = (SELECT GNr FROM Benutzer WHERE Name LIKE '*')", 3354},
        {"SELECT FNr FROM Fisch WHERE FNr = (SELECT FNr, FName FROM Fisch)", 3306},
    });
}

TEST_F(DialectTest, RefusesWhatIsNoSingleWellFormedSelect) {
    expectErrors({
        {"", 3075},
        {"   ", 3075},
        {";", 3075},
        {"SELECT", 3075},
        {"SELECT FROM Fisch", 3075},
        {"SELECT FNr", 3075},
        {"SELECT FNr FROM", 3075},
        {"SELECT FNr, FROM Fisch", 3075},
        {"SELECT FNr FROM Fisch,", 3075},
        {"SELECT FNr FName FROM Fisch", 3075},
        {"SELECT FNr FROM Fisch WHERE", 3075},
        {"SELECT FNr FROM Fisch WHERE FNr =", 3075},
        {"SELECT fa.FangNr FROM Fang fa WHERE fa.Anzahl > 1 AND fa.Anzahl  ", 3075},
        {"SELECT k.KNr FROM Kontakt k WHERE k.KNr = 1 AND k.GebDatum ", 3075},
        {"SELECT fa.FangNr FROM Fang fa WHERE fa.Anzahl > 1 AND fa.Anzahl > ", 3075},
        {"SELECT k.KNr FROM Kontakt k WHERE k.GebDatum >  AND k.GebDatum < #1/1/2005#", 3075},
        {"SELECT FNr FROM Fisch WHERE FName = 'O'Brien'", 3075},
        {"SELECT FNr FROM Fisch WHERE FName = 'Hecht", 3075},
        {"SELECT FNr FROM Fisch WHERE FNr = 1 2", 3075},
        {"SELECT FNr FROM Fisch WHERE FNr = 5x", 3075},
        {"SELECT FNr FROM Fisch WHERE FNr > 1,5", 3075},
        {"SELECT FNr FROM Fisch WHERE (FNr = 1", 3075},
        {"SELECT FNr FROM Fisch WHERE FNr = 1)", 3075},
        {"SELECT FNr FROM Fisch WHERE FNr IN (1, 2)", 3075},
        {"SELECT FNr FROM Fisch WHERE NOT FNr = 1", 3075},
        {"SELECT FNr FROM Fisch ORDER BY FNr", 3075},
        {"SELECT DISTINCT FNr FROM Fisch", 3075},
        {"SELECT FNr FROM Fisch WHERE FNr = 1 + 1", 3075},
        {"SELECT FNr FROM Fisch WHERE FNr = = 1", 3075},
        {"SELECT FNr FROM Fisch WHERE FNr = 1; DELETE FROM Fisch", 3075},
        {"SELECT FNr FROM Fisch;;", 3075},
        {"SELECT FNr FROM Fisch UNION SELECT GNr FROM Gewaesser", 3075},
        {"SELECT FNr FROM Fisch -- alle", 3075},
        {"SELECT FNr /* alle */ FROM Fisch", 3075},
        {"SELECT FNr FROM Fisch LIMIT 1", 3075},
        {"SELECT FNr FROM Fisch WHERE FNr = ?1", 3075},
        {"SELECT FNr FROM Fisch WHERE FNr = :x", 3075},
        {"SELECT \"FNr\" FROM Fisch", 3075},
        {"SELECT [FNr FROM Fisch", 3075},
        {"DELETE FROM Fisch", 3075},
        {"UPDATE Fisch SET FName = 'x'", 3075},
        {"DROP TABLE Fisch", 3075},
        {"PRAGMA key = 'x'", 3075},
        {"ATTACH 'x' AS y", 3075},
        {"EXPLAIN SELECT FNr FROM Fisch", 3075},
        {"(SELECT FNr FROM Fisch)", 3075},
        {"'x'SELECT rowid FROM Fisch", 3075},
    });
    EXPECT_EQ(rows(QStringLiteral("SELECT COUNT(FNr) FROM Fisch")), u"4");
}

TEST_F(DialectTest, KeepsHostileTextInsideItsLiteral) {
    const QStringList hostile{u"x'' OR ''1''=''1"_qs,    u"Hecht\" --"_qs,
                              u"a; DROP TABLE Fisch"_qs, u"?1"_qs,
                              u"#1/1/2005#"_qs,          QString(100'000, u'ä')};
    for (const QString& text : hostile)
        EXPECT_EQ(rows(u"SELECT FNr FROM Fisch WHERE FName = '"_qs + text + u'\''), u"");
    const QString zero = u"SELECT FNr FROM Fisch WHERE FName = 'Hecht"_qs + QChar(0) + u'\'';
    EXPECT_EQ(rows(zero), u"");
}

TEST_F(DialectTest, SurvivesNestingAndLengthBeyondReason) {
    const auto nested = [](const QString& open, const QString& inner, const QString& close, int times) {
        return u"SELECT FNr FROM Fisch WHERE "_qs + open.repeated(times) + inner + close.repeated(times);
    };
    constexpr int abyss = 1'000;
    EXPECT_EQ(rows(nested(u"("_qs, u"FNr = 1"_qs, u")"_qs, 30)), u"1");
    EXPECT_EQ(rows(nested(u"FNr = 0 OR "_qs, u"FNr = 1"_qs, u""_qs, 300)), u"1");
    EXPECT_EQ(errorOf([&] { rows(nested(u"("_qs, u"FNr = 1"_qs, u")"_qs, abyss)); }), 3075);
    EXPECT_EQ(errorOf([&] { rows(nested(u"FNr = - "_qs, u"1"_qs, u""_qs, abyss)); }), 3075);
    EXPECT_EQ(errorOf([&] { rows(nested(u"- "_qs, u"1"_qs, u""_qs, abyss)); }), 3075);
    EXPECT_EQ(
        errorOf([&] { rows(nested(u"FNr = (SELECT FNr FROM Fisch WHERE "_qs, u"1"_qs, u")"_qs, abyss)); }),
        3075);
    for (const int links : {1'500, 100'000}) {
        EXPECT_EQ(errorOf([&] { rows(nested(u"FNr = 0 OR "_qs, u"FNr = 1"_qs, u""_qs, links)); }), 3360);
        EXPECT_EQ(errorOf([&] { rows(nested(u"("_qs, u""_qs, u""_qs, 100'000)); }), 3360);
    }
}

TEST_F(DialectTest, BoundsColumnsAndTables) {
    const auto listed = [](const QString& item, int times) { return QStringList(times, item).join(u','); };
    const auto columns = [&](const QString& item, int times) {
        return errorOf([&] { rows(u"SELECT "_qs + listed(item, times) + u" FROM Fisch"_qs); });
    };
    EXPECT_EQ(columns(u"*"_qs, 85), 0);
    EXPECT_EQ(columns(u"FNr"_qs, 255), 0);
    EXPECT_EQ(columns(u"FNr"_qs, 256), 3190);
    EXPECT_EQ(columns(u"*"_qs, 4'900), 3190);
    EXPECT_EQ(errorOf([&] {
                  QStringList tables;
                  for (int i = 0; i < 3'000; ++i) tables += u"Fisch f%1"_qs.arg(i);
                  rows(u"SELECT COUNT(f0.FNr) FROM "_qs + tables.join(u','));
              }),
              3360);
}

TEST_F(DialectTest, NamesWhatHasNoName) {
    const auto names = [this](QStringView select) {
        QStringList found;
        for (const ResultColumn& column : connection->select(select.toString()).plan().columns)
            found += column.name;
        return found.join(u' ');
    };
    EXPECT_EQ(names(u"SELECT MIN(FNr), MAX(FNr) FROM Fisch"), u"Expr1000 Expr1001");
    EXPECT_EQ(names(u"SELECT fnr, -FNr, f.Notiz FROM Fisch f"), u"FNr Expr1000 Notiz");
}

TEST_F(DialectTest, TellsTheReasonInGerman) {
    try {
        rows(u"SELECT FNr FROM Fisch WHERE FNr = 5x"_qs);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.description, u"Syntaxfehler (fehlender Operator) in Abfrageausdruck 'FNr = 5x'.");
    }
}
