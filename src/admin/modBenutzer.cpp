#include "modBenutzer.h"

#include "Benutzer.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Datenbank.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Feldwerte.h"
#include "Gitter.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "Rechte.h"
#include "Screens.h"
#include "SqlText.h"
#include "TextBox.h"
#include "ValueLabel.h"

#include <QCheckBox>
#include <QTabWidget>

namespace modBenutzer {

namespace {

const QString modul = u"modBenutzer"_qs;

/// Where the rights begin in the grid of groups; before them stand number and name.
constexpr int ersteRechteSpalte = 2;
/// Where the grid of users shows the group's name.
constexpr int gruppenSpalte = 3;

void zeigeAnzahl(ValueLabel* label, const DataTable* grid) {
    label->setText(QString::number(grid->rowCount()));
}

Datensatz::Felder felderDesBenutzers(ErrorTail& step, const Benutzer& form, qint32 gnr) {
    return [&step, &form, gnr](Recordset& benutzer) {
        step([&] { benutzer.Collect(u"Name"_qs, form.txtBenutzer->text()); });
        step([&] { benutzer.Collect(u"Passwort"_qs, form.txtPassw->text()); });
        step([&] { benutzer.Collect(u"GNr"_qs, gnr); });
    };
}

Datensatz::Felder felderDerGruppe(ErrorTail& step, const Benutzer& form) {
    return [&](Recordset& gruppe) {
        step([&] { gruppe.Collect(u"GName"_qs, form.txtGruppe->text()); });
        step([&] { SichereZugriff(gruppe); });
    };
}

/// The fields of a group that its row in the grid is made from.
Datensatz::Danach liesGruppe(ErrorTail& step, std::vector<Value>& zeile) {
    QStringList felder = {u"GNr"_qs, u"GName"_qs};
    for (const Recht& recht : rechte()) felder.append(recht.feld);
    return Datensatz::lies(step, zeile, felder);
}

void leereBenutzer(const Benutzer& form) {
    form.lblBNr->setText(QString());
    for (TextBox* box : {form.txtBenutzer, form.txtPassw, form.txtPasswBest}) box->setText(QString());
    form.cboBG->setText(QString());
    form.cboBG->setListIndex(-1);
}

void leereGruppe(const Benutzer& form) {
    form.lblGNr->setText(QString());
    form.txtGruppe->setText(QString());
    for (QCheckBox* box : form.Zugriffe) box->setChecked(false);
}

} // namespace

std::vector<Value> gruppenZeile(const Recordset& gruppe) {
    std::vector<Value> zeile = {gruppe.Collect(u"GNr"_qs), gruppe.Collect(u"GName"_qs)};
    for (const Recht& recht : rechte()) zeile.push_back(gruppe.Collect(recht.feld));
    return zeile;
}

void SpeicherBenutzer() {
    withErrorTail(modul, u"SpeicherBenutzer"_qs, [](ErrorTail& step) {
        const Benutzer& form = screen<Benutzer>();
        const qint32 gnr = ErmittleGNr(form.cboBG->currentText());
        if (gnr == 0) return LeereBenutzerEingabe();
        std::vector<Value> zeile;
        QString gruppe;
        if (Datensatz::speichere(
                step, u"Benutzer"_qs, felderDesBenutzers(step, form, gnr),
                Datensatz::lies(step, zeile, {u"BNr"_qs, u"Name"_qs, u"Passwort"_qs, u"GNr"_qs})))
            step([&] { gruppe = ErmittleGName(CLng(zeile[gruppenSpalte])); });
        if (gruppe.isEmpty()) return LeereBenutzerEingabe();
        zeile[gruppenSpalte] = gruppe;
        step([&] { form.tblBenutzer->appendRow(zeile); });
        form.tblBenutzer->markRow(form.tblBenutzer->rowCount());
        LeereBenutzerEingabe();
        zeigeAnzahl(form.lblBAnzahl, form.tblBenutzer);
    });
}

void UpdateBenutzer(int row) {
    withErrorTail(modul, u"UpdateBenutzer"_qs, [row](ErrorTail& step) {
        const Benutzer& form = screen<Benutzer>();
        bool fehlt = false;
        const bool steht = Datensatz::schreibe(step, u"Benutzer"_qs, [&](Recordset& benutzer) {
            fehlt = !Datensatz::finde(step, benutzer, form.lblBNr->text());
            if (fehlt) modRun::MeldeNichtVorhanden();
            const qint32 gnr = fehlt ? 0 : ErmittleGNr(form.cboBG->currentText());
            if (gnr == 0) return false;
            step([&] { benutzer.Edit(); });
            felderDesBenutzers(step, form, gnr)(benutzer);
            return step([&] { benutzer.Update(); });
        });
        // A user who is gone is shown as typed. Without a number no user stands open but a group, and its row
        // is another user's here.
        if ((steht || fehlt) && !form.lblBNr->text().isEmpty()) {
            const int zeile = form.tblBenutzer->rowOf(form.lblBNr->text(), row);
            step([&] { form.tblBenutzer->setCell(zeile, 1, form.txtBenutzer->text()); });
            step([&] { form.tblBenutzer->setCell(zeile, 2, form.txtPassw->text()); });
            step([&] { form.tblBenutzer->setCell(zeile, gruppenSpalte, form.cboBG->currentText()); });
            form.tblBenutzer->markRow(zeile);
        }
        LeereBenutzerEingabe();
    });
}

void LoescheBenutzer(int row) {
    withErrorTail(modul, u"LoescheBenutzer"_qs, [row](ErrorTail& step) {
        const Benutzer& form = screen<Benutzer>();
        if (Datensatz::loesche(step, u"Benutzer"_qs, form.lblBNr->text())) {
            step([&] { form.tblBenutzer->removeRow(form.tblBenutzer->rowOf(form.lblBNr->text(), row)); });
            zeigeAnzahl(form.lblBAnzahl, form.tblBenutzer);
        }
        LeereBenutzerEingabe();
    });
}

void SpeicherBG() {
    withErrorTail(modul, u"SpeicherBG"_qs, [](ErrorTail& step) {
        const Benutzer& form = screen<Benutzer>();
        std::vector<Value> zeile;
        if (Datensatz::speichere(step, u"Gruppen"_qs, felderDerGruppe(step, form), liesGruppe(step, zeile))) {
            step([&] { form.tblZugriff->appendRow(zeile); });
            form.tblZugriff->markRow(form.tblZugriff->rowCount());
        }
        LeereBenutzerEingabe();
        zeigeAnzahl(form.lblGAnzahl, form.tblZugriff);
        LadeGruppenCombo(form.cboBG);
    });
}

void UpdateBG(int row) {
    withErrorTail(modul, u"UpdateBG"_qs, [row](ErrorTail& step) {
        const Benutzer& form = screen<Benutzer>();
        std::vector<Value> zeile;
        // Without a record there is nothing to take the cells from.
        if (Datensatz::aendere(step, u"Gruppen"_qs, form.lblGNr->text(), felderDerGruppe(step, form),
                               liesGruppe(step, zeile)))
            step([&] {
                const int dort = form.tblZugriff->rowOf(form.lblGNr->text(), row);
                for (std::size_t column = 1; column < zeile.size(); ++column)
                    form.tblZugriff->setCell(dort, static_cast<int>(column), zeile[column]);
                form.tblZugriff->markRow(dort);
            });
        LeereBenutzerEingabe();
    });
}

void LoescheZugriff(int row) {
    withErrorTail(modul, u"LoescheZugriff"_qs, [row](ErrorTail& step) {
        const Benutzer& form = screen<Benutzer>();
        if (Datensatz::loesche(step, u"Gruppen"_qs, form.lblGNr->text())) {
            step([&] { form.tblZugriff->removeRow(form.tblZugriff->rowOf(form.lblGNr->text(), row)); });
            zeigeAnzahl(form.lblGAnzahl, form.tblZugriff);
            // The number of groups here too, until the next painting.
            zeigeAnzahl(form.lblBAnzahl, form.tblZugriff);
            step([&] {
                modRun::GridVerweiseAbgleichen(form.tblBenutzer, gruppenSpalte, form.txtGruppe->text(),
                                               u"LOESCHEN"_qs, QString());
            });
            LadeGruppenCombo(form.cboBG);
        }
        LeereBenutzerEingabe();
    });
}

qint32 ErmittleGNr(const QString& name) {
    qint32 gnr = 0;
    withErrorTail(modul, u"ErmittleGNr"_qs, [&](ErrorTail& step) {
        Recordset gruppe;
        step([&] { gruppe = oeffneAbfrage(u"SELECT GNr FROM Gruppen WHERE GName = "_qs + quoted(name)); });
        if (step.test([&] { return gruppe.RecordCount() != 1; }))
            MsgBox(u"Keine Benutzergruppe angelegt! Bitte legen Sie zuerst eine Gruppe an."_qs, vbCritical);
        else
            step([&] { gnr = CLng(gruppe.Collect(u"GNr"_qs)); });
        step([&] { gruppe.Close(); });
    });
    return gnr;
}

QString ErmittleGName(qint32 gnr) {
    QString name;
    // The names in the box are another routine's, and users know them so.
    withErrorTail(u"modBasis"_qs, u"SpeicherFisch"_qs, [&](ErrorTail& step) {
        Recordset gruppe;
        step([&] {
            gruppe = oeffneAbfrage(u"SELECT GName FROM Gruppen WHERE GNr = "_qs + QString::number(gnr));
        });
        if (step.test([&] { return gruppe.RecordCount() == 1; }))
            step([&] { name = CStr(gruppe.Collect(u"GName"_qs)); });
        else
            name = u"0"_qs;
        step([&] { gruppe.Close(); });
    });
    return name;
}

void SichereZugriff(Recordset& gruppe) {
    withErrorTail(modul, u"SichereZugriff"_qs, [&](ErrorTail& step) {
        auto box = screen<Benutzer>().Zugriffe.cbegin();
        for (const Recht& recht : rechte())
            step([&] { gruppe.Collect(recht.feld, modRun::WertAusCheckBox(*box++)); });
    });
}

void LadeZugriff(int row) {
    withErrorTail(modul, u"LadeZugriff"_qs, [row](ErrorTail& step) {
        const Benutzer& form = screen<Benutzer>();
        int column = ersteRechteSpalte;
        for (QCheckBox* box : form.Zugriffe) {
            step([&] { box->setChecked(form.tblZugriff->cell(row, column) == Value(true)); });
            ++column;
        }
    });
}

void LadeBenutzerVorgang() {
    withErrorTail(modul, u"LadeBenutzerVorgang"_qs, [](ErrorTail& step) {
        Benutzer& form = screen<Benutzer>();
        const int row = form.gridRow();
        LeereBenutzerEingabe();
        step([&] { form.lblBNr->setText(form.tblBenutzer->cellText(row, 0)); });
        step([&] { form.txtBenutzer->setText(form.tblBenutzer->cellText(row, 1)); });
        step([&] { form.txtPassw->setText(form.tblBenutzer->cellText(row, 2)); });
        step([&] { form.txtPasswBest->setText(form.tblBenutzer->cellText(row, 2)); });
        step([&] { form.cboBG->setText(form.tblBenutzer->cellText(row, gruppenSpalte)); });
        form.openRecord(form.lblBNr->text(), row);
    });
}

void LadeGruppenVorgang(int row) {
    withErrorTail(modul, u"LadeGruppenVorgang"_qs, [row](ErrorTail& step) {
        Benutzer& form = screen<Benutzer>();
        LeereBenutzerEingabe();
        step([&] { form.lblGNr->setText(form.tblZugriff->cellText(row, 0)); });
        step([&] { form.txtGruppe->setText(form.tblZugriff->cellText(row, 1)); });
        LadeZugriff(row);
        form.openRecord(form.lblGNr->text(), row);
    });
}

void LeereBenutzerEingabe() {
    const Benutzer& form = screen<Benutzer>();
    const bool benutzer = form.tabBV->currentIndex() == Benutzer::userPage;
    benutzer ? leereBenutzer(form) : leereGruppe(form);
    (benutzer ? form.txtBenutzer : form.txtGruppe)->setFocus();
}

void LeereBenutzerAnzeige() {
    leereBenutzer(screen<Benutzer>());
    leereGruppe(screen<Benutzer>());
}

bool PruefeBenutzerEingabe() {
    const Benutzer& form = screen<Benutzer>();
    return modRun::fehlerfrei(modRun::erstesLeere({form.txtBenutzer, form.cboBG}));
}

bool PruefeGruppenEingabe() {
    return modRun::fehlerfrei(modRun::erstesLeere({screen<Benutzer>().txtGruppe}));
}

void LadeGruppenCombo(ComboBox* combo) {
    const DataTable* gruppen = screen<Benutzer>().tblZugriff;
    // What stands in the box belongs to the user who is being entered.
    const QString text = combo->currentText();
    combo->clear();
    for (int row = 0; row < gruppen->rowCount(); ++row) combo->AddItem(gruppen->cellText(row, 1));
    combo->setText(text);
}

} // namespace modBenutzer
