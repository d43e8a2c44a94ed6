#include "Kontakt.h"

#include "ComboBox.h"
#include "Eingaben.h"
#include "Meldungen.h"
#include "MemoBox.h"
#include "MsgBox.h"
#include "Screens.h"
#include "TextBox.h"
#include "modKontakt.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

// The layout of the screen is in KontaktLayout.cpp; its behaviour is here.

void Kontakt::Form_Load() {
    TabKont->setCurrentIndex(0);
    modKontakt::FuelleKategoCombo(cboKatego);
    modKontakt::SetzeMitglFelder();
    cboKatego->setFocus();
}

// Removes the closed screen, so that it opens empty the next time.
void Kontakt::Form_QueryUnload() { unload<Kontakt>(); }

void Kontakt::sperre() {
    m_gesperrt = true;
    for (TextBox* box : TabKont->findChildren<TextBox*>()) {
        box->setEnabled(true);
        box->setReadOnly(true);
    }
    txtNotiz->setReadOnly(true);
    cboKatego->setEnabled(false);
    for (QRadioButton* option : TabKont->findChildren<QRadioButton*>()) option->setEnabled(false);
    for (QCheckBox* box : TabKont->findChildren<QCheckBox*>()) box->setEnabled(false);
}

void Kontakt::Speichern() {
    if (isEditing()) {
        // An incomplete contact stays, without a message box. The next press adds it as a new one.
        if (!modKontakt::EingabeKontaktOK()) return;
        AusSuche ? modKontakt::UpdateSQLKontakt() : modKontakt::UpdateKontakt();
    } else if (modKontakt::EingabeKontaktOK()) {
        modKontakt::SpeicherKontakt();
    } else {
        TabKont->setCurrentIndex(0);
        modRun::MeldeEingabeFehler(modRun::erstesLeere({cboKatego, txtNName, txtVName}));
    }
}

void Kontakt::Loeschen() {
    // The message box only warns: the contact is deleted whatever the answer.
    MsgBox(u"ACHTUNG: Bei Mitgliederkontakt werden auch alle Referenzen des Kontaktes im "_s
           u"Arbeitscontrolling gelöscht !\r\nKontakt wirklich löschen ?"_s,
           vbYesNo);
    modKontakt::LoescheKontakt();
}
