#include "Meldungen.h"

#include "MsgBox.h"
#include "Session.h"

using namespace Qt::StringLiterals;

namespace modRun {

void MeldeNichtVorhanden() {
    MsgBox(u"FEHLER: Datensatz nicht vorhanden o. nicht vorhanden !"_s, vbCritical);
}

void MeldeNichtsGefunden() {
    MsgBox(u"Keine passenden Datensätze gefunden, bitte versuchen Sie es erneut!"_s, vbInformation);
}

void MeldeEingabeFehler(QWidget* schuld) {
    MsgBox(u"ACHTUNG: Eingabefelder nicht korrekt, Vorgang abgebrochen !"_s, vbInformation);
    schuld->setFocus();
    // A box may pass the focus on when it loses it, which the first call has caused.
    schuld->setFocus();
}

void MeldeAbgebrochen() { MsgBox(u"Vorgang von User abgebrochen !"_s, vbInformation); }

void MeldeKeinZugriff() {
    MsgBox(u"Sie haben keine Zugriffsberechtigung auf diese Funktion !"_s, vbInformation);
}

bool frage(const QString& text, const QString& title) {
    const int antwort = MsgBox(text, vbYesNo, title);
    session().MsgAntwort = antwort;
    return antwort == vbYes;
}

} // namespace modRun
