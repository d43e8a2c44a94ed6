#include "MitglList.h"

#include "Gitter.h"
#include "Jahre.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "Rahmen.h"
#include "Screens.h"
#include "Session.h"
#include "Tastenfilter.h"
#include "modKontakt.h"
#include "modMitglList.h"

#include <QButtonGroup>
#include <QToolButton>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

MitglList::MitglList()
    : Screen(u"MitglList"_s, u"Mitglieder - Listen"_s) {
    standForReading();
    setUpGrid();
    setUpHours();
    layOutFilters();
    QVBoxLayout* rest = Layout::column(this, Ueberschrift, Toolbar1);
    rest->addWidget(Frame6);
    rest->addWidget(tblMList, 1);
    rest->addWidget(foot());
}

Toolbar* MitglList::buildToolbar() {
    return new Toolbar(this, {{u"tbSuch"_s, u"&Suchen"_s, u"Tabelle durchsuchen..."_s, u"suchen"_s,
                               [this] { tbSuch_Click(); }},
                              {u"tbAnzLoeschen"_s, u"&Anz. löschen"_s, u"Anzeige löschen"_s,
                               u"anzeige-loeschen"_s, &modMitglList::LeereMListAnzeige},
                              {u"tbVorschau"_s, u"&Vorschau"_s, u"Druckvorschau der Mitgliederliste"_s,
                               u"vorschau"_s, [this] { drucke(u"vorschau"_s); }},
                              {u"tbDruck"_s, u"Drucken"_s, u"Aktuelle Auswahl drucken..."_s, u"drucken"_s,
                               [this] { drucke(u"drucken"_s); }},
                              {u"tbEsc"_s, u"&Schließen"_s, u"Zurück zur Kontakt - Übersicht"_s,
                               u"schliessen"_s, [this] { tbEsc_Click(); }}});
}

void MitglList::layOutFilters() {
    m_filters->setVerticalSpacing(4);
    constexpr int right = 6;
    addDates(0, chkGebDat, gebDatum);
    addDates(1, chkEintritt, eintritt);
    addAnswers(2, 0, chkGeschl, optMann, optFrau);
    addAnswers(3, 0, chkJBeitrag, optBezahlt, optNBezahlt);
    addAnswers(4, 0, chkStatus, optAktiv, optPassiv);
    addAnswers(0, right, chkBefreit, optBefrJa, optBefrNein);
    addAnswers(1, right, chkAusgMitgl, optAusgJa, optAusgNein);
    addAnswers(2, right, chkJG, optJGJa, optJGNein);
    addAnswers(3, right, chkArbStd, optStdJa, optStdNein);
    optStdNein->setChecked(true);
    m_filters->addWidget(Layout::line(Frame6, {chkArbAnz, cboArbJahr}), 4, right, 1, 3);
    m_filters->setColumnMinimumWidth(right - 1, 2 * Layout::gap);
    for (const int column : {2, 4, right + 2}) m_filters->setColumnStretch(column, 1);
    // Options are lower than lists: without a minimum height the rows would be uneven.
    for (int row = 0; row < m_filters->rowCount(); ++row)
        m_filters->setRowMinimumHeight(row, cboArbJahr->sizeHint().height());
    Frame6->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void MitglList::addDates(int row, QCheckBox* box, const Zeitraum& bounds) {
    const QString filter = box->text().chopped(1);
    bounds[0].richteEin(filter + u", erster Vergleich"_s);
    bounds[1].richteEin(filter + u", zweiter Vergleich"_s);
    QVector<QWidget*> controls;
    for (const auto& [zeichen, wert] : bounds) {
        wert->setKeyFilter(&modRun::FilterDatum, Refused::WithTheWhole);
        wert->setHoldsDate();
        controls << zeichen << wert;
    }
    m_filters->addWidget(box, row, 0);
    for (int column = 0; column < controls.size(); ++column)
        m_filters->addWidget(controls[column], row, column + 1);
    connectFilter(box, controls);
}

void MitglList::addAnswers(int row, int column, QCheckBox* box, QRadioButton* answer, QRadioButton* other) {
    // On the left a date filter takes four columns, each answer of the filters below it two. On the right
    // each answer takes one column.
    const int span = column == 0 ? 2 : 1;
    m_filters->addWidget(box, row, column);
    auto* pair = new QButtonGroup(this);
    for (QRadioButton* option : {answer, other}) {
        m_filters->addWidget(option, row, option == answer ? column + 1 : column + 1 + span, 1, span);
        option->setAccessibleName(box->text() + u' ' + option->text());
        option->setEnabled(false);
        pair->addButton(option);
    }
    answer->setChecked(true);
    connectFilter(box, {answer, other});
}

void MitglList::connectFilter(QCheckBox* box, const QVector<QWidget*>& controls) {
    on(box, &QCheckBox::toggled, [this, controls](bool ticked) {
        for (QWidget* control : controls) control->setEnabled(ticked);
        tblMList->clearRows();
    });
}

void MitglList::setUpHours() {
    cboArbJahr->setAccessibleName(u"Arbeitsjahr"_s);
    cboArbJahr->setEnabled(false);
    connectFilter(chkArbAnz, {cboArbJahr});
    // The grid holds the hours of the year chosen before.
    on(cboArbJahr, &ComboBox::Click, [this] {
        if (std::exchange(m_arbJahr, cboArbJahr->currentText()) != m_arbJahr) tblMList->clearRows();
    });
}

void MitglList::setUpGrid() {
    tblMList->setColumns({{u"Mitgl.-Nr"_s, 72, true},
                          {u"Nachname"_s, 104},
                          {u"Vorname"_s, 96},
                          {u"Straße"_s, 140},
                          {.head = u"PLZ"_s, .width = 52, .fixed = true},
                          {u"Ort"_s, 104},
                          {u"Tel. [privat]"_s, 116},
                          {.head = u"Geb.-Datum"_s, .width = 92, .fixed = true},
                          {u"Pfl.-Std."_s, 96, true},
                          {u"Gel. Arb-Std."_s, 104, true},
                          {u"Soll/Haben"_s, 96, true}});
    tblMList->setSortable();
    tblMList->setEmptyHint(u"Setzen Sie oben Häkchen vor das, wonach Sie aussuchen wollen.\n"_s
                           u"Dann drücken Sie „Suchen“."_s);
    tblMList->setAccessibleName(u"Gefundene Mitglieder"_s);
    setHourView(false);
    on(tblMList, &DataTable::OnGridCellDown, [this](int row, int) {
        session().KontextZeileOK = row >= 0;
        if (row >= 0) setGridRow(row);
    });
    on(tblMList, &DataTable::OnGridCellOpen, [this](int row, int) { tblMList_OnGridCellOpen(row); });
    on(tblMList, &DataTable::OnGridCellMenu, [this] {
        if (tblMList->rowCount() >= 1 && session().KontextZeileOK) rahmen()->loadKontMenu_Mitgl();
    });
    modRun::connectGridFocus(tblMList);
}

QWidget* MitglList::foot() {
    lblGefDS->setAccessibleName(lblAnzDS->text());
    lblGefDS->setNumeric();
    txtInfo->setAccessibleName(Label1->text());
    Label1->setBuddy(txtInfo);
    pb->setMaximumWidth(160);
    pb->hide();
    return Layout::line(this, {Label1, txtInfo, pb, lblAnzDS, lblGefDS}, txtInfo);
}

void MitglList::Form_Load() {
    loadcboArbJahre(cboArbJahr);
    cboArbJahr->setListIndex(cboArbJahr->findText(QString::number(session().Startjahr)));
}

void MitglList::Form_Activate() {
    // This screen keeps its lists anyway. NachReport must not reach the next screen, which printed nothing.
    session().NachReport = false;
}

void MitglList::setHourView(bool on) {
    for (int column = 3; column <= 7; ++column) tblMList->setColumnShown(column, !on);
    for (int column = 8; column <= 10; ++column) tblMList->setColumnShown(column, on);
}

bool MitglList::Form_KeyDown(int key, Qt::KeyboardModifiers) {
    if (key != Qt::Key_Escape) return false;
    Toolbar1->key(u"tbEsc"_s)->click();
    return true;
}

void MitglList::tbSuch_Click() {
    if (!modMitglList::PruefeMListEingabe()) return;
    // The list of hours is no filter, so it needs the question as well.
    const auto filtert = [this](const QCheckBox* box) { return box != chkArbAnz && box->isChecked(); };
    if (std::ranges::none_of(Frame6->findChildren<QCheckBox*>(), filtert) &&
        !modRun::frage(u"ACHTUNG: Wirklich alle Mitglieder aus der Datenbank laden ?"_s))
        return modRun::MeldeAbgebrochen();
    tblMList->clearRows();
    lblGefDS->setText(QString());
    modMitglList::LadeAuswahl();
}

void MitglList::tbEsc_Click() {
    modMitglList::LeereMListAnzeige();
    session().SuchAufrufer = 0;
    Hide();
    rahmen()->zeigeBereich(u"Kontakte"_s);
}

void MitglList::drucke(const QString& wort) {
    const auto routine =
        chkArbAnz->isChecked() ? &modMitglList::DruckeArbListe : &modMitglList::DruckeMitglListe;
    routine(wort);
}

void MitglList::tblMList_OnGridCellOpen(int row) {
    if (!modKontakt::KontaktZugriff_Erlaubt()) {
        MsgBox(u"Sie haben keinen Zugriff auf diese Funktion !"_s, vbInformation);
        return;
    }
    modMitglList::zeigeKontakt(row);
}
