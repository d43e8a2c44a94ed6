// The change of the year with hours carried over.

#include "Datenbank.h"
#include "Measure.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"
#include "Session.h"
#include "modStart.h"

#include <QFile>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int runs = 5;

/// Answers questions with Yes and messages with OK.
class Yes final : public MessageBoxes {
public:
    MsgBoxResult show(const QString&, int style, const QString&) override {
        return (style & vbYesNo) != 0 ? vbYes : vbOK;
    }
};

double sumOf(sqlite3_stmt* sum, sqlite3_int64 member) {
    sqlite3_bind_int64(sum, 1, member);
    sqlite3_step(sum);
    const double hours = sqlite3_column_double(sum, 0);
    sqlite3_reset(sum);
    return hours;
}

void carryOver(sqlite3_stmt* insert, sqlite3_int64 member, double hours) {
    const double balance = qRound64((hours - 20) * 100) / 100.0;
    sqlite3_bind_int64(insert, 1, member);
    sqlite3_bind_double(insert, 2, balance);
    sqlite3_bind_text(insert, 3,
                      balance > 0 ? "Mehrleistungsübertrag aus Arbeitsjahr 2025"
                                  : "Minderleistungsübertrag aus Arbeitsjahr 2025",
                      -1, SQLITE_STATIC);
    sqlite3_step(insert);
    sqlite3_reset(insert);
}

/// The same sums and rows in SQLite's C API, in one transaction.
void rawChange(RawFile& file) {
    file.execute("BEGIN; UPDATE System SET FJahr = 2026");
    sqlite3_stmt* list =
        file.prepare("SELECT k.KNr FROM Kontakt k, Mitglied m WHERE k.KNr = m.KNr AND m.Befreit = 0");
    sqlite3_stmt* sum = file.prepare("SELECT SUM(ArbStd) FROM Arbeit WHERE KNr = ?1 AND Jahr = 2025");
    sqlite3_stmt* insert =
        file.prepare("INSERT INTO Arbeit(KNr, Jahr, Datum, ArbStd, Notiz) VALUES (?1, 2026, 46023, ?2, ?3)");
    while (sqlite3_step(list) == SQLITE_ROW) {
        const sqlite3_int64 member = sqlite3_column_int64(list, 0);
        carryOver(insert, member, sumOf(sum, member));
    }
    for (sqlite3_stmt* statement : {list, sum, insert}) sqlite3_finalize(statement);
    file.execute("UPDATE Mitglied SET Bezahlt = 0");
    file.execute("COMMIT");
}

/// The median time of a change. Each run gets a fresh copy of the old year and derives the key before the
/// time starts.
template<typename Change>
double measure(const QString& folder, Change change) {
    const QString path = folder + u"/uw01.mdb"_s;
    std::vector<double> seconds;
    for (int run = 0; run < runs; ++run) {
        QFile::remove(path);
        QFile::copy(folder + u"/alt.mdb"_s, path);
        seconds.push_back(change());
    }
    return median(seconds);
}

double rawSeconds(const QString& path) {
    RawFile file(path);
    file.execute("SELECT FJahr FROM System");
    return secondsOf([&] { rawChange(file); });
}

double ownSeconds(const QString& folder) {
    beginSession(folder);
    OeffneDatenbank();
    modStart::SetzeDatumsVariablen();
    const double seconds = secondsOf([] { modStart::KontrolliereSystemJahr(); });
    SchliesseDatenbank();
    return seconds;
}

/// The content that both sides must produce.
QByteArray result(const QString& path) {
    RawFile file(path);
    sqlite3_stmt* sums = file.prepare("SELECT FJahr, COUNT(*), SUM(ArbStd), SUM(length(Notiz)) "
                                      "FROM System, Arbeit WHERE Jahr = 2026 AND Datum = 46023 AND "
                                      "NOT EXISTS (SELECT 1 FROM Mitglied WHERE Bezahlt)");
    sqlite3_step(sums);
    QByteArray text;
    for (int column = 0; column < 4; ++column)
        text += QByteArray(reinterpret_cast<const char*>(sqlite3_column_text(sums, column))) + ' ';
    sqlite3_finalize(sums);
    return text;
}

} // namespace

int main(int argc, char* argv[]) {
    Yes boxes;
    BenchDesk desk(argc, argv, boxes);
    const QString folder = desk.club();
    const QString path = folder + u"/uw01.mdb"_s;
    RawFile(path).execute("UPDATE System SET FJahr = 2025");
    QFile::copy(path, folder + u"/alt.mdb"_s);

    const double baseline = measure(folder, [&] { return rawSeconds(path); });
    const QByteArray expected = result(path);
    const double own = measure(folder, [&] { return ownSeconds(folder); });
    printRow("year change with carry-over", {own, baseline}, "same sums and rows, one commit", 3.0);
    if (result(path) == expected) return 0;
    std::printf("The sums differ: %s and %s\n", result(path).constData(), expected.constData());
    return 1;
}
