// The evaluation: an unfiltered query of a million catches, its file for the spreadsheet, and the way of a
// hundred thousand rows onto paper.

#include "Ado.h"
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
#include "StagedRows.h"
#include "Vorschau.h"
#include "modFAuswert.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <string>

namespace {

/// Acknowledges what the export tells, and starts no spreadsheet.
class Nodding final : public MessageBoxes {
public:
    MsgBoxResult show(const QString&, int style, const QString&) override {
        return (style & vbYesNo) != 0 ? vbNo : vbOK;
    }
};

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

/// The same four statements on the C API, the cells of the list copied.
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
    constexpr int runs = 3;
    RawFile file(folder + u"/uw01.mdb"_qs);
    std::vector<RawRow> rows;
    const double floor = medianSeconds(runs, [&] { rawEvaluation(file, rows); });
    Fangauswertung& form = screen<Fangauswertung>();
    const double fill = medianSeconds(runs, [&] {
        modFAuswert::LadeAuswahl();
        form.tblFAusw->publish();
    });
    printRow("LadeAuswahl, 1,000,000 catches", fill, "four statements, cells copied", floor, 2.0);
    std::printf("%-44s %10.0f bytes a row (at most 250), %d rows\n", "its grid",
                double(form.tblFAusw->memoryInUse()) / form.tblFAusw->rowCount(), form.tblFAusw->rowCount());
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
    const double write = medianSeconds(runs, [] { modFAuswert::ErzeugeFangDatei(); });
    QFile written(folder + u"/SeqData/FANG.csv"_qs);
    if (!written.open(QIODevice::ReadOnly)) return;
    const QByteArray bytes = written.readAll();
    const double floor = medianSeconds(runs, [&] { writeBuffered(folder + u"/floor.csv"_qs, bytes); });
    printRow("FANG.csv, 100,000 rows", write, "the same bytes, buffered, by line", floor, 3.0);
}

void rawStaging(RawFile& file, int rows) {
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

void clearStaging(RawFile& file) { file.execute("DELETE FROM Druck_Fangliste"); }

/// Every staged row of the list, without what comes after it: a word that neither prints nor shows.
void benchStaging(const QString& folder, int rows) {
    constexpr int runs = 3;
    RawFile file(folder + u"/uw01.mdb"_qs);
    std::vector<double> floors;
    std::vector<double> stagings;
    for (int run = 0; run < runs; ++run) {
        clearStaging(file);
        floors.push_back(medianSeconds(1, [&] { rawStaging(file, rows); }));
        clearStaging(file);
        stagings.push_back(medianSeconds(1, [] { modFAuswert::DruckeFangListe(u"nichts"_qs); }));
    }
    std::nth_element(floors.begin(), floors.begin() + 1, floors.end());
    std::nth_element(stagings.begin(), stagings.begin() + 1, stagings.end());
    printRow("staging and binding 100,000 rows", stagings[1], "inserted in one transaction", floors[1], 3.0);
}

/// So many catches for a report, alike in their first rows.
class SampleRows final : public ReportRowSource {
public:
    explicit SampleRows(int rows)
        : m_rows(rows) {}
    QStringList fields() const override {
        return {u"FangNr"_qs,   u"Name"_qs,   u"Gewässer"_qs, u"Monat"_qs,
                u"FangJahr"_qs, u"Anzahl"_qs, u"Gewicht"_qs};
    }
    bool next(std::vector<Value>& row) override {
        if (m_next == m_rows) return false;
        row = {++m_next,  u"Fischart 12"_qs, u"Gewässer 7"_qs, u"September"_qs,
               benchYear, m_next % 5,        m_next % 4000};
        return true;
    }

private:
    int m_rows;
    int m_next = 0;
};

void showPreview() {
    Berichte::rpt_Fangliste().Show();
    QApplication::processEvents();
}

void closePreview() {
    unload<Vorschau>();
    QApplication::processEvents();
}

/// From the call to the painted page. Binding, which empties the processor's caches the more the more rows
/// there are, is not part of it: a preview before the one that counts fills them again.
double firstPage(int rows) {
    SampleRows sample(rows);
    Berichte::rpt_Fangliste().bind(sample);
    showPreview();
    closePreview();
    const double seconds = medianSeconds(1, &showPreview);
    closePreview();
    return seconds;
}

/// By turns, so that both meet the machine in the same moods.
void benchPreview() {
    constexpr std::size_t runs = 51;
    std::vector<double> small, large;
    for (std::size_t run = 0; run < runs; ++run) {
        small.push_back(firstPage(100));
        large.push_back(firstPage(100'000));
    }
    for (auto* seconds : {&small, &large})
        std::nth_element(seconds->begin(), seconds->begin() + runs / 2, seconds->end());
    printRow("preview's first page, 100,000 rows", large[runs / 2], "with 100 rows", small[runs / 2], 1.0);
}

void benchPdf(const QString& folder) {
    const QString pdf = folder + u"/liste.pdf"_qs;
    const double own = medianSeconds(1, [&] { saveReportAsPdf(*Berichte::rpt_Fangliste().document(), pdf); });
    const QString office = QStandardPaths::findExecutable(u"soffice"_qs);
    if (office.isEmpty()) {
        std::printf("%-44s %10.3f ms   no soffice here to hold it against\n", "PDF of 10,000 rows",
                    own * 1e3);
        return;
    }
    modFAuswert::ErzeugeFangDatei();
    const QStringList words = {u"--headless"_qs,
                               u"--infilter=Text - txt - csv (StarCalc):59,34,1,1,,1031,true,true"_qs,
                               u"--convert-to"_qs,
                               u"pdf"_qs,
                               u"--outdir"_qs,
                               folder,
                               folder + u"/SeqData/FANG.csv"_qs};
    const double theirs = medianSeconds(1, [&] { QProcess::execute(office, words); });
    printRow("PDF of 10,000 rows", own, "LibreOffice, the same rows as CSV", theirs, 0.2);
}

/// The program over so many catches, with all of them in the evaluation's grid.
template<typename Work>
void withEvaluation(const QString& folder, int catches, Work work) {
    makeFolderWithCatches(folder, catches, 30);
    Program program(folder);
    program.start();
    logIn();
    modFAuswert::LadeAuswahl();
    work();
}

} // namespace

int main(int argc, char* argv[]) {
    Nodding boxes;
    const BenchDesk desk(argc, argv, boxes);
    QTemporaryDir temporary;

    const QString million = temporary.filePath(u"million"_qs);
    withEvaluation(million, 1'000'000, [&] { benchEvaluation(million); });

    const QString large = temporary.filePath(u"gross"_qs);
    withEvaluation(large, 100'000, [&] {
        benchExport(large);
        benchStaging(large, 100'000);
        benchPreview();
    });
    const QString medium = temporary.filePath(u"mittel"_qs);
    withEvaluation(medium, 10'000, [&] {
        modFAuswert::DruckeFangListe(u"nichts"_qs);
        benchPdf(medium);
    });
}
