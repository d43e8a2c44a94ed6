#include "OpenFolder.h"
#include "ProgramFolder.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

namespace {

constexpr int year = 2026;

/// Made once for all cases; they only read.
class DemoClub : public testing::Test {
protected:
    static void SetUpTestSuite() {
        s_place = std::make_unique<QTemporaryDir>();
        makeProgramFolder(s_place->path(), year, true);
        s_database = openFolder(s_place->path());
    }
    static void TearDownTestSuite() {
        s_database.Close();
        s_place.reset();
    }

    static int count(const QString& what) {
        return only(s_database, QStringLiteral("SELECT COUNT(*) FROM ") + what).number();
    }
    static double hours(qint32 member, int workYear) {
        const Value sum =
            only(s_database, QStringLiteral("SELECT SUM(ArbStd) FROM Arbeit WHERE KNr = %1 AND Jahr = %2")
                                 .arg(member)
                                 .arg(workYear));
        return sum.isNull() ? 0 : sum.real();
    }

    static std::unique_ptr<QTemporaryDir> s_place;
    static Database s_database;
};

std::unique_ptr<QTemporaryDir> DemoClub::s_place;
Database DemoClub::s_database;

} // namespace

TEST_F(DemoClub, IsOfTheSizeOfARealClub) {
    struct Row {
        const char16_t* what;
        int least;
        int most;
    };
    const Row rows[] = {
        {u"Fang WHERE FangJahr = 2026", 700, 1000},
        {u"Fang WHERE FangJahr < 2024 OR FangJahr > 2026", 0, 0},
        {u"Fang WHERE Gewicht <= 0 OR Anzahl <= 0", 0, 0},
        {u"Mitglied WHERE Bezahlt = False", 20, 80},
        {u"Kontakt WHERE KategoNr = 1", 190, 230},
        {u"Besatzung WHERE BJahr = 2026", 10, 30},
        {u"Arbeit WHERE Jahr = 2026 AND Datum = #1/1/2026#", 80, 250},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(QString::fromUtf16(row.what).toStdString());
        const int found = count(QString::fromUtf16(row.what));
        EXPECT_GE(found, row.least);
        EXPECT_LE(found, row.most);
    }
}

TEST_F(DemoClub, HasNoReferenceIntoTheVoid) {
    const char16_t* const joins[][2] = {
        {u"Fang", u"Fang f, Fisch k, Gewaesser g WHERE f.FischNr = k.FNr AND f.GNr = g.GNr"},
        {u"Besatzung", u"Besatzung b, Fisch f, Gewaesser g WHERE b.FNr = f.FNr AND b.GNr = g.GNr"},
        {u"Kontakt", u"Kontakt k, Katego c WHERE k.KategoNr = c.KategoNr"},
        {u"Kontakt WHERE KategoNr = 1 OR KategoNr = 2", u"Kontakt k, Mitglied m WHERE k.KNr = m.KNr"},
        {u"Mitglied", u"Mitglied m, Kontakt k WHERE m.KNr = k.KNr AND k.KategoNr < 3"},
        {u"Arbeit", u"Arbeit a, Mitglied m WHERE a.KNr = m.KNr"},
        {u"Benutzer", u"Benutzer b, Gruppen g WHERE b.GNr = g.GNr"},
    };
    for (const auto& [all, joined] : joins) {
        SCOPED_TRACE(QString::fromUtf16(joined).toStdString());
        EXPECT_EQ(count(QString::fromUtf16(all)), count(QString::fromUtf16(joined)));
    }
}

TEST_F(DemoClub, CarriesEachBalanceIntoTheNextYear) {
    Recordset carried = s_database.OpenRecordset(
        QStringLiteral("SELECT KNr, ArbStd, Notiz FROM Arbeit WHERE Datum = #1/1/2026#"), dbOpenDynaset);
    for (; !carried.Eof(); carried.MoveNext()) {
        const double balance = carried.Collect(QStringLiteral("ArbStd")).real();
        const qint32 member = carried.Collect(QStringLiteral("KNr")).number();
        ASSERT_DOUBLE_EQ(balance, hours(member, 2025) - 12) << member;
        const QString kind = balance > 0 ? QStringLiteral("Mehr") : QStringLiteral("Minder");
        ASSERT_EQ(carried.Collect(QStringLiteral("Notiz")).text(),
                  kind + QStringLiteral("leistungsübertrag aus Arbeitsjahr 2025"));
    }
}

TEST_F(DemoClub, IsTheSameEachTimeAndHoldsNoNameThatALookupWouldStumbleOver) {
    QTemporaryDir other;
    makeProgramFolder(other.path(), year, true);
    Database again = openFolder(other.path());
    const QString all = QStringLiteral("SELECT * FROM Kontakt ORDER BY KNr");
    Recordset one = s_database.OpenRecordset(all, dbOpenDynaset);
    Recordset two = again.OpenRecordset(all, dbOpenDynaset);
    for (; !one.Eof(); one.MoveNext(), two.MoveNext()) {
        for (const char16_t* field : {u"Nachname", u"Vorname", u"Firma", u"Mobil", u"GebDatum", u"KontoNr"}) {
            const Value value = one.Collect(QString::fromUtf16(field));
            ASSERT_EQ(value, two.Collect(QString::fromUtf16(field)));
            ASSERT_FALSE(value.kind() == Value::Kind::Text && value.text().contains(u'\''));
        }
    }
    EXPECT_TRUE(two.Eof());
}
