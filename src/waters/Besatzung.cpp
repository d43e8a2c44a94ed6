#include "Besatzung.h"

#include "Clock.h"
#include "Conversions.h"
#include "Erfassung.h"
#include "ExcelAusgabe.h"
#include "Gitter.h"
#include "Jahre.h"
#include "Session.h"
#include "Tastenfilter.h"
#include "modBasis.h"
#include "modBesatzList.h"

using namespace Qt::StringLiterals;

Besatzung::Besatzung()
    : Screen(u"Besatzung"_s, u"Besatz - Plan"_s) {
    keepRecord();
    layOutEntry();
    setUpGrid();
    QHBoxLayout* foot = Layout::line(this);
    foot->addStretch();
    Layout::addCount(foot, Label8, lblAnzahl);
    Layout::column(this, Ueberschrift, Toolbar1, {Frame1, tblBList, foot->parentWidget()}, tblBList);
    on(cboBJahr, &ComboBox::Click, [this] { cboBJahr_Click(); });
}

Toolbar* Besatzung::buildToolbar() {
    using namespace modBesatzList;
    const Erfassung plan = {.vollstaendig = &BesatzEingabeVollstaendig,
                            .speichere = &SpeicherEintrag,
                            .aendere = &UpdateEintrag,
                            .loesche = &LoescheEintrag,
                            .frage = u"ACHTUNG: Besatzungseintrag wirklich löschen ?"_s,
                            .beiNein = &BesatzAnzeigeLoeschen};
    // The tool tip of tbExcel names BLIST.csv, but the file is BPLAN.csv. Users know the text, so keep it.
    return new Toolbar(this, {{u"tbSpeichern"_s, u"Speichern"_s, u"Eintrag speichern"_s, u"speichern"_s,
                               [=, this] { plan.sichern(*this); }},
                              {u"tbLoeschen"_s, u"Löschen"_s, u"Eintrag löschen"_s, u"loeschen"_s,
                               [=, this] { plan.entfernen(*this); }},
                              {u"tbAnzLoeschen"_s, u"Anz. löschen"_s, u"Anzeige löschen"_s,
                               u"anzeige-loeschen"_s, &BesatzAnzeigeLoeschen},
                              {u"tbExcel"_s, u"&Excel"_s, u"Excel - Datei - BLIST.csv - erzeugen..."_s,
                               u"excel"_s, [this] { tbExcel_Click(); }},
                              {u"tbVorschau"_s, u"&Druck - Vorsch."_s, u"Druckvorschau des Besatzungsplan"_s,
                               u"vorschau"_s, [this] { drucke(u"vorschau"_s); }},
                              {u"tbDruck"_s, u"Drucken"_s, u"Aktuelle Auswahl drucken..."_s, u"drucken"_s,
                               [this] { drucke(u"drucken"_s); }}});
}

void Besatzung::layOutEntry() {
    for (ComboBox* list : {cboBJahr, cboFArt, cboGName}) {
        constexpr int shortest = 16;
        // A long name must not take the space of the boxes at the right.
        list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        list->setMinimumContentsLength(shortest);
    }
    constexpr int right = 3;
    QGridLayout* screen = Layout::form(Frame1);
    Layout::addFields(screen, {{Label1, cboBJahr}, {Label3, cboFArt}, {Label4, cboGName}});
    Layout::addFields(screen, {{Label2, lblBNr}, {Label5, txtZeit}, {Label6, txtMenge}}, right);
    screen->addWidget(Label7, 2, right + 2);
    screen->setColumnMinimumWidth(right - 1, 2 * Layout::gap);
    for (const int column : {1, right + 1}) screen->setColumnStretch(column, 1);
    txtMenge->setAlignment(Qt::AlignRight);
    txtMenge->setKeyFilter(&modRun::FilterKomma);
    txtMenge->setAccessibleName(u"Menge in Kilogramm"_s);
    Frame1->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Besatzung::setUpGrid() {
    tblBList->setColumns({{u"Besatz.-Nr"_s, 88, true},
                          {u"Fischart"_s, 176},
                          {u"Gewässer"_s, 176},
                          {u"Zeitpkt."_s, 160},
                          {u"Menge i. Kg"_s, 104, true}});
    tblBList->setAccessibleName(u"Besatz - Plan"_s);
    tblBList->setEmptyHint(u"Für dieses Jahr steht noch kein Besatz.\n"_s
                           u"Tragen Sie ihn oben ein und drücken Sie „Speichern“."_s);
    on(tblBList, &DataTable::OnGridCellOpen, [this](int row, int) { tblBList_OnGridCellOpen(row); });
    modRun::connectGridFocus(tblBList);
    modRun::leereAuswahlBeiFokus(tblBList);
}

void Besatzung::Form_Load() {
    modBasis::loadcboFArt(cboFArt);
    modBasis::loadcboGName(cboGName);
}

void Besatzung::Form_Activate() {
    // After a report the chosen year and the typed entry must stay.
    if (std::exchange(session().NachReport, false)) return;
    if (isEditing()) return;
    modBasis::loadcboFArt(cboFArt);
    modBasis::loadcboGName(cboGName);
    loadcboFJahr(cboBJahr);
    // The plan is loaded also if the year is chosen already.
    const int before = cboBJahr->currentIndex();
    cboBJahr->setText(QString::number(session().AktJahr));
    if (cboBJahr->currentIndex() == before) cboBJahr_Click();
    zeigeAnzahl();
}

void Besatzung::Form_Deactivate() {
    if (!session().NachReport) modBesatzList::BesatzAnzeigeLoeschen();
}

void Besatzung::cboBJahr_Click() {
    Session& s = session();
    if (s.TabelleLaedt) return;
    // loadTblBList reads the year from the session: set it for the call only.
    s.AktJahr = CInt(cboBJahr->currentText());
    modBesatzList::loadTblBList();
    s.AktJahr = static_cast<qint16>(today().year());
    zeigeAnzahl();
}

/// Empties the entry fields if a stocking is open. Every press in the toolbar ends EDIT, so its values would
/// be saved as a new stocking afterwards. Values of a new stocking stay.
void Besatzung::leereOffenen() {
    if (!lblBNr->text().isEmpty()) modBesatzList::BesatzAnzeigeLoeschen();
}

void Besatzung::tbExcel_Click() {
    leereOffenen();
    erzeugeAufWunsch(*tblBList, u"BPLAN.csv"_s, u"in der Tabelle angezeigten Daten"_s,
                     &modBesatzList::ErzeugeBPlanDatei);
}

void Besatzung::drucke(const QString& wort) {
    leereOffenen();
    modBesatzList::DruckeBPlanListe(wort);
}

void Besatzung::tblBList_OnGridCellOpen(int row) {
    modBesatzList::BesatzAnzeigeLoeschen();
    modBesatzList::loadEintrag(tblBList, row);
    openRecord(lblBNr->text(), row);
    cboFArt->setFocus();
}
