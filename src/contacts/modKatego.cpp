#include "modKatego.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "Feldwerte.h"
#include "Katego.h"
#include "MsgBox.h"
#include "Screens.h"
#include "Uebersicht.h"

using namespace Qt::StringLiterals;

namespace modKatego {

namespace {

const QString modul = u"modKatego"_s;
/// Follows the name of a system category in the grid.
const QString systemMarke = u" -> Systemkategorie <-"_s;

/// Sets the name, the only field that is entered.
Datensatz::Felder felder(ErrorTail& step, const Katego& screen) {
    return
        [&](Recordset& katego) { step([&] { katego.Collect(u"kategorie"_s, screen.txtKatego->text()); }); };
}

QString alsZeile(const QString& name) { return istSystemkategorie(name) ? name + systemMarke : name; }

} // namespace

bool istSystemkategorie(const QString& name) {
    return name == u"Mitglieder (aktiv)"_s || name == u"Mitglieder (passiv)"_s;
}

void loadTblKatego() {
    const auto mitMarke = [](std::vector<Value>& zeile) {
        zeile[1] = alsZeile(zeile[1].isNull() ? QString() : CStr(zeile[1]));
    };
    fuelleGrid(u"loadTblKatego"_s, the<Katego>().tblKatego, u"SELECT * FROM Katego"_s,
               {u"kategonr"_s, u"kategorie"_s}, mitMarke);
}

void FuelleKategoCombo(ComboBox* combo) {
    const DataTable* grid = the<Katego>().tblKatego;
    if (combo->count() == grid->rowCount()) return;
    combo->clear();
    for (int row = 0; row < grid->rowCount(); ++row) {
        const QString text = grid->cellText(row, 1);
        const QString name = QString(text).remove(systemMarke);
        combo->AddItem(text == alsZeile(name) ? name : text);
    }
}

void loadKatego(int row) {
    withErrorTail(modul, u"loadKatego"_s, [row](ErrorTail& step) {
        Katego& screen = the<Katego>();
        const auto select = [&] {
            return u"SELECT * FROM Katego WHERE KategoNr = %1"_s.arg(CLng(screen.tblKatego->cell(row, 0)));
        };
        const auto zeige = [&](const Recordset& katego) {
            const auto name = [&] { return modRun::textOderLeer(katego.Fields(u"kategorie"_s)); };
            if (step.test([&] { return istSystemkategorie(name()); })) {
                MsgBox(u"ACHTUNG: Systemkategorie, keine Änderungen oder Löschung erlaubt!"_s, vbInformation);
            } else {
                step([&] { screen.lblKategoNr->setText(CStr(katego.Collect(u"kategonr"_s))); });
                step([&] { screen.txtKatego->setText(name()); });
            }
        };
        liesSatz(step, select, zeige, &modRun::MeldeNichtVorhanden);
    });
}

void SpeicherKatego() {
    withErrorTail(modul, u"SpeicherKatego"_s, [](ErrorTail& step) {
        Katego& screen = the<Katego>();
        if (const auto neue = Datensatz::speichere(step, u"Katego"_s, felder(step, screen),
                                                   {u"kategonr"_s, u"kategorie"_s})) {
            screen.tblKatego->appendRow(*neue);
            screen.tblKatego->markRow(screen.tblKatego->rowCount());
            screen.lblAnzahl->setNum(screen.tblKatego->rowCount());
            step([&] { Uebersicht::nehmeKategorieAuf((*neue)[0], (*neue)[1]); });
        }
        KategoAnzeigeLoeschen();
    });
}

void UpdateKatego(int row) {
    withErrorTail(modul, u"UpdateKatego"_s, [row](ErrorTail& step) {
        const Katego& screen = the<Katego>();
        const QString nummer = screen.lblKategoNr->text();
        if (Datensatz::aendere(step, u"Katego"_s, nummer, felder(step, screen))) {
            const QString name = screen.txtKatego->text();
            step([&] { screen.tblKatego->setCell(row, 1, name); });
            screen.tblKatego->markRow(row);
            step([&] { Uebersicht::benenneKategorieUm(CLng(nummer), name); });
        }
        KategoAnzeigeLoeschen();
    });
}

void LoescheKatego(int row) {
    withErrorTail(modul, u"LoescheKatego"_s, [row](ErrorTail& step) {
        Katego& screen = the<Katego>();
        const QString nummer = screen.lblKategoNr->text();
        if (Datensatz::loesche(step, u"Katego"_s, nummer)) {
            step([&] { screen.tblKatego->removeRow(row); });
            screen.lblAnzahl->setNum(screen.tblKatego->rowCount());
            step([&] { Uebersicht::entferneKategorie(CLng(nummer)); });
        }
        KategoAnzeigeLoeschen();
    });
}

void KategoAnzeigeLoeschen() {
    Katego& screen = the<Katego>();
    screen.txtKatego->setText(QString());
    screen.lblKategoNr->setText(QString());
    screen.txtKatego->setFocus();
}

bool KategoEingabeOK() { return modRun::fehlerfrei(modRun::erstesLeere({the<Katego>().txtKatego})); }

} // namespace modKatego
