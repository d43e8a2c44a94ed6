#include "modKatego.h"

#include "Conversions.h"
#include "DataTable.h"
#include "ErrorTail.h"
#include "Katego.h"
#include "MsgBox.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "TextBox.h"
#include "Uebersicht.h"
#include "ValueLabel.h"

#include "modRun.h"
#include "modStart.h"

namespace modKatego {

namespace {

const QString modul = u"modKatego"_qs;

void zeigeAnzahl(Katego& form) { form.lblAnzahl->setCaption(QString::number(form.tblKatego->rowCount())); }

/// Seeks the category that the mask shows.
bool findeOffene(ErrorTail& step, Recordset& katego, const Katego& form) {
    return modRun::findeIn(step, katego, u"Katego"_qs, form.lblKategoNr->Caption());
}

QString alsZeile(const QString& name) { return istSystemkategorie(name) ? name + systemMarke : name; }

} // namespace

const QString systemMarke = u" -> Systemkategorie <-"_qs;

bool istSystemkategorie(const QString& name) {
    return name == u"Mitglieder (aktiv)"_qs || name == u"Mitglieder (passiv)"_qs;
}

void loadTblKatego() {
    modStart::fuelleGrid(u"loadTblKatego"_qs, screen<Katego>().tblKatego, u"SELECT * FROM Katego"_qs,
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
            step([&] { form.lblKategoNr->setCaption(CStr(katego.Collect(u"kategonr"_qs))); });
            step([&] { form.txtKatego->setText(modRun::textOderLeer(katego.Fields(u"kategorie"_qs))); });
        }
        step([&] { katego.Close(); });
    });
}

namespace {

void zeigeNeue(ErrorTail& step, const Recordset& katego, Katego& form) {
    Value nummer;
    Value name;
    step([&] { nummer = katego.Collect(u"kategonr"_qs); });
    step([&] { name = katego.Collect(u"kategorie"_qs); });
    step([&] { form.tblKatego->appendRow({nummer, name}); });
    zeigeAnzahl(form);
    step([&] { Uebersicht::nehmeKategorieAuf(nummer, name); });
}

} // namespace

void SpeicherKatego() {
    withErrorTail(modul, u"SpeicherKatego"_qs, [](ErrorTail& step) {
        Katego& form = screen<Katego>();
        Recordset katego;
        step([&] { katego = oeffneTabelle(u"Katego"_qs); });
        step([&] { katego.AddNew(); });
        step([&] { katego.Collect(u"kategorie"_qs, form.txtKatego->Text()); });
        if (modRun::speichereNeuen(step, katego)) zeigeNeue(step, katego, form);
        KategoAnzeigeLoeschen();
        step([&] { katego.Close(); });
    });
}

void UpdateKatego(int row) {
    withErrorTail(modul, u"UpdateKatego"_qs, [row](ErrorTail& step) {
        Katego& form = screen<Katego>();
        Recordset katego;
        if (findeOffene(step, katego, form)) {
            const QString name = form.txtKatego->Text();
            step([&] { katego.Edit(); });
            step([&] { katego.Collect(u"kategorie"_qs, name); });
            step([&] { katego.Update(); });
            step([&] { form.tblKatego->setCell(row, 1, name); });
            step([&] { Uebersicht::benenneKategorieUm(CLng(form.lblKategoNr->Caption()), name); });
        } else {
            modRun::MeldeNichtVorhanden();
        }
        KategoAnzeigeLoeschen();
        step([&] { katego.Close(); });
    });
}

void LoescheKatego(int row) {
    withErrorTail(modul, u"LoescheKatego"_qs, [row](ErrorTail& step) {
        Katego& form = screen<Katego>();
        Recordset katego;
        if (findeOffene(step, katego, form)) {
            step([&] { katego.Delete(); });
            step([&] { form.tblKatego->removeRow(row); });
            zeigeAnzahl(form);
            step([&] { Uebersicht::entferneKategorie(CLng(form.lblKategoNr->Caption())); });
        } else {
            modRun::MeldeNichtVorhanden();
        }
        KategoAnzeigeLoeschen();
        step([&] { katego.Close(); });
    });
}

void KategoAnzeigeLoeschen() {
    Katego& form = screen<Katego>();
    form.txtKatego->setText(QString());
    form.lblKategoNr->setCaption(QString());
    form.txtKatego->setFocus();
}

bool KategoEingabeOK() {
    if (!screen<Katego>().txtKatego->Text().isEmpty()) return true;
    modRun::MeldeEingabeFehler();
    return false;
}

} // namespace modKatego
