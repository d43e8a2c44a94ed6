#include "modMitglList.h"

#include "Conversions.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Feldwerte.h"
#include "Format.h"
#include "Hourglass.h"
#include "Kontakt.h"
#include "MitglList.h"
#include "MsgBox.h"
#include "Namen.h"
#include "Screens.h"
#include "Session.h"
#include "Stunden.h"
#include "modKontakt.h"

#include <QScopeGuard>
#include <array>

using namespace Qt::StringLiterals;

namespace modMitglList {

namespace {

using Zeile = std::array<Value, 11>;

QString zweiStellen(const Value& number) { return Format(number, u"###0.00"_s); }

QString vergleich(const QString& field, const MitglList::Zeitraum& bounds) {
    QString clauses;
    for (const auto& [zeichen, wert] : bounds)
        clauses += u" AND "_s + field + u' ' + zeichen->currentText() + u' ' +
                   Format(wert->text(), u"\\#m\\/d\\/yyyy\\#"_s);
    return clauses;
}

/// Returns the clauses of the ticked filters. A date filter adds both comparisons: if the second date is
/// empty, the query is invalid and the store refuses it.
QString ErstelleFilter(const MitglList& screen) {
    const QString status = screen.optAktiv->isChecked() ? u"Mitglieder (aktiv)"_s : u"Mitglieder (passiv)"_s;
    const KeptErrorCount kept;
    const qint32 kategoNr = ErmittleKategoNr(status);
    QString filter;
    const auto wahl = [&](const QCheckBox* box, const QString& field, const QRadioButton* yes) {
        if (box->isChecked()) filter += field + (yes->isChecked() ? u"True"_s : u"False"_s);
    };
    if (screen.chkGebDat->isChecked()) filter += vergleich(u"k.GebDatum"_s, screen.gebDatum);
    if (screen.chkEintritt->isChecked()) filter += vergleich(u"m.Eintritt"_s, screen.eintritt);
    wahl(screen.chkGeschl, u" AND m.Geschlecht = "_s, screen.optMann);
    wahl(screen.chkJBeitrag, u" AND m.Bezahlt = "_s, screen.optBezahlt);
    if (screen.chkStatus->isChecked()) filter += u" AND k.KategoNr = "_s + QString::number(kategoNr);
    wahl(screen.chkBefreit, u" AND m.Befreit = "_s, screen.optBefrJa);
    // A member who has not left has the empty date, which is 0.
    if (screen.chkAusgMitgl->isChecked())
        filter += screen.optAusgJa->isChecked() ? u" AND m.Austritt <> 0"_s : u" AND m.Austritt = 0"_s;
    wahl(screen.chkJG, u" AND m.JG = "_s, screen.optJGJa);
    return filter;
}

Recordset oeffne(const MitglList& screen, const QString& what) {
    return oeffneAbfrage(u"SELECT "_s + what + u" FROM Kontakt k, Mitglied m WHERE k.KNr = m.KNr"_s +
                         ErstelleFilter(screen));
}

/// The values shared by all rows of a run.
struct Lauf {
    MitglList& screen;
    qint32 jahr = 0;
    QString pfl{};
    bool vergleicht = screen.chkArbStd->isChecked(); ///< lists only members above or below the hours owed
    bool geleistet = screen.optStdJa->isChecked();
    bool rechnet = vergleicht || screen.chkArbAnz->isChecked();
};

void lesePerson(ErrorTail& step, const std::vector<Recordset::Field>& felder, Zeile& zeile) {
    modRun::leseZellen(step, felder, zeile);
    constexpr std::size_t geburtstag = 7;
    if (zeile[geburtstag] == Value(Date{})) zeile[geburtstag] = QString();
}

void rechneStunden(ErrorTail& step, const Lauf& lauf, Zeile& zeile) {
    if (!lauf.rechnet) {
        zeile[8] = zeile[9] = zeile[10] = zweiStellen(u"0");
        return;
    }
    zeile[8] = lauf.pfl;
    step([&] {
        const qint32 knr = CLng(zeile[0]);
        const KeptErrorCount kept;
        zeile[9] = zweiStellen(ErmittleStunden(knr, lauf.jahr));
    });
    step([&] { zeile[10] = zweiStellen(BerechneSaldo(CDbl(zeile[9]), CDbl(zeile[8]))); });
}

/// Compares the hours that the row shows. A member with exactly the hours owed passes either way.
bool gehoertDazu(const Lauf& lauf, const Zeile& zeile) {
    if (!lauf.vergleicht) return true;
    const double pflicht = CDbl(session().PflichtStd);
    const double stunden = CDbl(zeile[9]);
    return lauf.geleistet ? pflicht <= stunden : stunden <= pflicht;
}

void fuelleListe(ErrorTail& step, Recordset& liste, const Lauf& lauf) {
    MitglList& screen = lauf.screen;
    std::vector<Recordset::Field> felder;
    qint64 gelesen = 0;
    if (screen.chkArbAnz->isChecked()) screen.setHourView(true);
    if (!lauf.vergleicht) {
        screen.tblMList->clearRows();
        screen.pb->show();
    }
    step([&] { liste.MoveFirst(); });
    step([&] { felder = liste.Fields(); });
    step.forEachRow(liste, [&] {
        Zeile zeile;
        lesePerson(step, felder, zeile);
        rechneStunden(step, lauf, zeile);
        if (step.test([&] { return gehoertDazu(lauf, zeile); }))
            step([&] { screen.tblMList->appendRow(zeile); });
        if (!lauf.vergleicht) screen.pb->setProgress(++gelesen);
    });
}

} // namespace

void LadeAuswahl() {
    withErrorTail(u"modMitglList"_s, u"LadeAuswahl"_s, [](ErrorTail& step) {
        MitglList& screen = the<MitglList>();
        const Hourglass hourglass(screen);
        // A guard, because the fifth error leaves the routine by an exception.
        const auto ruhe = qScopeGuard([&] { screen.pb->hide(); });
        Recordset liste, anzahl;
        step([&] {
            liste = oeffne(screen,
                           u"k.KNr, k.Nachname, k.Vorname, k.Strasse, k.PLZ, k.Ort, k.Tel1, k.GebDatum"_s);
        });
        step([&] { anzahl = oeffne(screen, u"COUNT(k.KNr)"_s); });
        const auto wert = [&] { return anzahl.Collect(u"Expr1000"_s); };
        if (step.test([&] { return wert().isNull() || CLng(wert()) == 0; })) {
            screen.lblGefDS->setText(u"0"_s);
            MsgBox(u"Keine passenden Einträge gefunden !"_s, vbInformation);
            return;
        }
        qint32 gefunden = 0;
        step([&] { gefunden = CLng(wert()); });
        screen.lblGefDS->setText(QString::number(gefunden));
        screen.pb->setMax(gefunden);
        Lauf lauf{screen};
        step([&] { lauf.jahr = CLng(screen.cboArbJahr->currentText()); });
        step([&] { lauf.pfl = zweiStellen(session().PflichtStd); });
        fuelleListe(step, liste, lauf);
        screen.lblGefDS->setText(QString::number(screen.tblMList->rowCount()));
        for (Recordset* offen : {&liste, &anzahl}) step([&] { offen->Close(); });
    });
}

bool PruefeMListEingabe() {
    const MitglList& screen = the<MitglList>();
    for (TextBox* day : {screen.txtGeb01, screen.txtGeb02, screen.txtTritt01, screen.txtTritt02})
        if (!day->text().isEmpty() && !IsDate(day->text())) return modRun::fehlerfrei(day);
    const auto& [gebAb, gebBis] = screen.gebDatum;
    const auto& [eintrittAb, eintrittBis] = screen.eintritt;
    return modRun::fehlerfrei(erstesFalsche(screen.chkGebDat, gebAb, gebBis)) &&
           modRun::fehlerfrei(erstesFalsche(screen.chkEintritt, eintrittAb, eintrittBis));
}

void LeereMListAnzeige() {
    MitglList& screen = the<MitglList>();
    // Unticking a check box also disables its controls.
    for (auto* box : screen.Frame6->findChildren<QCheckBox*>()) box->setChecked(false);
    for (QRadioButton* option : {screen.optMann, screen.optBezahlt, screen.optAktiv, screen.optBefrJa,
                                 screen.optAusgJa, screen.optJGJa, screen.optStdNein})
        option->setChecked(true);
    for (const MitglList::Zeitraum& bounds : {screen.gebDatum, screen.eintritt})
        for (const Vergleich& bound : bounds) bound.leere();
    screen.tblMList->clearRows();
    screen.lblGefDS->setText(QString());
    screen.txtInfo->setText(QString());
    screen.setHourView(false);
}

void zeigeKontakt(int row) {
    the<Kontakt>().sperre();
    modKontakt::loadKontakt(the<MitglList>().tblMList, row);
}

void mnuMitglInfo_Click() { zeigeKontakt(the<MitglList>().gridRow()); }

} // namespace modMitglList
