#include "Benutzer.h"
#include "DataTable.h"
#include "ErrorTail.h"
#include "Screens.h"
#include "Session.h"
#include "modBenutzer.h"
#include "modStart.h"

#include <functional>

namespace modStart {

namespace {

/// A grid row from each record that the statement finds.
void fuelleGrid(const QString& routine, DataTable* grid, const QString& select,
                const std::function<std::vector<Value>(const Recordset&)>& zeile) {
    withErrorTail(u"modStart"_qs, routine, [&](ErrorTail& step) {
        Recordset satz;
        step([&] { satz = session().AktDatenbank.OpenRecordset(select, dbOpenDynaset); });
        if (step.test([&] { return satz.RecordCount() != 0; })) {
            step([&] { satz.MoveFirst(); });
            while (step.test([&] { return !satz.Eof(); })) {
                step([&] { grid->appendRow(zeile(satz)); });
                step([&] { satz.MoveNext(); });
            }
        }
        step([&] { satz.Close(); });
    });
}

} // namespace

void loadTblBenutzer() {
    fuelleGrid(u"loadTblBenutzer"_qs, screen<Benutzer>().tblBenutzer,
               u"SELECT b.BNr, b.Name, b.Passwort, g.GName FROM Benutzer b, Gruppen g "_qs +
                   u"WHERE g.GNr = b.GNr"_qs,
               [](const Recordset& benutzer) {
                   return std::vector<Value>{benutzer.Collect(u"BNr"_qs), benutzer.Collect(u"Name"_qs),
                                             benutzer.Collect(u"Passwort"_qs), benutzer.Collect(u"GName"_qs)};
               });
}

void loadTblZugriff() {
    fuelleGrid(u"loadTblZugriff"_qs, screen<Benutzer>().tblZugriff, u"SELECT * FROM Gruppen"_qs,
               &modBenutzer::gruppenZeile);
}

} // namespace modStart
