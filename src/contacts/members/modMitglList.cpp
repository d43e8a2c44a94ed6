#include "modMitglList.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Datenbank.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Feldwerte.h"
#include "Format.h"
#include "Hourglass.h"
#include "MitglList.h"
#include "MsgBox.h"
#include "Namen.h"
#include "ProgressBar.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "Stunden.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "modKontakt.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QScopeGuard>
#include <array>

namespace modMitglList {

namespace {

using Zeile = std::array<Value, 11>;

QString zweiStellen(const Value& number) { return Format(number, u"###0.00"_qs); }

Recordset oeffne(const QString& what) {
    const QString sql = u"SELECT "_qs + what + u" FROM Kontakt k, Mitglied m WHERE k.KNr = m.KNr"_qs;
    return oeffneAbfrage(ErstelleFilter(sql));
}

/// What is the same for all rows of a run.
struct Lauf {
    MitglList& form;
    qint32 jahr = 0;
    QString pfl{};
    bool vergleicht = form.chkArbStd->isChecked(); ///< only those above, or those below, the hours owed
    bool geleistet = form.optStdJa->isChecked();
    bool rechnet = vergleicht || form.chkArbAnz->isChecked();
};

void meldeNichts(MitglList& form) {
    form.lblGefDS->setText(u"0"_qs);
    MsgBox(u"Keine passenden Einträge gefunden !"_qs, vbInformation);
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

/// Compares what the row shows. Exactly the hours owed belong to both answers.
bool gehoertDazu(const Lauf& lauf, const Zeile& zeile) {
    if (!lauf.vergleicht) return true;
    const double pflicht = CDbl(session().PflichtStd);
    const double stunden = CDbl(zeile[9]);
    return lauf.geleistet ? pflicht <= stunden : stunden <= pflicht;
}

void fuelleListe(ErrorTail& step, Recordset& liste, const Lauf& lauf) {
    MitglList& form = lauf.form;
    std::vector<Recordset::Field> felder;
    qint64 gelesen = 0;
    if (form.chkArbAnz->isChecked()) form.setHourView(true);
    if (!lauf.vergleicht) {
        form.tblMList->clearRows();
        form.pb->show();
    }
    step([&] { liste.MoveFirst(); });
    step([&] { felder = liste.Fields(); });
    step.forEachRow(liste, [&] {
        Zeile zeile;
        lesePerson(step, felder, zeile);
        rechneStunden(step, lauf, zeile);
        if (step.test([&] { return gehoertDazu(lauf, zeile); }))
            step([&] { form.tblMList->appendRow(zeile); });
        if (!lauf.vergleicht) form.pb->setProgress(++gelesen);
    });
}

} // namespace

void LadeAuswahl() {
    withErrorTail(u"modMitglList"_qs, u"LadeAuswahl"_qs, [](ErrorTail& step) {
        MitglList& form = screen<MitglList>();
        const Hourglass hourglass(form);
        // Also where a fifth error ends it.
        const auto ruhe = qScopeGuard([&] { form.pb->hide(); });
        Recordset liste, anzahl;
        step([&] {
            liste = oeffne(u"k.KNr, k.Nachname, k.Vorname, k.Strasse, k.PLZ, k.Ort, k.Tel1, k.GebDatum"_qs);
        });
        step([&] { anzahl = oeffne(u"COUNT(k.KNr)"_qs); });
        const auto wert = [&] { return anzahl.Collect(u"Expr1000"_qs); };
        if (step.test([&] { return wert().isNull() || CLng(wert()) == 0; })) return meldeNichts(form);
        qint32 gefunden = 0;
        step([&] { gefunden = CLng(wert()); });
        form.lblGefDS->setText(QString::number(gefunden));
        form.pb->setMax(gefunden);
        Lauf lauf{form};
        step([&] { lauf.jahr = CLng(form.cboArbJahr->currentText()); });
        step([&] { lauf.pfl = zweiStellen(session().PflichtStd); });
        fuelleListe(step, liste, lauf);
        form.lblGefDS->setText(QString::number(form.tblMList->rowCount()));
        for (Recordset* offen : {&liste, &anzahl}) step([&] { offen->Close(); });
    });
}

namespace {

QString wahrheit(const QRadioButton* option) {
    return modRun::WertAusOption(option) ? u"True"_qs : u"False"_qs;
}

QString vergleich(const QString& field, const Vergleich& bound) {
    const QString day = Format(bound.wert->text(), u"\\#m\\/d\\/yyyy\\#"_qs);
    return u" AND "_qs + field + u' ' + bound.zeichen->currentText() + u' ' + day;
}

QWidget* falschesDatum(TextBox* box) { return box->text().isEmpty() || IsDate(box->text()) ? nullptr : box; }

} // namespace

QString ErstelleFilter(const QString& sql) {
    const MitglList& form = screen<MitglList>();
    const QString status = form.optAktiv->isChecked() ? u"Mitglieder (aktiv)"_qs : u"Mitglieder (passiv)"_qs;
    const KeptErrorCount kept;
    const qint32 kategoNr = ErmittleKategoNr(status);
    QString filter = sql;
    if (form.chkGebDat->isChecked())
        filter += vergleich(u"k.GebDatum"_qs, {form.cboOptGeb01, form.txtGeb01}) +
                  vergleich(u"k.GebDatum"_qs, {form.cboOptGeb02, form.txtGeb02});
    if (form.chkEintritt->isChecked())
        filter += vergleich(u"m.Eintritt"_qs, {form.cboOptTritt01, form.txtTritt01}) +
                  vergleich(u"m.Eintritt"_qs, {form.cboOptTritt02, form.txtTritt02});
    if (form.chkGeschl->isChecked()) filter += u" AND m.Geschlecht = "_qs + wahrheit(form.optMann);
    if (form.chkJBeitrag->isChecked()) filter += u" AND m.Bezahlt = "_qs + wahrheit(form.optBezahlt);
    if (form.chkStatus->isChecked()) filter += u" AND k.KategoNr = "_qs + QString::number(kategoNr);
    if (form.chkBefreit->isChecked()) filter += u" AND m.Befreit = "_qs + wahrheit(form.optBefrJa);
    // Who has not left has the empty date.
    if (form.chkAusgMitgl->isChecked())
        filter += form.optAusgJa->isChecked() ? u" AND m.Austritt <> 0"_qs : u" AND m.Austritt = 0"_qs;
    if (form.chkJG->isChecked()) filter += u" AND m.JG = "_qs + wahrheit(form.optJGJa);
    return filter;
}

bool PruefeMListEingabe() {
    const MitglList& form = screen<MitglList>();
    for (QWidget* falsch :
         {falschesDatum(form.txtGeb01), falschesDatum(form.txtGeb02), falschesDatum(form.txtTritt01),
          falschesDatum(form.txtTritt02),
          erstesFalsche(form.chkGebDat, {form.cboOptGeb01, form.txtGeb01}, {form.cboOptGeb02, form.txtGeb02}),
          erstesFalsche(form.chkEintritt, {form.cboOptTritt01, form.txtTritt01},
                        {form.cboOptTritt02, form.txtTritt02})})
        if (!modRun::fehlerfrei(falsch)) return false;
    return true;
}

void LeereMListAnzeige() {
    MitglList& form = screen<MitglList>();
    // A check box that goes off disables what belongs to it.
    for (QCheckBox* box : {form.chkGebDat, form.chkEintritt, form.chkGeschl, form.chkJBeitrag, form.chkStatus,
                           form.chkBefreit, form.chkAusgMitgl, form.chkJG, form.chkArbStd, form.chkArbAnz})
        box->setChecked(false);
    for (QRadioButton* option : {form.optMann, form.optBezahlt, form.optAktiv, form.optBefrJa, form.optAusgJa,
                                 form.optJGJa, form.optStdNein})
        option->setChecked(true);
    for (const Vergleich& bound :
         {Vergleich{form.cboOptGeb01, form.txtGeb01}, Vergleich{form.cboOptGeb02, form.txtGeb02},
          Vergleich{form.cboOptTritt01, form.txtTritt01}, Vergleich{form.cboOptTritt02, form.txtTritt02}})
        bound.leere();
    form.tblMList->clearRows();
    form.lblGefDS->setText(QString());
    form.txtInfo->setText(QString());
    form.setHourView(false);
}

void zeigeKontakt(int row) {
    modKontakt::SetzeKontaktToolbar(0);
    modKontakt::loadKontakt(screen<MitglList>().tblMList, row, 0);
    modKontakt::SetzeKontaktToolbar(1);
}

void mnuMitglInfo_Click() { zeigeKontakt(screen<MitglList>().gridRow()); }

} // namespace modMitglList
