#include "modFangbuch.h"

#include "Conversions.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "Fangbuch.h"
#include "Feldwerte.h"
#include "Kalendernamen.h"
#include "MsgBox.h"
#include "Namen.h"
#include "Screens.h"
#include "Session.h"
#include "Zugriff.h"
#include "modBasis.h"

#include <QScopeGuard>
#include <array>

using namespace Qt::StringLiterals;

namespace modFangbuch {

namespace {

const QString modul = u"modFangbuch"_s;

/// Sets the seven input fields in the copy buffer, in the order in which they are written. Empty, after a
/// message box, if fish or water is unknown.
Datensatz::Felder felder(ErrorTail& step) {
    const Fangbuch& screen = the<Fangbuch>();
    const auto nummern = ermittleNummern(screen.cboFArt, screen.cboGName);
    if (!nummern) return {};
    return [&step, &screen, nummern](Recordset& fang) {
        step([&] { fang.Collect(u"FangJahr"_s, CLng(screen.cboFJahr->currentText())); });
        step([&] { fang.Collect(u"FangMonat"_s, CLng(screen.txtMonNr->text())); });
        step([&] { fang.Collect(u"FischNr"_s, nummern->fisch); });
        step([&] { fang.Collect(u"GNr"_s, nummern->gewaesser); });
        step([&] { fang.Collect(u"Notiz"_s, screen.txtNotiz->Text()); });
        step([&] { fang.Collect(u"Anzahl"_s, CLng(screen.txtAnzahl->text())); });
        step([&] { fang.Collect(u"Gewicht"_s, CLng(screen.txtGewicht->text())); });
    };
}

bool imGewaehltenMonat(const Fangbuch& screen) {
    return CLng(screen.txtMonNr->text()) == modRun::ErmittleMonatsNr(screen.cboSelMonat->currentText());
}

/// Appends the new record to the grid if its month is the one shown.
void zeigeNeuen(ErrorTail& step, std::vector<Value> zeile, const Fangbuch& screen) {
    const auto monat = [monat = zeile[3]] { return modRun::ErmittleMonatsname(CLng(monat)); };
    if (!step.test([&] { return screen.cboSelMonat->currentText() == monat(); })) return;
    step([&] { zeile[1] = ErmittleFischname(CLng(zeile[1])); });
    step([&] { zeile[2] = ErmittleGewaessername(CLng(zeile[2])); });
    step([&] { zeile[3] = monat(); });
    if (!step.test([&] { return imGewaehltenMonat(screen); })) return;
    step([&] { screen.tblFList->appendRow(zeile); });
    screen.tblFList->markRow(screen.tblFList->rowCount());
}

QString zweistellig(qint32 monat) { return (monat < 10 ? u"0"_s : QString()) + QString::number(monat); }

} // namespace

void SpeicherFang() {
    withErrorTail(modul, u"SpeicherFang"_s, [](ErrorTail& step) {
        Fangbuch& screen = the<Fangbuch>();
        const Datensatz::Felder eingabe = felder(step);
        if (!eingabe) return;
        if (const auto zeile = Datensatz::speichere(
                step, u"Fang"_s, eingabe,
                {u"FangNr"_s, u"FischNr"_s, u"GNr"_s, u"FangMonat"_s, u"Anzahl"_s, u"Gewicht"_s}))
            zeigeNeuen(step, *zeile, screen);
        FangAnzeigeLoeschen();
        screen.cboFArt->setFocus();
        screen.zeigeAnzahl();
        step([&] { screen.lblGesAnz->setText(Ermittle_DSAnzahl()); });
    });
}

void UpdateFang(int row) {
    withErrorTail(modul, u"UpdateFang"_s, [row](ErrorTail& step) {
        Fangbuch& screen = the<Fangbuch>();
        const Datensatz::Felder eingabe = felder(step);
        if (!eingabe) return;
        if (Datensatz::aendere(step, u"Fang"_s, screen.lblFNr->text(), eingabe)) {
            const std::vector<Value> zeile = {screen.lblFNr->text(),          screen.cboFArt->currentText(),
                                              screen.cboGName->currentText(), screen.txtFangMonat->text(),
                                              screen.txtAnzahl->text(),       screen.txtGewicht->text()};
            step([&] { screen.tblFList->removeRow(row); });
            if (step.test([&] { return imGewaehltenMonat(screen); })) {
                step([&] { screen.tblFList->insertRow(row, zeile); });
                screen.tblFList->markRow(row);
            }
        }
        FangAnzeigeLoeschen();
    });
}

void LoescheFang(int row) {
    withErrorTail(modul, u"LoescheFang"_s, [row](ErrorTail& step) {
        Fangbuch& screen = the<Fangbuch>();
        if (Datensatz::loesche(step, u"Fang"_s, screen.lblFNr->text())) {
            step([&] { screen.tblFList->removeRow(row); });
            screen.zeigeAnzahl();
        }
        FangAnzeigeLoeschen();
        screen.cboFArt->setFocus();
    });
}

void loadFang(DataTable* grid, int row) {
    withErrorTail(modul, u"loadFang"_s, [grid, row](ErrorTail& step) {
        Fangbuch& screen = the<Fangbuch>();
        // Form_Activate fills no lists in EDIT, so a catch opened from the evaluation needs them filled here.
        step([&] { modBasis::loadcboFArt(screen.cboFArt); });
        step([&] { modBasis::loadcboGName(screen.cboGName); });
        const auto select = [&] {
            return u"SELECT fa.FangNr, f.FName, g.GName, fa.FangMonat, fa.Anzahl, "
                   u"fa.Gewicht, fa.Notiz FROM Fang fa , Fisch f, Gewaesser g WHERE fa.FangNr = "_s +
                   grid->cellText(row, 0) + u" AND fa.FischNr = f.FNr AND fa.GNr = g.GNr"_s;
        };
        const auto zeige = [&](const Recordset& fang) {
            const auto text = [&](const QString& field) { return CStr(fang.Collect(field)); };
            const auto monat = [&] { return CLng(fang.Collect(u"FangMonat"_s)); };
            step([&] { screen.lblFNr->setText(text(u"FangNr"_s)); });
            step([&] { screen.cboFArt->setText(text(u"FName"_s)); });
            step([&] { screen.cboGName->setText(text(u"GName"_s)); });
            step([&] { screen.txtAnzahl->setText(text(u"Anzahl"_s)); });
            step([&] { screen.txtGewicht->setText(text(u"Gewicht"_s)); });
            step([&] { screen.txtNotiz->setText(text(u"Notiz"_s)); });
            step([&] { screen.txtMonNr->setText(zweistellig(monat())); });
            step([&] { screen.txtFangMonat->setText(modRun::ErmittleMonatsname(monat())); });
            if (!session().KontextZeileOK) screen.cboFArt->setFocus();
        };
        liesSatz(step, select, zeige, &modRun::MeldeNichtVorhanden);
    });
}

void FangAnzeigeLoeschen() {
    Fangbuch& screen = the<Fangbuch>();
    for (TextBox* box : {screen.txtFangMonat, screen.txtMonNr, screen.txtAnzahl, screen.txtGewicht})
        box->setText(QString());
    for (ComboBox* list : {screen.cboFArt, screen.cboGName}) list->setListIndex(-1);
    screen.lblFNr->setText(QString());
    screen.txtNotiz->setText(QString());
}

bool FangEingabeVollstaendig() {
    const Fangbuch& screen = the<Fangbuch>();
    return modRun::fehlerfrei(modRun::erstesLeere(
        {screen.cboFArt, screen.cboGName, screen.txtAnzahl, screen.txtGewicht, screen.txtMonNr}));
}

bool FangbuchZugriff_Erlaubt() { return zugriffErlaubt(modul, u"FangbuchZugriff_Erlaubt"_s, u"Fangbuch"_s); }

QString Ermittle_DSAnzahl() {
    QString anzahl = u"0"_s;
    withErrorTail(modul, u"Ermittle_DSAnzahl"_s, [&](ErrorTail& step) {
        leseWert(step,
                 u"SELECT COUNT(fa.FangNr) FROM Fang fa WHERE fa.FangJahr = "_s +
                     the<Fangbuch>().cboFJahr->currentText(),
                 [&](const Value& zahl) { anzahl = CStr(zahl); });
    });
    return anzahl;
}

void fuelleListe(ErrorTail& step, Recordset& liste, DataTable* grid, ProgressBar* pb, std::size_t monat) {
    qint64 count = 0;
    std::array<Value, 7> zeile;
    std::vector<Recordset::Field> felder;
    step([&] { liste.MoveFirst(); });
    step([&] { felder = liste.Fields(); });
    step.forEachRow(liste, [&] {
        modRun::leseZellen(step, felder, zeile);
        std::swap(zeile[3], zeile[monat]);
        step([&] { zeile[3] = modRun::ErmittleMonatsname(CLng(zeile[3])); });
        step([&] { grid->appendRow(zeile); });
        pb->setProgress(++count);
    });
}

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
            fuelleListe(step, liste, grid, pb, 3);
        else if (!session().TabelleLaedt)
            MsgBox(u"Keine Einträge für diesen Monat vorhanden !"_s, vbInformation);
        step([&] { liste.Close(); });
        step([&] { anzahl.Close(); });
    });
}

} // namespace modFangbuch
