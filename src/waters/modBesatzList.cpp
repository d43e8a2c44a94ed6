#include "modBesatzList.h"

#include "Besatzung.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Datenbank.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Feldwerte.h"
#include "Format.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "Namen.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "TextBox.h"
#include "ValueLabel.h"

#include <array>

namespace modBesatzList {

namespace {

const QString modul = u"modBesatzList"_qs;

QString alsGewicht(const Value& menge) { return Format(menge, u"###0.00"_qs); }

/// The fields of a record that its row in the grid is made from.
const QStringList& felderDerZeile() {
    static const QStringList felder = {u"BNr"_qs, u"FNr"_qs, u"GNr"_qs, u"Zeit"_qs, u"Menge"_qs};
    return felder;
}

/// Those fields as the row has them: names for numbers.
void fuelleZeile(ErrorTail& step, std::vector<Value>& zeile) {
    const auto name = [](const Value& number, QString (*ermittle)(qint32)) {
        const KeptErrorCount kept;
        return ermittle(CLng(number));
    };
    step([&] { zeile[1] = name(zeile[1], &ErmittleFischname); });
    step([&] { zeile[2] = name(zeile[2], &ErmittleGewaessername); });
    step([&] { zeile[4] = alsGewicht(zeile[4]); });
}

/// The five fields of the form, in the order in which they are written.
void schreibeFelder(ErrorTail& step, Recordset& plan, const Besatzung& form, const ArtUndGewaesser& nummern) {
    step([&] { plan.Collect(u"BJahr"_qs, CLng(form.cboBJahr->currentText())); });
    step([&] { plan.Collect(u"FNr"_qs, nummern.fisch); });
    step([&] { plan.Collect(u"GNr"_qs, nummern.gewaesser); });
    step([&] { plan.Collect(u"Zeit"_qs, form.txtZeit->text()); });
    step([&] { plan.Collect(u"Menge"_qs, CDbl(form.txtMenge->text())); });
}

void zeigeAnzahl(const Besatzung& form) {
    form.lblAnzahl->setText(QString::number(form.tblBList->rowCount()));
}

} // namespace

void loadTblBList() {
    withErrorTail(u"modStart"_qs, u"loadTblBList"_qs, [](ErrorTail& step) {
        Recordset plan;
        step([&] {
            plan = oeffneAbfrage(u"SELECT * FROM Besatzung WHERE BJahr = "_qs +
                                 QString::number(session().AktJahr));
        });
        DataTable* grid = screen<Besatzung>().tblBList;
        step([&] { grid->clearRows(); });
        if (step.test([&] { return plan.RecordCount() == 0; })) {
            if (!session().TabelleLaedt)
                MsgBox(u"Keine Einträge für dieses Jahr vorhanden !"_qs, vbInformation);
        } else {
            step([&] { plan.MoveFirst(); });
            step.forEachRow(plan, [&] {
                std::vector<Value> zeile;
                Datensatz::lies(step, zeile, felderDerZeile())(plan);
                fuelleZeile(step, zeile);
                step([&] { grid->appendRow(zeile); });
            });
        }
        step([&] { plan.Close(); });
    });
}

void SpeicherEintrag() {
    withErrorTail(modul, u"SpeicherEintrag"_qs, [](ErrorTail& step) {
        const Besatzung& form = screen<Besatzung>();
        const auto nummern = ermittleNummern(form.cboFArt, form.cboGName);
        if (!nummern) return;
        std::vector<Value> zeile;
        const auto felder = [&](Recordset& plan) { schreibeFelder(step, plan, form, *nummern); };
        if (Datensatz::speichere(step, u"Besatzung"_qs, felder,
                                 Datensatz::lies(step, zeile, felderDerZeile()))) {
            fuelleZeile(step, zeile);
            step([&] { form.tblBList->appendRow(zeile); });
            form.tblBList->markRow(form.tblBList->rowCount());
        }
        BesatzAnzeigeLoeschen();
        zeigeAnzahl(form);
        form.cboFArt->setFocus();
    });
}

void UpdateEintrag(int row) {
    withErrorTail(modul, u"UpdateEintrag"_qs, [row](ErrorTail& step) {
        const Besatzung& form = screen<Besatzung>();
        const auto nummern = ermittleNummern(form.cboFArt, form.cboGName);
        if (!nummern) return;
        const auto felder = [&](Recordset& plan) { schreibeFelder(step, plan, form, *nummern); };
        if (Datensatz::aendere(step, u"Besatzung"_qs, form.lblBNr->text(), felder)) {
            const std::array<Value, 5> zeile = {form.lblBNr->text(), form.cboFArt->currentText(),
                                                form.cboGName->currentText(), form.txtZeit->text(),
                                                alsGewicht(form.txtMenge->text())};
            // Another year may have come to the screen, where the record has no row yet.
            const int bisher = form.tblBList->rowOf(form.lblBNr->text());
            const int neu = bisher >= 0 ? bisher : row;
            if (bisher >= 0) step([&] { form.tblBList->removeRow(bisher); });
            step([&] { form.tblBList->insertRow(neu, zeile); });
            form.tblBList->markRow(neu);
            zeigeAnzahl(form);
        }
        BesatzAnzeigeLoeschen();
        form.cboFArt->setFocus();
    });
}

void LoescheEintrag(int /*row*/) {
    withErrorTail(modul, u"LoescheEintrag"_qs, [](ErrorTail& step) {
        const Besatzung& form = screen<Besatzung>();
        if (Datensatz::loesche(step, u"Besatzung"_qs, form.lblBNr->text())) {
            const int zeile = form.tblBList->rowOf(form.lblBNr->text());
            if (zeile >= 0) step([&] { form.tblBList->removeRow(zeile); });
            zeigeAnzahl(form);
        }
        BesatzAnzeigeLoeschen();
    });
}

namespace {

void zeigeEintrag(ErrorTail& step, const Recordset& plan, Besatzung& form) {
    const auto text = [&](const QString& field) { return CStr(plan.Collect(field)); };
    step([&] { form.lblBNr->setText(text(u"BNr"_qs)); });
    step([&] { form.cboFArt->setText(text(u"FName"_qs)); });
    step([&] { form.cboGName->setText(text(u"GName"_qs)); });
    step([&] { form.txtZeit->setText(modRun::textOderLeer(plan.Fields(u"Zeit"_qs))); });
    step([&] { form.txtMenge->setText(alsGewicht(plan.Collect(u"Menge"_qs))); });
}

} // namespace

void loadEintrag(DataTable* grid, int row) {
    // The names of the box are the catch book's.
    withErrorTail(u"modFangbuch"_qs, u"loadFang"_qs, [grid, row](ErrorTail& step) {
        Besatzung& form = screen<Besatzung>();
        Recordset plan;
        step([&] {
            plan = oeffneAbfrage(u"SELECT b.BNr, f.FName, g.GName, b.Zeit, b.Menge "_qs
                                 u"FROM Besatzung b, Fisch f, Gewaesser g WHERE b.BNr = "_qs +
                                 grid->cellText(row, 0) +
                                 u" AND b.FNr = f.FNr AND b.GNr = g.GNr AND b.BJahr = "_qs +
                                 form.cboBJahr->currentText());
        });
        if (step.test([&] { return plan.RecordCount() != 0; }))
            zeigeEintrag(step, plan, form);
        else
            modRun::MeldeNichtVorhanden();
        step([&] { plan.Close(); });
    });
}

void BesatzAnzeigeLoeschen() {
    Besatzung& form = screen<Besatzung>();
    form.txtMenge->setText(QString());
    form.txtZeit->setText(QString());
    form.cboFArt->setListIndex(-1);
    form.cboGName->setListIndex(-1);
    form.lblBNr->setText(QString());
}

bool BesatzEingabeVollstaendig() {
    const Besatzung& form = screen<Besatzung>();
    return modRun::fehlerfrei(
        modRun::erstesLeere({form.cboBJahr, form.cboFArt, form.cboGName, form.txtMenge}));
}

} // namespace modBesatzList
