#include "ClubFile.h"

#include "ProgramFolder.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"

using namespace Qt::StringLiterals;

namespace {

/// Runs an INSERT that selects from n, a table of the numbers from 1 to `count`. %1, %2 ... are `numbers`.
template<typename... Numbers>
void addRows(RawFile& file, int count, const char* insert, Numbers... numbers) {
    if (count == 0) return;
    const QString counting =
        u"WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n WHERE i < %1) "_s.arg(count);
    QString filled = QString::fromUtf8(insert);
    ((filled = filled.arg(numbers)), ...);
    file.execute((counting + filled).toUtf8().constData());
}

void addNames(RawFile& file) {
    addRows(file, clubKinds, "INSERT INTO Fisch(FName, Notiz) SELECT 'Fischart ' || i, '' FROM n");
    addRows(file, clubWaters, "INSERT INTO Gewaesser(GName, Notiz) SELECT 'Gewässer ' || i, '' FROM n");
    addRows(file, clubCategories - 2,
            "INSERT INTO Katego(KategoNr, Kategorie) SELECT 2 + i, 'Kategorie ' || i FROM n");
}

/// Adds the members first, then the others with categories by turns.
void addContacts(RawFile& file, ClubSize size) {
    addRows(file, size.contacts(),
            "INSERT INTO Kontakt(KategoNr, Anrede, Nachname, Vorname, Strasse, PLZ, Ort, Tel1, Tel2, Mobil, "
            "Fax, EMail, Firma, GebDatum, Notiz) SELECT CASE WHEN i <= %1 THEN 1 WHEN i <= %2 THEN 2 "
            "ELSE 3 + i % %3 END, 'Herr', 'Müller-' || i, 'Jörg', 'Straße der Fischer ' || i, "
            "printf('%05d', i), 'Mühlhausen', '0351/' || i, '', '0170/' || i, '', "
            "'m' || i || '@example.org', 'Firma ' || i, "
            "CASE WHEN i % 10 THEN 15000 + i % 20000 ELSE 0 END, '' FROM n",
            size.activeMembers(), size.members(), clubCategories - 2);
    addRows(file, size.members(),
            "INSERT INTO Mitglied(KNr, Befreit, Bezahlt, Eintritt, Austritt) "
            "SELECT i, 0, 1, 35000 + i % 10000, 0 FROM n");
}

void addCatches(RawFile& file, ClubSize size) {
    constexpr const char* insert =
        "INSERT INTO Fang(FangJahr, FangMonat, FischNr, GNr, Notiz, Anzahl, Gewicht) "
        "SELECT %1, %2, 1 + i % %3, 1 + i % %4, '', 1 + i % 5, 100 + i % 4000 FROM n";
    const auto add = [&](int count, const QString& year, const QString& month) {
        addRows(file, count, insert, year, month, clubKinds, clubWaters);
    };
    add(size.catchesOfThisMonth(), QString::number(benchYear), QString::number(benchMonth));
    add(size.catches() - size.catchesOfThisMonth(), u"%1 - i % %2"_s.arg(benchYear - 1).arg(clubYears),
        u"1 + i / %1 % 12"_s.arg(clubYears));
}

/// Adds bookings year by year with all members mixed, as they come in, so that one member's bookings are far
/// apart.
void addBookings(RawFile& file, ClubSize size) {
    addRows(file, size.bookings(),
            "INSERT INTO Arbeit(KNr, Jahr, Datum, ArbStd, Notiz) SELECT 1 + i % %1, "
            "%2 + (i - 1) * %3 / %4, 38000 + i * 365.0 * %3 / %4, 0.5 * (i % 19), 'Steg gestrichen' FROM n",
            size.members(), benchYear - clubYears + 1, clubYears, size.bookings());
}

} // namespace

void makeClub(const QString& folder, ClubSize size) {
    makeProgramFolder(folder, benchYear, false);
    RawFile file(folder + u"/uw01.mdb"_s);
    file.execute("BEGIN; UPDATE System SET PflichtStd = 20");
    addNames(file);
    addContacts(file, size);
    addCatches(file, size);
    addBookings(file, size);
    file.execute("COMMIT");
}
