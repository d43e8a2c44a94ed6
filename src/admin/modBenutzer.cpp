#include "modBenutzer.h"

#include "Benutzer.h"
#include "Conversions.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "MsgBox.h"
#include "Rechte.h"
#include "Screens.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

namespace modBenutzer {

namespace {

const QString modul = u"modBenutzer"_s;

/// Column of the group's name in the grid of users.
constexpr int gruppenSpalte = 3;

/// The fields of a group's grid row: number, name and the rights.
QStringList felderDerZeile() {
    QStringList felder = {u"GNr"_s, u"GName"_s};
    for (const Recht& recht : rechte) felder.append(recht.feld.toString());
    return felder;
}

/// The number of the first group of this name; 0 after a message box if there is none.
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

/// The name of a group; "0" if there is none.
QString ErmittleGName(qint32 gnr) {
    QString name;
    // The message box names another routine. Users know its text, so keep it.
    schlageNach(
        u"modBasis"_s, u"SpeicherFisch"_s,
        [gnr] { return u"SELECT GName FROM Gruppen WHERE GNr = %1"_s.arg(gnr); },
        [&](const Recordset& gruppe) { name = CStr(gruppe.Collect(u"GName"_s)); }, [&] { name = u"0"_s; });
    return name;
}

/// Writes the check boxes into the copy buffer of a record of Gruppen.
void SichereZugriff(Recordset& gruppe) {
    withErrorTail(modul, u"SichereZugriff"_s, [&](ErrorTail& step) {
        auto box = the<Benutzer>().Zugriffe.cbegin();
        for (const Recht& recht : rechte)
            step([&] { gruppe.Collect(recht.feld.toString(), (*box++)->isChecked()); });
    });
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
        SichereZugriff(gruppe);
    };
}

void SpeicherBenutzer() {
    withErrorTail(modul, u"SpeicherBenutzer"_s, [](ErrorTail& step) {
        const Benutzer& screen = the<Benutzer>();
        const qint32 gnr = ErmittleGNr(screen.cboBG->currentText());
        if (gnr == 0) return LeereBenutzerEingabe();
        auto zeile = Datensatz::speichere(step, u"Benutzer"_s, felderDesBenutzers(step, screen, gnr),
                                          {u"BNr"_s, u"Name"_s, u"Passwort"_s, u"GNr"_s});
        QString gruppe;
        if (zeile) step([&] { gruppe = ErmittleGName(CLng((*zeile)[gruppenSpalte])); });
        if (gruppe.isEmpty()) return LeereBenutzerEingabe();
        (*zeile)[gruppenSpalte] = gruppe;
        screen.tblBenutzer->appendRow(*zeile);
        screen.tblBenutzer->markRow(screen.tblBenutzer->rowCount());
        LeereBenutzerEingabe();
        screen.lblBAnzahl->setNum(screen.tblBenutzer->rowCount());
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
            screen.tblBenutzer->removeRow(screen.tblBenutzer->rowOf(screen.lblBNr->text(), row));
            screen.lblBAnzahl->setNum(screen.tblBenutzer->rowCount());
        }
        LeereBenutzerEingabe();
    });
}

void SpeicherBG() {
    withErrorTail(modul, u"SpeicherBG"_s, [](ErrorTail& step) {
        const Benutzer& screen = the<Benutzer>();
        if (const auto zeile =
                Datensatz::speichere(step, u"Gruppen"_s, felderDerGruppe(step, screen), felderDerZeile())) {
            screen.tblZugriff->appendRow(*zeile);
            screen.tblZugriff->markRow(screen.tblZugriff->rowCount());
        }
        LeereBenutzerEingabe();
        screen.lblGAnzahl->setNum(screen.tblZugriff->rowCount());
        LadeGruppenCombo(screen.cboBG);
    });
}

void UpdateBG(int row) {
    withErrorTail(modul, u"UpdateBG"_s, [row](ErrorTail& step) {
        const Benutzer& screen = the<Benutzer>();
        const auto zeile = Datensatz::aendere(step, u"Gruppen"_s, screen.lblGNr->text(),
                                              felderDerGruppe(step, screen), felderDerZeile());
        if (zeile)
            step([&] {
                const int dort = screen.tblZugriff->rowOf(screen.lblGNr->text(), row);
                for (std::size_t column = 1; column < zeile->size(); ++column)
                    screen.tblZugriff->setCell(dort, static_cast<int>(column), (*zeile)[column]);
                screen.tblZugriff->markRow(dort);
            });
        LeereBenutzerEingabe();
    });
}

void LoescheZugriff(int row) {
    withErrorTail(modul, u"LoescheZugriff"_s, [row](ErrorTail& step) {
        const Benutzer& screen = the<Benutzer>();
        if (Datensatz::loesche(step, u"Gruppen"_s, screen.lblGNr->text())) {
            screen.tblZugriff->removeRow(screen.tblZugriff->rowOf(screen.lblGNr->text(), row));
            screen.lblGAnzahl->setNum(screen.tblZugriff->rowCount());
            // Shows the number of groups as the number of users until the next Form_Paint.
            screen.lblBAnzahl->setNum(screen.tblZugriff->rowCount());
            screen.tblBenutzer->removeRowsWithText(gruppenSpalte, screen.txtGruppe->text());
            LadeGruppenCombo(screen.cboBG);
        }
        LeereBenutzerEingabe();
    });
}

/// True if name and group are filled and both passwords are equal, in case too; false after a message box. A
/// password may be empty. Different passwords empty the entry fields.
bool PruefeBenutzerEingabe() {
    const Benutzer& screen = the<Benutzer>();
    if (!modRun::fehlerfrei(modRun::erstesLeere({screen.txtBenutzer, screen.cboBG}))) return false;
    if (screen.txtPassw->text() == screen.txtPasswBest->text()) return true;
    MsgBox(u"Passwortbestätigung stimmt nicht mit Passwort überein\n\rBitte versuchen Sie es nochmal !"_s,
           vbInformation);
    LeereBenutzerEingabe();
    return false;
}

bool PruefeGruppenEingabe() { return modRun::fehlerfrei(modRun::erstesLeere({the<Benutzer>().txtGruppe})); }

void leereBenutzer(const Benutzer& screen) {
    screen.lblBNr->clear();
    for (TextBox* box : {screen.txtBenutzer, screen.txtPassw, screen.txtPasswBest}) box->setText({});
    screen.cboBG->setText({});
    screen.cboBG->setListIndex(-1);
}

void leereGruppe(const Benutzer& screen) {
    screen.lblGNr->clear();
    screen.txtGruppe->setText({});
    for (QCheckBox* box : screen.Zugriffe) box->setChecked(false);
}

} // namespace

void loadTblBenutzer() {
    fuelleGrid(u"loadTblBenutzer"_s, the<Benutzer>().tblBenutzer,
               u"SELECT b.BNr, b.Name, b.Passwort, g.GName FROM Benutzer b, Gruppen g WHERE g.GNr = b.GNr"_s,
               {u"BNr"_s, u"Name"_s, u"Passwort"_s, u"GName"_s});
}

void loadTblZugriff() {
    fuelleGrid(u"loadTblZugriff"_s, the<Benutzer>().tblZugriff, u"SELECT * FROM Gruppen"_s, felderDerZeile());
}

Erfassung benutzerErfassung() {
    return {.vollstaendig = &PruefeBenutzerEingabe,
            .speichere = &SpeicherBenutzer,
            .aendere = &UpdateBenutzer,
            .loesche = &LoescheBenutzer,
            .frage = u"Achtung: Benutzer wirklich löschen ?"_s,
            .beiNein = &LeereBenutzerEingabe};
}

Erfassung gruppenErfassung() {
    return {.vollstaendig = &PruefeGruppenEingabe,
            .speichere = &SpeicherBG,
            .aendere = &UpdateBG,
            .loesche = &LoescheZugriff,
            .frage =
                u"Achtung: Benutzer - Referenzen in der Benutzertabelle werden ebenfalls gelöscht !\r\n"_s
                u"Trotzdem löschen ?"_s,
            .beiNein = &LeereBenutzerEingabe};
}

void LadeBenutzerVorgang(int row) {
    Benutzer& screen = the<Benutzer>();
    const auto text = [&](int column) { return screen.tblBenutzer->cellText(row, column); };
    LeereBenutzerEingabe();
    screen.lblBNr->setText(text(0));
    screen.txtBenutzer->setText(text(1));
    for (TextBox* box : {screen.txtPassw, screen.txtPasswBest}) box->setText(text(2));
    screen.cboBG->setText(text(gruppenSpalte));
    screen.openRecord(screen.lblBNr->text(), row);
}

void LadeGruppenVorgang(int row) {
    Benutzer& screen = the<Benutzer>();
    LeereBenutzerEingabe();
    screen.lblGNr->setText(screen.tblZugriff->cellText(row, 0));
    screen.txtGruppe->setText(screen.tblZugriff->cellText(row, 1));
    int column = 2; // after number and name
    for (QCheckBox* box : screen.Zugriffe)
        box->setChecked(screen.tblZugriff->cell(row, column++) == Value(true));
    screen.openRecord(screen.lblGNr->text(), row);
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

void LadeGruppenCombo(ComboBox* combo) {
    const DataTable* gruppen = the<Benutzer>().tblZugriff;
    // The text in the box may belong to a user who is being entered: keep it.
    const QString text = combo->currentText();
    combo->clear();
    for (int row = 0; row < gruppen->rowCount(); ++row) combo->AddItem(gruppen->cellText(row, 1));
    combo->setText(text);
}

} // namespace modBenutzer
