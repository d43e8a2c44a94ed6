#include "modMitglList.h"

#include "Conversions.h"
#include "Datenbank.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Feldwerte.h"
#include "Format.h"
#include "Hourglass.h"
#include "Kontakt.h"
#include "MitglList.h"
#include "MsgBox.h"
#include "Namen.h"
#include "Recordset.h"
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

Recordset oeffne(const QString& what) {
    const QString sql = u"SELECT "_s + what + u" FROM Kontakt k, Mitglied m WHERE k.KNr = m.KNr"_s;
    return oeffneAbfrage(ErstelleFilter(sql));
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

void meldeNichts(MitglList& screen) {
    screen.lblGefDS->setText(u"0"_s);
    MsgBox(u"Keine passenden Einträge gefunden !"_s, vbInformation);
}

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
            liste = oeffne(u"k.KNr, k.Nachname, k.Vorname, k.Strasse, k.PLZ, k.Ort, k.Tel1, k.GebDatum"_s);
        });
        step([&] { anzahl = oeffne(u"COUNT(k.KNr)"_s); });
        const auto wert = [&] { return anzahl.Collect(u"Expr1000"_s); };
        if (step.test([&] { return wert().isNull() || CLng(wert()) == 0; })) return meldeNichts(screen);
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

namespace {

QString wahrheit(const QRadioButton* option) {
    return modRun::WertAusOption(option) ? u"True"_s : u"False"_s;
}

QString vergleich(const QString& field, const Vergleich& bound) {
    const QString day = Format(bound.wert->text(), u"\\#m\\/d\\/yyyy\\#"_s);
    return u" AND "_s + field + u' ' + bound.zeichen->currentText() + u' ' + day;
}

QWidget* falschesDatum(TextBox* box) { return box->text().isEmpty() || IsDate(box->text()) ? nullptr : box; }

} // namespace

QString ErstelleFilter(const QString& sql) {
    const MitglList& screen = the<MitglList>();
    const QString status = screen.optAktiv->isChecked() ? u"Mitglieder (aktiv)"_s : u"Mitglieder (passiv)"_s;
    const KeptErrorCount kept;
    const qint32 kategoNr = ErmittleKategoNr(status);
    QString filter = sql;
    if (screen.chkGebDat->isChecked())
        filter += vergleich(u"k.GebDatum"_s, {screen.cboOptGeb01, screen.txtGeb01}) +
                  vergleich(u"k.GebDatum"_s, {screen.cboOptGeb02, screen.txtGeb02});
    if (screen.chkEintritt->isChecked())
        filter += vergleich(u"m.Eintritt"_s, {screen.cboOptTritt01, screen.txtTritt01}) +
                  vergleich(u"m.Eintritt"_s, {screen.cboOptTritt02, screen.txtTritt02});
    if (screen.chkGeschl->isChecked()) filter += u" AND m.Geschlecht = "_s + wahrheit(screen.optMann);
    if (screen.chkJBeitrag->isChecked()) filter += u" AND m.Bezahlt = "_s + wahrheit(screen.optBezahlt);
    if (screen.chkStatus->isChecked()) filter += u" AND k.KategoNr = "_s + QString::number(kategoNr);
    if (screen.chkBefreit->isChecked()) filter += u" AND m.Befreit = "_s + wahrheit(screen.optBefrJa);
    // A member who has not left has the empty date, which is 0.
    if (screen.chkAusgMitgl->isChecked())
        filter += screen.optAusgJa->isChecked() ? u" AND m.Austritt <> 0"_s : u" AND m.Austritt = 0"_s;
    if (screen.chkJG->isChecked()) filter += u" AND m.JG = "_s + wahrheit(screen.optJGJa);
    return filter;
}

bool PruefeMListEingabe() {
    const MitglList& screen = the<MitglList>();
    for (QWidget* falsch : {falschesDatum(screen.txtGeb01), falschesDatum(screen.txtGeb02),
                            falschesDatum(screen.txtTritt01), falschesDatum(screen.txtTritt02),
                            erstesFalsche(screen.chkGebDat, {screen.cboOptGeb01, screen.txtGeb01},
                                          {screen.cboOptGeb02, screen.txtGeb02}),
                            erstesFalsche(screen.chkEintritt, {screen.cboOptTritt01, screen.txtTritt01},
                                          {screen.cboOptTritt02, screen.txtTritt02})})
        if (!modRun::fehlerfrei(falsch)) return false;
    return true;
}

void LeereMListAnzeige() {
    MitglList& screen = the<MitglList>();
    // Unticking a check box also disables its controls.
    for (QCheckBox* box :
         {screen.chkGebDat, screen.chkEintritt, screen.chkGeschl, screen.chkJBeitrag, screen.chkStatus,
          screen.chkBefreit, screen.chkAusgMitgl, screen.chkJG, screen.chkArbStd, screen.chkArbAnz})
        box->setChecked(false);
    for (QRadioButton* option : {screen.optMann, screen.optBezahlt, screen.optAktiv, screen.optBefrJa,
                                 screen.optAusgJa, screen.optJGJa, screen.optStdNein})
        option->setChecked(true);
    for (const Vergleich& bound :
         {Vergleich{screen.cboOptGeb01, screen.txtGeb01}, Vergleich{screen.cboOptGeb02, screen.txtGeb02},
          Vergleich{screen.cboOptTritt01, screen.txtTritt01},
          Vergleich{screen.cboOptTritt02, screen.txtTritt02}})
        bound.leere();
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
