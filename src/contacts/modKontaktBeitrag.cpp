#include "ErrorTail.h"
#include "Recordset.h"
#include "Session.h"
#include "modKontakt.h"

// The annual fee at the change of the year.

namespace modKontakt {

void ReinitialisiereJB() {
    withErrorTail(u"modKontakt"_qs, u"ReinitialisiereJB"_qs, [](ErrorTail& step) {
        Recordset mitglied;
        step([&] {
            mitglied = session().AktDatenbank.OpenRecordset(u"SELECT * FROM Mitglied"_qs, dbOpenDynaset);
        });
        if (step.test([&] { return mitglied.RecordCount() != 0; })) {
            step([&] { mitglied.MoveFirst(); });
            while (step.test([&] { return !mitglied.Eof(); })) {
                step([&] { mitglied.Edit(); });
                step([&] { mitglied.Collect(u"Bezahlt"_qs, false); });
                step([&] { mitglied.Update(); });
                step([&] { mitglied.MoveNext(); });
            }
        }
        step([&] { mitglied.Close(); });
    });
}

} // namespace modKontakt
