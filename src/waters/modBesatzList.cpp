#include "modBesatzList.h"

#include "Besatzung.h"
#include "Conversions.h"
#include "CsvDatei.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "ExcelAusgabe.h"
#include "Feldwerte.h"
#include "Format.h"
#include "MsgBox.h"
#include "Namen.h"
#include "Screens.h"
#include "Session.h"

#include <array>

using namespace Qt::StringLiterals;

namespace modBesatzList {

namespace {

const QString modul = u"modBesatzList"_s;

QString alsGewicht(const Value& menge) { return Format(menge, u"###0.00"_s); }

/// The fields of a record from which its grid row is made.
QStringList felderDerZeile() { return {u"BNr"_s, u"FNr"_s, u"GNr"_s, u"Zeit"_s, u"Menge"_s}; }

/// Turns the values of felderDerZeile() into those of a grid row: names instead of numbers, and the weight as
/// text.
void fuelleZeile(ErrorTail& step, std::vector<Value>& zeile) {
    const auto name = [](const Value& number, QString (*ermittle)(qint32)) {
        const KeptErrorCount kept;
        return ermittle(CLng(number));
    };
    step([&] { zeile[1] = name(zeile[1], &ErmittleFischname); });
    step([&] { zeile[2] = name(zeile[2], &ErmittleGewaessername); });
    step([&] { zeile[4] = alsGewicht(zeile[4]); });
}

/// Writes the entry fields into the copy buffer. Empty, after a message box, if fish or water is unknown.
Datensatz::Felder felder(ErrorTail& step) {
    const Besatzung& screen = the<Besatzung>();
    const auto nummern = ermittleNummern(screen.cboFArt, screen.cboGName);
    if (!nummern) return {};
    return [&step, &screen, nummern](Recordset& plan) {
        step([&] { plan.Collect(u"BJahr"_s, CLng(screen.cboBJahr->currentText())); });
        step([&] { plan.Collect(u"FNr"_s, nummern->fisch); });
        step([&] { plan.Collect(u"GNr"_s, nummern->gewaesser); });
        step([&] { plan.Collect(u"Zeit"_s, screen.txtZeit->text()); });
        step([&] { plan.Collect(u"Menge"_s, CDbl(screen.txtMenge->text())); });
    };
}

} // namespace

void loadTblBList() {
    withErrorTail(u"modStart"_s, u"loadTblBList"_s, [](ErrorTail& step) {
        Recordset plan;
        step([&] {
            plan = oeffneAbfrage(u"SELECT * FROM Besatzung WHERE BJahr = "_s +
                                 QString::number(session().AktJahr));
        });
        DataTable* grid = the<Besatzung>().tblBList;
        step([&] { grid->clearRows(); });
        if (step.test([&] { return plan.RecordCount() == 0; })) {
            if (!session().TabelleLaedt)
                MsgBox(u"Keine Einträge für dieses Jahr vorhanden !"_s, vbInformation);
        } else {
            step([&] { plan.MoveFirst(); });
            step.forEachRow(plan, [&] {
                auto zeile = Datensatz::lies(step, plan, felderDerZeile());
                fuelleZeile(step, zeile);
                step([&] { grid->appendRow(zeile); });
            });
        }
        step([&] { plan.Close(); });
    });
}

void SpeicherEintrag() {
    withErrorTail(modul, u"SpeicherEintrag"_s, [](ErrorTail& step) {
        Besatzung& screen = the<Besatzung>();
        const Datensatz::Felder eingabe = felder(step);
        if (!eingabe) return;
        if (auto zeile = Datensatz::speichere(step, u"Besatzung"_s, eingabe, felderDerZeile())) {
            fuelleZeile(step, *zeile);
            screen.tblBList->appendRow(*zeile);
            screen.tblBList->markRow(screen.tblBList->rowCount());
        }
        BesatzAnzeigeLoeschen();
        screen.zeigeAnzahl();
        screen.cboFArt->setFocus();
    });
}

void UpdateEintrag(int row) {
    withErrorTail(modul, u"UpdateEintrag"_s, [row](ErrorTail& step) {
        Besatzung& screen = the<Besatzung>();
        const Datensatz::Felder eingabe = felder(step);
        if (!eingabe) return;
        if (Datensatz::aendere(step, u"Besatzung"_s, screen.lblBNr->text(), eingabe)) {
            const std::array<Value, 5> zeile = {screen.lblBNr->text(), screen.cboFArt->currentText(),
                                                screen.cboGName->currentText(), screen.txtZeit->text(),
                                                alsGewicht(screen.txtMenge->text())};
            // The grid may show another year since the record was opened. The record then has no row in it.
            const int bisher = screen.tblBList->rowOf(screen.lblBNr->text());
            const int neu = bisher >= 0 ? bisher : row;
            if (bisher >= 0) step([&] { screen.tblBList->removeRow(bisher); });
            step([&] { screen.tblBList->insertRow(neu, zeile); });
            screen.tblBList->markRow(neu);
            screen.zeigeAnzahl();
        }
        BesatzAnzeigeLoeschen();
        screen.cboFArt->setFocus();
    });
}

void LoescheEintrag(int /*row*/) {
    withErrorTail(modul, u"LoescheEintrag"_s, [](ErrorTail& step) {
        Besatzung& screen = the<Besatzung>();
        if (Datensatz::loesche(step, u"Besatzung"_s, screen.lblBNr->text())) {
            const int zeile = screen.tblBList->rowOf(screen.lblBNr->text());
            if (zeile >= 0) step([&] { screen.tblBList->removeRow(zeile); });
            screen.zeigeAnzahl();
        }
        BesatzAnzeigeLoeschen();
    });
}

void loadEintrag(DataTable* grid, int row) {
    // The message box names a routine of the catch book. Users know its text, so keep it.
    withErrorTail(u"modFangbuch"_s, u"loadFang"_s, [grid, row](ErrorTail& step) {
        Besatzung& screen = the<Besatzung>();
        const auto select = [&] {
            return u"SELECT b.BNr, f.FName, g.GName, b.Zeit, b.Menge "_s
                   u"FROM Besatzung b, Fisch f, Gewaesser g WHERE b.BNr = "_s +
                   grid->cellText(row, 0) + u" AND b.FNr = f.FNr AND b.GNr = g.GNr AND b.BJahr = "_s +
                   screen.cboBJahr->currentText();
        };
        const auto zeige = [&](const Recordset& plan) {
            const auto text = [&](const QString& field) { return CStr(plan.Collect(field)); };
            step([&] { screen.lblBNr->setText(text(u"BNr"_s)); });
            step([&] { screen.cboFArt->setText(text(u"FName"_s)); });
            step([&] { screen.cboGName->setText(text(u"GName"_s)); });
            step([&] { screen.txtZeit->setText(modRun::textOderLeer(plan.Fields(u"Zeit"_s))); });
            step([&] { screen.txtMenge->setText(alsGewicht(plan.Collect(u"Menge"_s))); });
        };
        liesSatz(step, select, zeige, &modRun::MeldeNichtVorhanden);
    });
}

void BesatzAnzeigeLoeschen() {
    Besatzung& screen = the<Besatzung>();
    for (TextBox* box : {screen.txtMenge, screen.txtZeit}) box->setText(QString());
    for (ComboBox* list : {screen.cboFArt, screen.cboGName}) list->setListIndex(-1);
    screen.lblBNr->setText(QString());
}

bool BesatzEingabeVollstaendig() {
    const Besatzung& screen = the<Besatzung>();
    return modRun::fehlerfrei(
        modRun::erstesLeere({screen.cboBJahr, screen.cboFArt, screen.cboGName, screen.txtMenge}));
}

namespace {

void schreibeZeile(CsvDatei& datei, const DataTable& grid, int row) {
    for (int column = 0; column <= 4; ++column) datei.writeText(grid.cellText(row, column));
    datei.endLine();
}

void StarteExcelBPlan() { zeigeInExcel(u"BPLAN.csv"_s, 5); }

} // namespace

void ErzeugeBPlanDatei() {
    schreibeFuerExcel(*the<Besatzung>().tblBList, u"BPLAN.csv"_s, u"des Besatzungsplanes"_s,
                      {u"Besatz.- Nr"_s, u"Fischart"_s, u"Gewässer"_s, u"Zeitpunkt"_s, u"Menge i. KG"_s},
                      &schreibeZeile, &StarteExcelBPlan);
}

} // namespace modBesatzList
