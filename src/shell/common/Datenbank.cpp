#include "Datenbank.h"

#include "DataTable.h"
#include "ErrorTail.h"
#include "Session.h"

using namespace Qt::StringLiterals;

QString datenbankDatei() { return programFolder() + u"/uw01.mdb"_s; }
QString sicherungsOrdner() { return programFolder() + u"/Sicherung"_s; }
QString datenbankPasswort() { return u"qx-1987-nkr"_s; }
QString datenbankVerbindung() { return u";pwd="_s + datenbankPasswort(); }

void OeffneDatenbank() {
    session().AktWorkspace = DBEngine::Workspaces(0);
    session().AktDatenbank =
        session().AktWorkspace.OpenDatabase(datenbankDatei(), false, false, datenbankVerbindung());
}

void SchliesseDatenbank() {
    // After a failed start the repair calls this without an open database.
    if (session().AktDatenbank.isOpen()) session().AktDatenbank.Close();
}

Recordset oeffneAbfrage(const QString& select) {
    return session().AktDatenbank.OpenRecordset(select, dbOpenDynaset);
}

Recordset oeffneTabelle(const QString& name) {
    return session().AktDatenbank.OpenRecordset(name, dbOpenTable);
}

void leseWert(ErrorTail& step, const QString& select, const std::function<void(const Value&)>& nimm) {
    Recordset satz;
    step([&] { satz = oeffneAbfrage(select); });
    step([&] {
        if (satz.RecordCount() == 1) nimm(satz.Collect(u"Expr1000"_s));
    });
    step([&] { satz.Close(); });
}

void fuelleGrid(const QString& routine, DataTable* grid, const QString& select,
                const std::function<std::vector<Value>(const Recordset&)>& zeile) {
    withErrorTail(u"modStart"_s, routine, [&](ErrorTail& step) {
        Recordset satz;
        step([&] { satz = oeffneAbfrage(select); });
        if (step.test([&] { return satz.RecordCount() != 0; })) {
            step([&] { satz.MoveFirst(); });
            step.forEachRow(satz, [&] { step([&] { grid->appendRow(zeile(satz)); }); });
        }
        step([&] { satz.Close(); });
    });
}
