#include "Benutzer.h"
#include "Datenbank.h"
#include "Screens.h"
#include "modBenutzer.h"

using namespace Qt::StringLiterals;

namespace modBenutzer {

void loadTblBenutzer() {
    fuelleGrid(u"loadTblBenutzer"_s, the<Benutzer>().tblBenutzer,
               u"SELECT b.BNr, b.Name, b.Passwort, g.GName FROM Benutzer b, Gruppen g "_s +
                   u"WHERE g.GNr = b.GNr"_s,
               [](const Recordset& benutzer) {
                   return std::vector<Value>{benutzer.Collect(u"BNr"_s), benutzer.Collect(u"Name"_s),
                                             benutzer.Collect(u"Passwort"_s), benutzer.Collect(u"GName"_s)};
               });
}

void loadTblZugriff() {
    fuelleGrid(u"loadTblZugriff"_s, the<Benutzer>().tblZugriff, u"SELECT * FROM Gruppen"_s,
               &modBenutzer::gruppenZeile);
}

} // namespace modBenutzer
