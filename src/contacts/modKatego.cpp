#include "modKatego.h"

#include "Conversions.h"
#include "DataTable.h"
#include "Datenbank.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Feldwerte.h"
#include "Katego.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "Recordset.h"
#include "Screens.h"
#include "TextBox.h"
#include "Uebersicht.h"
#include "ValueLabel.h"

namespace modKatego {

namespace {

const QString modul = u"modKatego"_qs;

void zeigeAnzahl(Katego& form) { form.lblAnzahl->setText(QString::number(form.tblKatego->rowCount())); }

/// The one field of the mask.
Datensatz::Felder felder(ErrorTail& step, const Katego& form) {
    return [&](Recordset& katego) { step([&] { katego.Collect(u"kategorie"_qs, form.txtKatego->text()); }); };
}

QString alsZeile(const QString& name) { return istSystemkategorie(name) ? name + systemMarke : name; }

} // namespace

const QString systemMarke = u" -> Systemkategorie <-"_qs;

bool istSystemkategorie(const QString& name) {
    return name == u"Mitglieder (aktiv)"_qs || name == u"Mitglieder (passiv)"_qs;
}

void loadTblKatego() {
    ::fuelleGrid(u"loadTblKatego"_qs, screen<Katego>().tblKatego, u"SELECT * FROM Katego"_qs,
                 [](const Recordset& katego) {
                     const QString name = modRun::textOderLeer(katego.Fields(u"kategorie"_qs));
                     return std::vector<Value>{katego.Collect(u"kategonr"_qs), alsZeile(name)};
                 });
}

void loadKatego(int row, int /*column*/) {
    withErrorTail(modul, u"loadKatego"_qs, [row](ErrorTail& step) {
        Katego& form = screen<Katego>();
        Recordset katego;
        step([&] {
            katego = oeffneAbfrage(u"SELECT * FROM Katego WHERE KategoNr = "_qs +
                                   QString::number(CLng(form.tblKatego->cell(row, 0))));
        });
        if (!step.test([&] { return katego.RecordCount() == 1; })) {
            modRun::MeldeNichtVorhanden();
        } else if (step.test([&] {
                       return istSystemkategorie(modRun::textOderLeer(katego.Fields(u"kategorie"_qs)));
                   })) {
            MsgBox(u"ACHTUNG: Systemkategorie, keine Änderungen oder Löschung erlaubt!"_qs, vbInformation);
        } else {
            step([&] { form.lblKategoNr->setText(CStr(katego.Collect(u"kategonr"_qs))); });
            step([&] { form.txtKatego->setText(modRun::textOderLeer(katego.Fields(u"kategorie"_qs))); });
        }
        step([&] { katego.Close(); });
    });
}

void SpeicherKatego() {
    withErrorTail(modul, u"SpeicherKatego"_qs, [](ErrorTail& step) {
        Katego& form = screen<Katego>();
        std::vector<Value> neue;
        if (Datensatz::speichere(step, u"Katego"_qs, felder(step, form),
                                 Datensatz::lies(step, neue, {u"kategonr"_qs, u"kategorie"_qs}))) {
            step([&] { form.tblKatego->appendRow(neue); });
            form.tblKatego->markRow(form.tblKatego->rowCount());
            zeigeAnzahl(form);
            step([&] { Uebersicht::nehmeKategorieAuf(neue[0], neue[1]); });
        }
        KategoAnzeigeLoeschen();
    });
}

void UpdateKatego(int row) {
    withErrorTail(modul, u"UpdateKatego"_qs, [row](ErrorTail& step) {
        const Katego& form = screen<Katego>();
        const QString nummer = form.lblKategoNr->text();
        if (Datensatz::aendere(step, u"Katego"_qs, nummer, felder(step, form))) {
            const QString name = form.txtKatego->text();
            step([&] { form.tblKatego->setCell(row, 1, name); });
            form.tblKatego->markRow(row);
            step([&] { Uebersicht::benenneKategorieUm(CLng(nummer), name); });
        }
        KategoAnzeigeLoeschen();
    });
}

void LoescheKatego(int row) {
    withErrorTail(modul, u"LoescheKatego"_qs, [row](ErrorTail& step) {
        Katego& form = screen<Katego>();
        const QString nummer = form.lblKategoNr->text();
        if (Datensatz::loesche(step, u"Katego"_qs, nummer)) {
            step([&] { form.tblKatego->removeRow(row); });
            zeigeAnzahl(form);
            step([&] { Uebersicht::entferneKategorie(CLng(nummer)); });
        }
        KategoAnzeigeLoeschen();
    });
}

void KategoAnzeigeLoeschen() {
    Katego& form = screen<Katego>();
    form.txtKatego->setText(QString());
    form.lblKategoNr->setText(QString());
    form.txtKatego->setFocus();
}

bool KategoEingabeOK() { return modRun::fehlerfrei(modRun::erstesLeere({screen<Katego>().txtKatego})); }

} // namespace modKatego
