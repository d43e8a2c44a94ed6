#include "Basis.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Datenbank.h"
#include "ErrorTail.h"
#include "Fangbuch.h"
#include "MsgBox.h"
#include "ProgressBar.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "SqlText.h"
#include "modFangbuch.h"
#include "modRun.h"

#include <QScopeGuard>

// The lists of the catch book: its grid, the combo boxes, and the way from a name to its number and back.

namespace modFangbuch {

namespace {

/// The entries of the month, streamed from the file into the grid.
void fuelleListe(ErrorTail& step, Recordset& liste, DataTable* grid, ProgressBar* pb) {
    qint64 count = 0;
    std::array<Value, 6> zeile;
    std::vector<Field> felder;
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
    withErrorTail(u"modStart"_qs, u"loadTblFList"_qs, [pb](ErrorTail& step) {
        const QString jahr = QString::number(session().AktJahr);
        const QString monat = QString::number(session().AktMonatNr);
        Recordset liste;
        Recordset anzahl;
        step([&] {
            liste = oeffneAbfrage(u"SELECT fa.FangNr, f.FName, g.GName, fa.FangMonat, fa.Anzahl, "
                                  u"fa.Gewicht FROM Fang fa , Fisch f, Gewaesser g WHERE fa.FangJahr = "_qs +
                                  jahr + u"AND fa.FangMonat = "_qs + monat +
                                  u" AND fa.FischNr = f.FNr AND fa.GNr = g.GNr"_qs);
        });
        step([&] {
            anzahl = oeffneAbfrage(u"SELECT COUNT(fa.FangNr) FROM Fang fa, Fisch f, Gewaesser g WHERE "
                                   u"fa.FangJahr = "_qs +
                                   jahr + u" AND fa.FangMonat = "_qs + monat +
                                   u" AND fa.FischNr = f.FNr AND fa.GNr = g.GNr"_qs);
        });
        pb->show();
        // Also where a fifth error ends it.
        const auto ruhe = qScopeGuard([pb] { pb->hide(); });
        step([&] {
            const Value count = anzahl.Collect(u"Expr1000"_qs);
            pb->setMax(count.isNull() ? 1 : CLng(count));
        });
        DataTable* grid = screen<Fangbuch>().tblFList;
        step([&] { grid->clearRows(); });
        if (step.test([&] { return liste.RecordCount() != 0; }))
            fuelleListe(step, liste, grid, pb);
        else if (!session().TabelleLaedt)
            MsgBox(u"Keine Einträge für diesen Monat vorhanden !"_qs, vbInformation);
        step([&] { liste.Close(); });
        step([&] { anzahl.Close(); });
    });
}

namespace {

/// Lowest or highest year in the catch book; AktJahr where there is none.
qint32 grenzjahr(ErrorTail& step, const QString& select) {
    qint32 jahr = session().AktJahr;
    Recordset fang;
    step([&] { fang = oeffneAbfrage(select); });
    step([&] {
        const Value value = fang.RecordCount() == 0 ? Value() : fang.Collect(u"Expr1000"_qs);
        if (!value.isNull() && CLng(value) != 0) jahr = CLng(value);
    });
    step([&] { fang.Close(); });
    return jahr;
}

void fuelleAusGrid(ComboBox* combo, const DataTable* grid) {
    combo->Clear();
    for (int row = 0; row < grid->rowCount(); ++row) combo->AddItem(grid->cellText(row, 1));
}

/// One field of the first row of a query; 0 or the empty text if there is no row.
template<typename Result>
Result schlageNach(const QString& routine, const QString& field, Result (*convert)(const Value&),
                   const std::function<QString()>& select) {
    Result result{};
    withErrorTail(u"modFangbuch"_qs, routine, [&](ErrorTail& step) {
        Recordset satz;
        step([&] { satz = oeffneAbfrage(select()); });
        if (step.test([&] { return satz.RecordCount() == 1; }))
            step([&] { result = convert(satz.Collect(field)); });
        step([&] { satz.Close(); });
    });
    return result;
}

} // namespace

void loadcboFJahr(ComboBox* combo) {
    withErrorTail(u"modFAuswert"_qs, u"loadcboFJahr"_qs, [combo](ErrorTail& step) {
        const qint32 lowest = grenzjahr(step, u"SELECT MIN(FangJahr) FROM Fang"_qs);
        const qint32 highest = grenzjahr(step, u"SELECT MAX(FangJahr) FROM Fang"_qs);
        modRun::haengeJahreAn(combo, lowest, highest, session().AktJahr);
    });
}

void loadcboFArt(ComboBox* combo) { fuelleAusGrid(combo, screen<Basis>().tblFBasis); }
void loadcboGName(ComboBox* combo) { fuelleAusGrid(combo, screen<Basis>().tblGBasis); }

qint32 ErmittleFischNr(const QString& name) {
    return schlageNach(u"ErmittleFischNr"_qs, u"FNr"_qs, &CLng,
                       [&] { return u"SELECT FNr FROM Fisch WHERE FName = "_qs + quoted(name); });
}

QString ErmittleFischname(qint32 number) {
    return schlageNach(u"ErmittleFischname"_qs, u"FName"_qs, &CStr,
                       [&] { return u"SELECT FName FROM Fisch WHERE FNr = "_qs + QString::number(number); });
}

qint32 ErmittleGewaesserNr(const QString& name) {
    return schlageNach(u"ErmittleGewaesserNr"_qs, u"GNr"_qs, &CLng,
                       [&] { return u"SELECT GNr FROM Gewaesser WHERE GName = "_qs + quoted(name); });
}

QString ErmittleGewaessername(qint32 number) {
    return schlageNach(u"ErmittleGewaessername"_qs, u"GName"_qs, &CStr, [&] {
        return u"SELECT GName FROM Gewaesser WHERE GNr = "_qs + QString::number(number);
    });
}

std::optional<Nummern> ermittleNummern(const ComboBox* art, const ComboBox* gewaesser) {
    const auto fisch = modRun::ermittleNummer(&ErmittleFischNr, art->Text());
    if (!fisch) return std::nullopt;
    const auto dort = modRun::ermittleNummer(&ErmittleGewaesserNr, gewaesser->Text());
    if (!dort) return std::nullopt;
    return Nummern{*fisch, *dort};
}

} // namespace modFangbuch
