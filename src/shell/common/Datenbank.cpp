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

void liesSatz(ErrorTail& step, const std::function<QString()>& select,
              const std::function<void(Recordset&)>& gefunden, const std::function<void()>& leer) {
    Recordset satz;
    step([&] { satz = oeffneAbfrage(select()); });
    if (step.test([&] { return satz.RecordCount() != 0; }))
        gefunden(satz);
    else if (leer)
        leer();
    step([&] { satz.Close(); });
}

void schlageNach(const QString& module, const QString& routine, const std::function<QString()>& select,
                 const std::function<void(const Recordset&)>& nimm, const std::function<void()>& leer) {
    withErrorTail(module, routine, [&](ErrorTail& step) {
        liesSatz(
            step, select, [&](const Recordset& satz) { step([&] { nimm(satz); }); }, leer);
    });
}

bool leseWert(ErrorTail& step, const QString& select, const std::function<void(const Value&)>& nimm) {
    Recordset satz;
    step([&] { satz = oeffneAbfrage(select); });
    const bool gelesen = step([&] {
        const Value wert = satz.Collect(u"Expr1000"_s);
        if (!wert.isNull()) nimm(wert);
    });
    step([&] { satz.Close(); });
    return gelesen;
}

void fuelleGrid(const QString& routine, DataTable* grid, const QString& select, const QStringList& felder,
                void (*forme)(std::vector<Value>& zeile)) {
    withErrorTail(u"modStart"_s, routine, [&](ErrorTail& step) {
        const auto fuelle = [&](const Recordset& satz) {
            std::vector<Value> zeile;
            for (const QString& feld : felder) zeile.push_back(satz.Collect(feld));
            forme(zeile);
            grid->appendRow(zeile);
        };
        liesSatz(
            step, [&] { return select; },
            [&](Recordset& satz) {
                step([&] { satz.MoveFirst(); });
                step.forEachRow(satz, [&] { step([&] { fuelle(satz); }); });
            });
    });
}
