// Showing a member in the work ledger, which must not take longer with many bookings in the file.

#include "Arbeit.h"
#include "DataTable.h"
#include "Measure.h"
#include "Program.h"
#include "ProgramUnderTest.h"
#include "Screens.h"
#include "SuchKont.h"
#include "modArbeit.h"

namespace {

constexpr int found = 5;

/// Puts five members into the search's grid, spread from the first to the last in the file.
void findMembers(ClubSize size) {
    DataTable& grid = *the<SuchKont>().tblSuch;
    for (int i = 1; i <= found; ++i)
        grid.appendRow({size.members() * i / found, u"Mitglieder (aktiv)", u"", u"Nachname", u"Vorname"});
}

void bringIn(int row) {
    modArbeit::UebernehmeKontakt(row);
    the<Arbeit>().tblArbStd->publish();
}

double medianOf(const QString& folder, ClubSize size) {
    constexpr int runs = 201;
    Program program(folder);
    program.start();
    logIn();
    findMembers(size);
    for (int row = 0; row < found; ++row) bringIn(row); // creates the screens and reads the pages
    int row = 0;
    return medianSeconds(runs, [&] { bringIn(row++ % found); });
}

} // namespace

int main(int argc, char* argv[]) {
    NoBoxes boxes;
    BenchDesk desk(argc, argv, boxes);
    const double small = medianOf(desk.club(realClub), realClub);
    const double large = medianOf(desk.club(), desk.size());
    printRow("a member into the ledger", {large, small}, "in the real club", 1.25);
}
