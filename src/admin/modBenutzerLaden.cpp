#include "Benutzer.h"
#include "Datenbank.h"
#include "Screens.h"
#include "modBenutzer.h"

namespace modBenutzer {

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

} // namespace modBenutzer
