// The data file of the serial letter.

#include "DataTable.h"
#include "KontaktUebers.h"
#include "Measure.h"
#include "Program.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"
#include "Screens.h"
#include "modSerienbrief.h"

#include <array>
#include <charconv>

using namespace Qt::StringLiterals;

namespace {

/// Writes the field as SQLite gives it, a date as its number of days.
void writeField(std::FILE* out, sqlite3_stmt* rows, int field) {
    if (sqlite3_column_type(rows, field) == SQLITE_TEXT) {
        std::fputs(reinterpret_cast<const char*>(sqlite3_column_text(rows, field)), out);
    } else {
        std::array<char, 12> digits;
        const int number = sqlite3_column_int(rows, field);
        const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
        std::fwrite(digits.data(), 1, static_cast<std::size_t>(end - digits.data()), out);
    }
    std::fputc(';', out);
}

void writeRaw(RawFile& file, const QString& path) {
    sqlite3_stmt* rows = file.prepare(
        "SELECT k.KNr, k.Firma, k.Anrede, k.Nachname, k.Vorname, k.Strasse, k.PLZ, k.Ort, k.Tel1, k.Tel2, "
        "k.Fax, k.Mobil, k.GebDatum, m.Eintritt, k.EMail FROM Kontakt k, Mitglied m "
        "WHERE k.KNr = m.KNr AND k.KategoNr = 1");
    const int fields = sqlite3_column_count(rows);
    std::FILE* out = std::fopen(path.toUtf8().constData(), "wb");
    while (sqlite3_step(rows) == SQLITE_ROW) {
        for (int field = 0; field < fields; ++field) writeField(out, rows, field);
        std::fputs("\r\n", out);
    }
    std::fclose(out);
    sqlite3_finalize(rows);
}

void benchSerialLetter(const QString& folder) {
    RawFile file(folder + u"/uw01.mdb"_s);
    DataTable& overview = *the<KontaktUebers>().tblKUebers;
    overview.clearRows();
    overview.appendRow({1, u"-"_s, u"Mitglieder (aktiv)"_s});
    printRow("SERI.txt, active members",
             byTurns(
                 5, [] { modSerienbrief::ErzeugeSeriendatei(); },
                 [&] { writeRaw(file, folder + u"/baseline.txt"_s); }),
             "bare query, buffered file", 3.0);
}

} // namespace

int main(int argc, char* argv[]) {
    Nodding boxes;
    BenchDesk desk(argc, argv, boxes);
    Program program(desk.club());
    program.start();
    logIn();
    benchSerialLetter(desk.club());
}
