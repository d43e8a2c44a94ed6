#include "Basis.h"
#include "Conversions.h"
#include "Datenbank.h"
#include "ErrorTail.h"
#include "Fangbuch.h"
#include "Feldwerte.h"
#include "Kalendernamen.h"
#include "MsgBox.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "modFangbuch.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

// Fills the grid of the catch book.

namespace modFangbuch {

namespace {

/// Appends the entries of the month to the grid, row by row as they are read.
void fuelleListe(ErrorTail& step, Recordset& liste, DataTable* grid, ProgressBar* pb) {
    qint64 count = 0;
    std::array<Value, 6> zeile;
    std::vector<Recordset::Field> felder;
    step([&] { liste.MoveFirst(); });
    step([&] { felder = liste.Fields(); });
    step.forEachRow(liste, [&] {
        modRun::leseZellen(step, felder, zeile);
        step([&] { zeile[3] = modRun::ErmittleMonatsname(CLng(zeile[3])); });
        step([&] { grid->appendRow(zeile); });
        pb->setProgress(++count);
    });
}

} // namespace

void loadTblFList(ProgressBar* pb) {
    withErrorTail(u"modStart"_s, u"loadTblFList"_s, [pb](ErrorTail& step) {
        const QString jahr = QString::number(session().AktJahr);
        const QString monat = QString::number(session().AktMonatNr);
        Recordset liste;
        Recordset anzahl;
        step([&] {
            liste = oeffneAbfrage(u"SELECT fa.FangNr, f.FName, g.GName, fa.FangMonat, fa.Anzahl, "
                                  u"fa.Gewicht FROM Fang fa , Fisch f, Gewaesser g WHERE fa.FangJahr = "_s +
                                  jahr + u"AND fa.FangMonat = "_s + monat +
                                  u" AND fa.FischNr = f.FNr AND fa.GNr = g.GNr"_s);
        });
        step([&] {
            anzahl = oeffneAbfrage(u"SELECT COUNT(fa.FangNr) FROM Fang fa, Fisch f, Gewaesser g WHERE "
                                   u"fa.FangJahr = "_s +
                                   jahr + u" AND fa.FangMonat = "_s + monat +
                                   u" AND fa.FischNr = f.FNr AND fa.GNr = g.GNr"_s);
        });
        pb->show();
        // A guard, because the fifth error leaves the routine by an exception.
        const auto ruhe = qScopeGuard([pb] { pb->hide(); });
        step([&] {
            const Value count = anzahl.Collect(u"Expr1000"_s);
            pb->setMax(count.isNull() ? 1 : CLng(count));
        });
        DataTable* grid = the<Fangbuch>().tblFList;
        step([&] { grid->clearRows(); });
        if (step.test([&] { return liste.RecordCount() != 0; }))
            fuelleListe(step, liste, grid, pb);
        else if (!session().TabelleLaedt)
            MsgBox(u"Keine Einträge für diesen Monat vorhanden !"_s, vbInformation);
        step([&] { liste.Close(); });
        step([&] { anzahl.Close(); });
    });
}

} // namespace modFangbuch
