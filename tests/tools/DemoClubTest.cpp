#include "Connection.h"
#include "ProgramFolder.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A program folder with the invented club of 2026, and its file.
class DemoFolder {
public:
    DemoFolder() { makeProgramFolder(m_place.path(), 2026, true); }

    QString answer(const QByteArray& select) const {
        cursors::Connection file(m_place.filePath(u"uw01.mdb"_s), u"qx-1987-nkr"_s,
                                 cursors::Connection::Access::ReadOnly);
        engine::Statement statement = file.prepare(select);
        statement.step();
        return statement.text(0);
    }

private:
    QTemporaryDir m_place;
};

} // namespace

TEST(DemoClub, IsOfTheSizeOfARealClubAndAllInItFitsTogether) {
    struct Row {
        QByteArray what;
        int least = 0;
        int most = 0;
    };
    const Row rows[] = {
        {"Fang WHERE FangJahr = 2026", 700, 1000},
        {"Fang WHERE FangJahr NOT BETWEEN 2024 AND 2026 OR Gewicht <= 0 OR Anzahl <= 0"},
        {"Mitglied WHERE NOT Bezahlt", 20, 80},
        {"Kontakt WHERE KategoNr = 1", 190, 230},
        {"Besatzung WHERE BJahr = 2026", 10, 30},
        {"Arbeit WHERE Jahr = 2026 AND Datum = 46023", 80, 250},
        // References to missing records.
        {"Fang WHERE FischNr NOT IN (SELECT FNr FROM Fisch) OR GNr NOT IN (SELECT GNr FROM Gewaesser)"},
        {"Besatzung WHERE FNr NOT IN (SELECT FNr FROM Fisch) OR GNr NOT IN (SELECT GNr FROM Gewaesser)"},
        {"Kontakt WHERE KategoNr NOT IN (SELECT KategoNr FROM Katego)"},
        {"Kontakt WHERE (KategoNr < 3) <> (KNr IN (SELECT KNr FROM Mitglied))"},
        {"Mitglied WHERE KNr NOT IN (SELECT KNr FROM Kontakt)"},
        {"Arbeit WHERE KNr NOT IN (SELECT KNr FROM Mitglied)"},
        {"Benutzer WHERE GNr NOT IN (SELECT GNr FROM Gruppen)"},
        // Each balance is carried into the next year.
        {"Arbeit a WHERE Datum = 46023 AND abs(ArbStd + 12 - (SELECT coalesce(sum(ArbStd), 0) FROM Arbeit "
         "WHERE KNr = a.KNr AND Jahr = 2025)) > 0.001"},
        {"Arbeit WHERE Datum = 46023 AND Notiz <> CASE WHEN ArbStd > 0 THEN 'Mehr' ELSE 'Minder' END || "
         "'leistungsübertrag aus Arbeitsjahr 2025'"},
        // Names with an apostrophe, which break a lookup.
        {"Kontakt WHERE instr(coalesce(Nachname, '') || coalesce(Vorname, '') || coalesce(Firma, ''), '''')"},
    };
    const DemoFolder club;
    for (const Row& row : rows) {
        const int found = club.answer("SELECT COUNT(*) FROM " + row.what).toInt();
        EXPECT_TRUE(row.least <= found && found <= row.most) << row.what.constData() << ": " << found;
    }
}
