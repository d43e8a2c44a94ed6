#include "Datenbank.h"
#include "ErrorTail.h"
#include "Recordset.h"
#include "modKontakt.h"

using namespace Qt::StringLiterals;

// The annual fee at the change of the year.

namespace modKontakt {

void ReinitialisiereJB() {
    withErrorTail(u"modKontakt"_s, u"ReinitialisiereJB"_s, [](ErrorTail& step) {
        Recordset mitglied;
        step([&] { mitglied = oeffneAbfrage(u"SELECT * FROM Mitglied"_s); });
        if (step.test([&] { return mitglied.RecordCount() != 0; })) {
            step([&] { mitglied.MoveFirst(); });
            step.forEachRow(mitglied, [&] {
                step([&] { mitglied.Edit(); });
                step([&] { mitglied.Collect(u"Bezahlt"_s, false); });
                step([&] { mitglied.Update(); });
            });
        }
        step([&] { mitglied.Close(); });
    });
}

} // namespace modKontakt
