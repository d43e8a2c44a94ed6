#include "modBesatzList.h"

#include "Besatzung.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "ErrorTail.h"
#include "Format.h"
#include "MsgBox.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "modFangbuch.h"
#include "modRun.h"

#include <array>

namespace modBesatzList {

namespace {

const QString modul = u"modBesatzList"_qs;

QString alsGewicht(const Value& menge) { return Format(menge, u"###0.00"_qs); }

/// The current record as a row of the grid.
std::array<Value, 5> alsZeile(ErrorTail& step, const Recordset& plan) {
    const auto name = [&](const QString& field, QString (*ermittle)(qint32)) {
        const qint32 number = CLng(plan.Collect(field));
        const KeptErrorCount kept;
        return ermittle(number);
    };
    std::array<Value, 5> zeile;
    step([&] { zeile[0] = plan.Collect(u"BNr"_qs); });
    step([&] { zeile[1] = name(u"FNr"_qs, &modFangbuch::ErmittleFischname); });
    step([&] { zeile[2] = name(u"GNr"_qs, &modFangbuch::ErmittleGewaessername); });
    step([&] { zeile[3] = plan.Collect(u"Zeit"_qs); });
    step([&] { zeile[4] = alsGewicht(plan.Collect(u"Menge"_qs)); });
    return zeile;
}

/// The five fields of the form, in the order in which they are written.
void schreibeFelder(ErrorTail& step, Recordset& plan, const Besatzung& form) {
    step([&] { plan.Collect(u"BJahr"_qs, CLng(form.cboBJahr->Text())); });
    step([&] { plan.Collect(u"FNr"_qs, modFangbuch::ErmittleFischNr(form.cboFArt->Text())); });
    step([&] { plan.Collect(u"GNr"_qs, modFangbuch::ErmittleGewaesserNr(form.cboGName->Text())); });
    step([&] { plan.Collect(u"Zeit"_qs, form.txtZeit->Text()); });
    step([&] { plan.Collect(u"Menge"_qs, CDbl(form.txtMenge->Text())); });
}

/// Seeks the record whose number the form shows.
bool findeOffenen(ErrorTail& step, Recordset& plan, const Besatzung& form) {
    return modRun::findeIn(step, plan, u"Besatzung"_qs, form.lblBNr->Caption());
}

/// Takes the opened record's row off the grid. Another year may have come to the screen since it was opened:
/// what stands in its place then is another record's.
void entferneOffenen(ErrorTail& step, const Besatzung& form, int row) {
    const DataTable& grid = *form.tblBList;
    const bool dort = row < grid.rowCount() && grid.cellText(row, 0) == form.lblBNr->Caption();
    if (dort) step([&] { form.tblBList->removeRow(row); });
}

void zeigeAnzahl(const Besatzung& form) {
    form.lblAnzahl->setCaption(QString::number(form.tblBList->rowCount()));
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
            step.forEachRow(plan, [&] { step([&] { grid->appendRow(alsZeile(step, plan)); }); });
        }
        step([&] { plan.Close(); });
    });
}

void SpeicherEintrag() {
    withErrorTail(modul, u"SpeicherEintrag"_qs, [](ErrorTail& step) {
        Besatzung& form = screen<Besatzung>();
        Recordset plan;
        step([&] { plan = oeffneTabelle(u"Besatzung"_qs); });
        step([&] { plan.AddNew(); });
        schreibeFelder(step, plan, form);
        if (modRun::speichereNeuen(step, plan)) step([&] { form.tblBList->appendRow(alsZeile(step, plan)); });
        form.tblBList->refresh();
        BesatzAnzeigeLoeschen();
        zeigeAnzahl(form);
        step([&] { plan.Close(); });
    });
}

void UpdateEintrag(int row) {
    withErrorTail(modul, u"UpdateEintrag"_qs, [row](ErrorTail& step) {
        Besatzung& form = screen<Besatzung>();
        Recordset plan;
        if (!findeOffenen(step, plan, form)) {
            modRun::MeldeNichtVorhanden();
        } else {
            step([&] { plan.Edit(); });
            schreibeFelder(step, plan, form);
            step([&] { plan.Update(); });
            const std::array<Value, 5> zeile = {form.lblBNr->Caption(), form.cboFArt->Text(),
                                                form.cboGName->Text(), form.txtZeit->Text(),
                                                alsGewicht(form.txtMenge->Text())};
            entferneOffenen(step, form, row);
            step([&] { form.tblBList->insertRow(row, zeile); });
            form.tblBList->refresh();
            zeigeAnzahl(form);
        }
        BesatzAnzeigeLoeschen();
        step([&] { plan.Close(); });
    });
}

void LoescheEintrag(int row) {
    withErrorTail(modul, u"LoescheEintrag"_qs, [row](ErrorTail& step) {
        Besatzung& form = screen<Besatzung>();
        Recordset plan;
        if (findeOffenen(step, plan, form)) {
            step([&] { plan.Delete(); });
            entferneOffenen(step, form, row);
            zeigeAnzahl(form);
        } else {
            modRun::MeldeNichtVorhanden();
        }
        BesatzAnzeigeLoeschen();
        step([&] { plan.Close(); });
    });
}

namespace {

void zeigeEintrag(ErrorTail& step, const Recordset& plan, Besatzung& form) {
    const auto text = [&](const QString& field) { return CStr(plan.Collect(field)); };
    step([&] { form.lblBNr->setCaption(text(u"BNr"_qs)); });
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
                                 form.cboBJahr->Text());
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
    form.lblBNr->setCaption(QString());
}

bool BesatzEingabeVollstaendig() {
    const Besatzung& form = screen<Besatzung>();
    const QString fields[] = {form.cboFArt->Text(), form.cboGName->Text(), form.cboBJahr->Text(),
                              form.txtMenge->Text()};
    for (const QString& field : fields) {
        if (!field.isEmpty()) continue;
        modRun::MeldeEingabeFehler();
        return false;
    }
    return true;
}

} // namespace modBesatzList
