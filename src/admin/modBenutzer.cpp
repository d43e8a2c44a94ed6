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

using namespace Qt::StringLiterals;

namespace modBenutzer {

namespace {

const QString modul = u"modBenutzer"_s;

/// First column of rights in the grid of groups, after number and name.
constexpr int ersteRechteSpalte = 2;
/// Column of the group's name in the grid of users.
constexpr int gruppenSpalte = 3;

void zeigeAnzahl(ValueLabel* label, const DataTable* grid) {
    label->setText(QString::number(grid->rowCount()));
}

Datensatz::Felder felderDesBenutzers(ErrorTail& step, const Benutzer& screen, qint32 gnr) {
    return [&step, &screen, gnr](Recordset& benutzer) {
        step([&] { benutzer.Collect(u"Name"_s, screen.txtBenutzer->text()); });
        step([&] { benutzer.Collect(u"Passwort"_s, screen.txtPassw->text()); });
        step([&] { benutzer.Collect(u"GNr"_s, gnr); });
    };
}

Datensatz::Felder felderDerGruppe(ErrorTail& step, const Benutzer& screen) {
    return [&](Recordset& gruppe) {
        step([&] { gruppe.Collect(u"GName"_s, screen.txtGruppe->text()); });
        step([&] { SichereZugriff(gruppe); });
    };
}

/// Reads the fields of a group's grid row from the record just written.
Datensatz::Danach liesGruppe(ErrorTail& step, std::vector<Value>& zeile) {
    QStringList felder = {u"GNr"_s, u"GName"_s};
    for (const Recht& recht : rechte()) felder.append(recht.feld);
    return Datensatz::lies(step, zeile, felder);
}

void leereBenutzer(const Benutzer& screen) {
    screen.lblBNr->setText(QString());
    for (TextBox* box : {screen.txtBenutzer, screen.txtPassw, screen.txtPasswBest}) box->setText(QString());
    screen.cboBG->setText(QString());
    screen.cboBG->setListIndex(-1);
}

void leereGruppe(const Benutzer& screen) {
    screen.lblGNr->setText(QString());
    screen.txtGruppe->setText(QString());
    for (QCheckBox* box : screen.Zugriffe) box->setChecked(false);
}

} // namespace

std::vector<Value> gruppenZeile(const Recordset& gruppe) {
    std::vector<Value> zeile = {gruppe.Collect(u"GNr"_s), gruppe.Collect(u"GName"_s)};
    for (const Recht& recht : rechte()) zeile.push_back(gruppe.Collect(recht.feld));
    return zeile;
}

void SpeicherBenutzer() {
    withErrorTail(modul, u"SpeicherBenutzer"_s, [](ErrorTail& step) {
        const Benutzer& screen = the<Benutzer>();
        const qint32 gnr = ErmittleGNr(screen.cboBG->currentText());
        if (gnr == 0) return LeereBenutzerEingabe();
        std::vector<Value> zeile;
        QString gruppe;
        if (Datensatz::speichere(
                step, u"Benutzer"_s, felderDesBenutzers(step, screen, gnr),
                Datensatz::lies(step, zeile, {u"BNr"_s, u"Name"_s, u"Passwort"_s, u"GNr"_s})))
            step([&] { gruppe = ErmittleGName(CLng(zeile[gruppenSpalte])); });
        if (gruppe.isEmpty()) return LeereBenutzerEingabe();
        zeile[gruppenSpalte] = gruppe;
        step([&] { screen.tblBenutzer->appendRow(zeile); });
        screen.tblBenutzer->markRow(screen.tblBenutzer->rowCount());
        LeereBenutzerEingabe();
        zeigeAnzahl(screen.lblBAnzahl, screen.tblBenutzer);
    });
}

void UpdateBenutzer(int row) {
    withErrorTail(modul, u"UpdateBenutzer"_s, [row](ErrorTail& step) {
        const Benutzer& screen = the<Benutzer>();
        bool fehlt = false;
        const bool steht = Datensatz::schreibe(step, u"Benutzer"_s, [&](Recordset& benutzer) {
            fehlt = !Datensatz::finde(step, benutzer, screen.lblBNr->text());
            if (fehlt) modRun::MeldeNichtVorhanden();
            const qint32 gnr = fehlt ? 0 : ErmittleGNr(screen.cboBG->currentText());
            if (gnr == 0) return false;
            step([&] { benutzer.Edit(); });
            felderDesBenutzers(step, screen, gnr)(benutzer);
            return step([&] { benutzer.Update(); });
        });
        // The row of a user whom another process has deleted shows the typed values as well. If no user
        // number is shown, a group is open, and `row` counts in the grid of groups.
        if ((steht || fehlt) && !screen.lblBNr->text().isEmpty()) {
            const int zeile = screen.tblBenutzer->rowOf(screen.lblBNr->text(), row);
            step([&] { screen.tblBenutzer->setCell(zeile, 1, screen.txtBenutzer->text()); });
            step([&] { screen.tblBenutzer->setCell(zeile, 2, screen.txtPassw->text()); });
            step([&] { screen.tblBenutzer->setCell(zeile, gruppenSpalte, screen.cboBG->currentText()); });
            screen.tblBenutzer->markRow(zeile);
        }
        LeereBenutzerEingabe();
    });
}

void LoescheBenutzer(int row) {
    withErrorTail(modul, u"LoescheBenutzer"_s, [row](ErrorTail& step) {
        const Benutzer& screen = the<Benutzer>();
        if (Datensatz::loesche(step, u"Benutzer"_s, screen.lblBNr->text())) {
            step([&] {
                screen.tblBenutzer->removeRow(screen.tblBenutzer->rowOf(screen.lblBNr->text(), row));
            });
            zeigeAnzahl(screen.lblBAnzahl, screen.tblBenutzer);
        }
        LeereBenutzerEingabe();
    });
}

void SpeicherBG() {
    withErrorTail(modul, u"SpeicherBG"_s, [](ErrorTail& step) {
        const Benutzer& screen = the<Benutzer>();
        std::vector<Value> zeile;
        if (Datensatz::speichere(step, u"Gruppen"_s, felderDerGruppe(step, screen),
                                 liesGruppe(step, zeile))) {
            step([&] { screen.tblZugriff->appendRow(zeile); });
            screen.tblZugriff->markRow(screen.tblZugriff->rowCount());
        }
        LeereBenutzerEingabe();
        zeigeAnzahl(screen.lblGAnzahl, screen.tblZugriff);
        LadeGruppenCombo(screen.cboBG);
    });
}

void UpdateBG(int row) {
    withErrorTail(modul, u"UpdateBG"_s, [row](ErrorTail& step) {
        const Benutzer& screen = the<Benutzer>();
        std::vector<Value> zeile;
        if (Datensatz::aendere(step, u"Gruppen"_s, screen.lblGNr->text(), felderDerGruppe(step, screen),
                               liesGruppe(step, zeile)))
            step([&] {
                const int dort = screen.tblZugriff->rowOf(screen.lblGNr->text(), row);
                for (std::size_t column = 1; column < zeile.size(); ++column)
                    screen.tblZugriff->setCell(dort, static_cast<int>(column), zeile[column]);
                screen.tblZugriff->markRow(dort);
            });
        LeereBenutzerEingabe();
    });
}

void LoescheZugriff(int row) {
    withErrorTail(modul, u"LoescheZugriff"_s, [row](ErrorTail& step) {
        const Benutzer& screen = the<Benutzer>();
        if (Datensatz::loesche(step, u"Gruppen"_s, screen.lblGNr->text())) {
            step([&] { screen.tblZugriff->removeRow(screen.tblZugriff->rowOf(screen.lblGNr->text(), row)); });
            zeigeAnzahl(screen.lblGAnzahl, screen.tblZugriff);
            // Shows the number of groups as the number of users until the next Form_Paint.
            zeigeAnzahl(screen.lblBAnzahl, screen.tblZugriff);
            step([&] {
                modRun::GridVerweiseAbgleichen(screen.tblBenutzer, gruppenSpalte, screen.txtGruppe->text(),
                                               u"LOESCHEN"_s, QString());
            });
            LadeGruppenCombo(screen.cboBG);
        }
        LeereBenutzerEingabe();
    });
}

qint32 ErmittleGNr(const QString& name) {
    qint32 gnr = 0;
    withErrorTail(modul, u"ErmittleGNr"_s, [&](ErrorTail& step) {
        Recordset gruppe;
        step([&] { gruppe = oeffneAbfrage(u"SELECT GNr FROM Gruppen WHERE GName = "_s + quoted(name)); });
        if (step.test([&] { return gruppe.RecordCount() != 1; }))
            MsgBox(u"Keine Benutzergruppe angelegt! Bitte legen Sie zuerst eine Gruppe an."_s, vbCritical);
        else
            step([&] { gnr = CLng(gruppe.Collect(u"GNr"_s)); });
        step([&] { gruppe.Close(); });
    });
    return gnr;
}

QString ErmittleGName(qint32 gnr) {
    QString name;
    // The message box names another routine. Users know its text, so keep it.
    withErrorTail(u"modBasis"_s, u"SpeicherFisch"_s, [&](ErrorTail& step) {
        Recordset gruppe;
        step([&] {
            gruppe = oeffneAbfrage(u"SELECT GName FROM Gruppen WHERE GNr = "_s + QString::number(gnr));
        });
        if (step.test([&] { return gruppe.RecordCount() == 1; }))
            step([&] { name = CStr(gruppe.Collect(u"GName"_s)); });
        else
            name = u"0"_s;
        step([&] { gruppe.Close(); });
    });
    return name;
}

void SichereZugriff(Recordset& gruppe) {
    withErrorTail(modul, u"SichereZugriff"_s, [&](ErrorTail& step) {
        auto box = the<Benutzer>().Zugriffe.cbegin();
        for (const Recht& recht : rechte())
            step([&] { gruppe.Collect(recht.feld, modRun::WertAusCheckBox(*box++)); });
    });
}

void LadeZugriff(int row) {
    withErrorTail(modul, u"LadeZugriff"_s, [row](ErrorTail& step) {
        const Benutzer& screen = the<Benutzer>();
        int column = ersteRechteSpalte;
        for (QCheckBox* box : screen.Zugriffe) {
            step([&] { box->setChecked(screen.tblZugriff->cell(row, column) == Value(true)); });
            ++column;
        }
    });
}

void LadeBenutzerVorgang() {
    withErrorTail(modul, u"LadeBenutzerVorgang"_s, [](ErrorTail& step) {
        Benutzer& screen = the<Benutzer>();
        const int row = screen.gridRow();
        LeereBenutzerEingabe();
        step([&] { screen.lblBNr->setText(screen.tblBenutzer->cellText(row, 0)); });
        step([&] { screen.txtBenutzer->setText(screen.tblBenutzer->cellText(row, 1)); });
        step([&] { screen.txtPassw->setText(screen.tblBenutzer->cellText(row, 2)); });
        step([&] { screen.txtPasswBest->setText(screen.tblBenutzer->cellText(row, 2)); });
        step([&] { screen.cboBG->setText(screen.tblBenutzer->cellText(row, gruppenSpalte)); });
        screen.openRecord(screen.lblBNr->text(), row);
    });
}

void LadeGruppenVorgang(int row) {
    withErrorTail(modul, u"LadeGruppenVorgang"_s, [row](ErrorTail& step) {
        Benutzer& screen = the<Benutzer>();
        LeereBenutzerEingabe();
        step([&] { screen.lblGNr->setText(screen.tblZugriff->cellText(row, 0)); });
        step([&] { screen.txtGruppe->setText(screen.tblZugriff->cellText(row, 1)); });
        LadeZugriff(row);
        screen.openRecord(screen.lblGNr->text(), row);
    });
}

void LeereBenutzerEingabe() {
    const Benutzer& screen = the<Benutzer>();
    const bool benutzer = screen.tabBV->currentIndex() == Benutzer::userPage;
    benutzer ? leereBenutzer(screen) : leereGruppe(screen);
    (benutzer ? screen.txtBenutzer : screen.txtGruppe)->setFocus();
}

void LeereBenutzerAnzeige() {
    leereBenutzer(the<Benutzer>());
    leereGruppe(the<Benutzer>());
}

bool PruefeBenutzerEingabe() {
    const Benutzer& screen = the<Benutzer>();
    return modRun::fehlerfrei(modRun::erstesLeere({screen.txtBenutzer, screen.cboBG}));
}

bool PruefeGruppenEingabe() { return modRun::fehlerfrei(modRun::erstesLeere({the<Benutzer>().txtGruppe})); }

void LadeGruppenCombo(ComboBox* combo) {
    const DataTable* gruppen = the<Benutzer>().tblZugriff;
    // The text in the box may belong to a user who is being entered: keep it.
    const QString text = combo->currentText();
    combo->clear();
    for (int row = 0; row < gruppen->rowCount(); ++row) combo->AddItem(gruppen->cellText(row, 1));
    combo->setText(text);
}

} // namespace modBenutzer
