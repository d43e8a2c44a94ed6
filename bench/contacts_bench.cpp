// The contacts of a very large club: the data file of the serial letter with fifty thousand members.

#include "DataTable.h"
#include "KontaktUebers.h"
#include "Measure.h"
#include "Program.h"
#include "ProgramFolder.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"
#include "Screens.h"
#include "modSerienbrief.h"

#include <QTemporaryDir>
#include <array>
#include <charconv>

namespace {

constexpr int members = 50'000;

/// Acknowledges what is told, and starts no word processor.
class Nodding final : public MessageBoxes {
public:
    MsgBoxResult show(const QString& text, int style, const QString& title) override {
        if ((style & vbYesNo) != 0) return vbNo;
        return style == vbInformation ? vbOK : NoBoxes().show(text, style, title);
    }
};

/// Active members; each tenth without a birthday.
void addMembers(RawFile& file) {
    sqlite3_stmt* contact = file.prepare(
        "INSERT INTO Kontakt(KNr, KategoNr, Anrede, Nachname, Vorname, Strasse, PLZ, Ort, Tel1, "
        "Tel2, Mobil, Fax, EMail, Firma, GebDatum, Notiz) VALUES (?1, 1, 'Herr', 'Müller-' || ?1, "
        "'Jörg', 'Straße der Fischer ' || ?1, printf('%05d', ?1), 'Mühlhausen', '0351/' || ?1, '', "
        "'0170/' || ?1, '', 'mitglied' || ?1 || '@example.org', '', ?2, '')");
    sqlite3_stmt* member = file.prepare("INSERT INTO Mitglied(KNr, Eintritt, Austritt) VALUES (?1, ?2, 0)");
    file.execute("BEGIN");
    for (int i = 1; i <= members; ++i) {
        sqlite3_bind_int(contact, 1, i);
        sqlite3_bind_int(contact, 2, i % 10 == 0 ? 0 : 15'000 + i % 20'000);
        sqlite3_step(contact);
        sqlite3_reset(contact);
        sqlite3_bind_int(member, 1, i);
        sqlite3_bind_int(member, 2, 35'000 + i % 10'000);
        sqlite3_step(member);
        sqlite3_reset(member);
    }
    file.execute("COMMIT");
    sqlite3_finalize(contact);
    sqlite3_finalize(member);
}

/// As the library gives them; of a date only the number of its days.
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
    constexpr int runs = 5;
    RawFile file(folder + u"/uw01.mdb"_qs);
    const double floor = medianSeconds(runs, [&] { writeRaw(file, folder + u"/floor.txt"_qs); });
    DataTable& overview = *screen<KontaktUebers>().tblKUebers;
    overview.clearRows();
    overview.appendRow({1, u"-"_qs, u"Mitglieder (aktiv)"_qs});
    const double write = medianSeconds(runs, [] { modSerienbrief::ErzeugeSeriendatei(); });
    printRow("SERI.txt, 50,000 members", write, "bare query, buffered file", floor, 3.0);
}

} // namespace

int main(int argc, char* argv[]) {
    Nodding boxes;
    const BenchDesk desk(argc, argv, boxes);
    QTemporaryDir temporary;
    makeProgramFolder(temporary.path(), benchYear, false);
    {
        RawFile file(temporary.filePath(u"uw01.mdb"_qs));
        addMembers(file);
    }
    Program program(temporary.path());
    program.start();
    logIn();
    benchSerialLetter(temporary.path());
}
