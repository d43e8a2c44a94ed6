#include "Datenbank.h"

#include "DataTable.h"
#include "ErrorTail.h"
#include "Session.h"

Recordset oeffneAbfrage(const QString& select) {
    return session().AktDatenbank.OpenRecordset(select, dbOpenDynaset);
}

Recordset oeffneTabelle(const QString& name) {
    return session().AktDatenbank.OpenRecordset(name, dbOpenTable);
}

void fuelleGrid(const QString& routine, DataTable* grid, const QString& select,
                const std::function<std::vector<Value>(const Recordset&)>& zeile) {
    withErrorTail(u"modStart"_qs, routine, [&](ErrorTail& step) {
        Recordset satz;
        step([&] { satz = oeffneAbfrage(select); });
        if (step.test([&] { return satz.RecordCount() != 0; })) {
            step([&] { satz.MoveFirst(); });
            step.forEachRow(satz, [&] { step([&] { grid->appendRow(zeile(satz)); }); });
        }
        step([&] { satz.Close(); });
    });
}
