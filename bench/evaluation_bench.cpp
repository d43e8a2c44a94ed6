// The evaluation: an unfiltered query, its file for the spreadsheet, and the report of its rows.

#include "Berichte.h"
#include "DataTable.h"
#include "Fangauswertung.h"
#include "Measure.h"
#include "PrintRun.h"
#include "Program.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"
#include "ReportDocument.h"
#include "Screens.h"
#include "Session.h"
#include "Vorschau.h"
#include "modFAuswert.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <string>

using namespace Qt::StringLiterals;

namespace {

struct RawRow {
    qint64 numbers[5];
    std::string fish, water;
};

QByteArray joined(const char* what) {
    return QByteArray("SELECT ") + what +
           " FROM Fang fa, Fisch f, Gewaesser g WHERE fa.FischNr = f.FNr AND fa.GNr = g.GNr";
}

qint64 single(RawFile& file, const char* what) {
    sqlite3_stmt* statement = file.prepare(joined(what));
    sqlite3_step(statement);
    const qint64 value = sqlite3_column_int64(statement, 0);
    sqlite3_finalize(statement);
    return value;
}

/// The same four statements in SQLite's C API, with the list's cells copied.
qint64 rawEvaluation(RawFile& file, std::vector<RawRow>& rows) {
    qint64 sums = single(file, "COUNT(fa.FangNr)");
    sums += single(file, "SUM(fa.Anzahl)");
    sums += single(file, "SUM(fa.Gewicht)");
    rows.clear();
    sqlite3_stmt* list =
        file.prepare(joined("fa.FangNr, f.FName, g.GName, fa.FangJahr, fa.FangMonat, fa.Anzahl, fa.Gewicht"));
    while (sqlite3_step(list) == SQLITE_ROW) {
        RawRow& row = rows.emplace_back();
        int slot = 0;
        for (const int column : {0, 3, 4, 5, 6}) row.numbers[slot++] = sqlite3_column_int64(list, column);
        row.fish = reinterpret_cast<const char*>(sqlite3_column_text(list, 1));
        row.water = reinterpret_cast<const char*>(sqlite3_column_text(list, 2));
    }
    sqlite3_finalize(list);
    return sums;
}

void benchEvaluation(const QString& folder) {
    RawFile file(folder + u"/uw01.mdb"_s);
    std::vector<RawRow> rows;
    Fangauswertung& screen = the<Fangauswertung>();
    const auto fill = [&] {
        modFAuswert::LadeAuswahl();
        screen.tblFAusw->publish();
    };
    printRow("evaluation of all catches", byTurns(3, fill, [&] { rawEvaluation(file, rows); }),
             "four statements, cells copied", 2.0);
    printGrid(*screen.tblFAusw, mostBytesARow);
}

void writeBuffered(const QString& path, const QByteArray& bytes) {
    std::FILE* out = std::fopen(path.toUtf8().constData(), "wb");
    for (qsizetype at = 0; at < bytes.size(); at += 60)
        std::fwrite(bytes.constData() + at, 1,
                    static_cast<std::size_t>(std::min<qsizetype>(60, bytes.size() - at)), out);
    std::fclose(out);
}

void benchExport(const QString& folder) {
    constexpr int runs = 7;
    modFAuswert::ErzeugeFangDatei();
    QFile written(folder + u"/SeqData/FANG.csv"_s);
    if (!written.open(QIODevice::ReadOnly)) return;
    const QByteArray bytes = written.readAll();
    const Pair seconds = byTurns(
        runs, [] { modFAuswert::ErzeugeFangDatei(); },
        [&] { writeBuffered(folder + u"/baseline.csv"_s, bytes); });
    printRow("FANG.csv, catches of a month", seconds, "the same bytes, buffered", 3.0);
}

/// Opens the file for this, as the program does.
void rawStaging(const QString& folder, int rows) {
    RawFile file(folder + u"/uw01.mdb"_s);
    file.execute("BEGIN; DELETE FROM Druck_Fangliste");
    sqlite3_stmt* insert = file.prepare("INSERT INTO Druck_Fangliste VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7)");
    for (int i = 0; i < rows; ++i) {
        sqlite3_bind_int(insert, 1, i);
        sqlite3_bind_text(insert, 2, "Fischart 12", -1, SQLITE_STATIC);
        sqlite3_bind_text(insert, 3, "Gewässer 7", -1, SQLITE_STATIC);
        sqlite3_bind_text(insert, 4, "September", -1, SQLITE_STATIC);
        sqlite3_bind_int(insert, 5, benchYear);
        sqlite3_bind_int(insert, 6, i % 5);
        sqlite3_bind_int(insert, 7, i % 4000);
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    file.execute("COMMIT");
}

void clearStaging(const QString& folder) {
    RawFile(folder + u"/uw01.mdb"_s).execute("DELETE FROM Druck_Fangliste");
}

/// Stages all rows without a report: "nichts" neither prints nor previews.
void benchStaging(const QString& folder, int rows) {
    constexpr int runs = 3;
    std::vector<double> baselines, stagings;
    for (int run = 0; run < runs; ++run) {
        clearStaging(folder);
        baselines.push_back(secondsOf([&] { rawStaging(folder, rows); }));
        clearStaging(folder);
        stagings.push_back(secondsOf([] { modFAuswert::DruckeFangListe(u"nichts"_s); }));
    }
    printRow("staging and binding them", {median(stagings), median(baselines)},
             "file opened, one transaction", 3.0);
}

/// Sample catches for a report. Their first rows are the same for any number of rows.
ReportRows sampleRows(int count) {
    ReportRows rows(
        {u"FangNr"_s, u"Name"_s, u"Gewässer"_s, u"Monat"_s, u"FangJahr"_s, u"Anzahl"_s, u"Gewicht"_s});
    for (int row = 1; row <= count; ++row)
        rows.append({row, u"Fischart 12"_s, u"Gewässer 7"_s, u"September"_s, benchYear, row % 5, row % 4000});
    return rows;
}

void showPreview() {
    the<Vorschau>().zeige(Berichte::rpt_Fangliste()->document());
    QApplication::processEvents();
}

void closePreview() {
    unload<Vorschau>();
    QApplication::processEvents();
}

/// The time from the call to the painted page. Binding is not measured, but many rows empty the processor's
/// caches; an unmeasured preview fills them again.
double firstPage(int rows) {
    const auto report = Berichte::rpt_Fangliste();
    report->bind(sampleRows(rows));
    showPreview();
    closePreview();
    const double seconds = secondsOf(&showPreview);
    closePreview();
    return seconds;
}

void benchPreview(int rows) {
    constexpr int runs = 51;
    constexpr int few = 100;
    std::vector<double> small, large;
    for (int run = 0; run < runs; ++run) {
        small.push_back(firstPage(few));
        large.push_back(firstPage(rows));
    }
    printRow("preview's first page of them", {median(large), median(small)}, "with 100 rows", 1.0);
}

void benchPdf(const QString& folder) {
    const QString pdf = folder + u"/liste.pdf"_s;
    const auto report = Berichte::rpt_Fangliste(); // keeps the rows of the run
    modFAuswert::DruckeFangListe(u"nichts"_s);
    const double own = secondsOf([&] { printReport(*report->document(), {pdf}); });
    const QString office = QStandardPaths::findExecutable(u"soffice"_s);
    if (office.isEmpty())
        return (void)std::printf("PDF of them: %.3f ms; no soffice here to hold it against\n", own * 1e3);
    const QStringList words = {u"--headless"_s,
                               u"--infilter=Text - txt - csv (StarCalc):59,34,1,1,,1031,true,true"_s,
                               u"--convert-to"_s,
                               u"pdf"_s,
                               u"--outdir"_s,
                               folder,
                               folder + u"/SeqData/FANG.csv"_s};
    const QString written = folder + u"/FANG.pdf"_s;
    const double theirs = secondsOf([&] {
        QProcess process;
        process.start(office, words);
        process.waitForFinished(-1);
    });
    // An office that finds another one running hands over to it and ends at once, with success but without a
    // file.
    if (QFileInfo(written).size() == 0) {
        std::fprintf(stderr, "LibreOffice has not written %s\n", qUtf8Printable(written));
        std::exit(1);
    }
    printRow("PDF of them", {own, theirs}, "LibreOffice, the same rows as CSV", 0.2);
}

/// Fills the grid with the catches of the clock's month.
void chooseMonth() {
    Fangauswertung& screen = the<Fangauswertung>();
    screen.chkArchiv->setChecked(true);
    screen.chkFMonat->setChecked(true);
    modFAuswert::LadeAuswahl();
}

} // namespace

int main(int argc, char* argv[]) {
    Nodding boxes;
    BenchDesk desk(argc, argv, boxes);
    Program program(desk.club());
    program.start();
    logIn();
    benchEvaluation(desk.club());
    chooseMonth();
    benchExport(desk.club());
    const int rows = desk.size().catchesOfThisMonth();
    benchStaging(desk.club(), rows);
    benchPreview(rows);
    benchPdf(desk.club());
}
