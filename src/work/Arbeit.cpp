#include "Arbeit.h"

#include "Conversions.h"
#include "Erfassung.h"
#include "Gitter.h"
#include "Jahre.h"
#include "Rahmen.h"
#include "RuntimeError.h"
#include "Screens.h"
#include "Session.h"
#include "SuchKont.h"
#include "Tastenfilter.h"
#include "Theme.h"
#include "modArbeit.h"
#include "modKontakt.h"

using namespace Qt::StringLiterals;

Arbeit::Arbeit()
    : Screen(u"Arbeit"_s, u"Arbeitscontrolling - Name des Mitglieds -"_s) {
    layOutMember();
    layOutEntry();
    layOutTable();
    auto* whole = new QGridLayout(Frame1);
    whole->setSpacing(Layout::gap);
    whole->addWidget(Frame3, 0, 0, 1, 2);
    whole->addWidget(Frame7, 1, 0);
    whole->addWidget(Frame2, 1, 1);
    whole->setColumnStretch(0, 2);
    whole->setColumnStretch(1, 3);
    whole->setRowStretch(1, 1);
    Layout::column(this, Ueberschrift, Toolbar1, {Frame1}, Frame1);
}

Toolbar* Arbeit::buildToolbar() {
    using namespace modArbeit;
    const Erfassung buchungen = {.vollstaendig = &PruefeArbEingabe,
                                 .speichere = &SpeicherStunden,
                                 .aendere = &UpdateStunden,
                                 .loesche = &LoescheStunden,
                                 .frage = u"ACHTUNG: Arbeitvorgang wirklich löschen ?"_s,
                                 .beiNein = &LeereArbEingabe};
    return new Toolbar(this,
                       {{u"tbBuchen"_s, u"&Buchen / Mindern"_s, u"Buchen v. Arb. - Std. oder Jahresbeitr."_s,
                         u"buchen"_s, [=, this] { buchungen.sichern(*this); }},
                        {u"tbLoeschen"_s, u"&Löschen"_s, u"Löscht den ausgewählten Arbeitsvorgang"_s,
                         u"loeschen"_s, [=, this] { buchungen.entfernen(*this); }},
                        {u"tbAnzLoeschen"_s, u"&Anz. löschen"_s, u"Anzeige löschen"_s, u"anzeige-loeschen"_s,
                         &LeereArbEingabe},
                        {u"tbVorschau"_s, u"&Vorschau"_s, u"Druckvorschau anzeigen..."_s, u"vorschau"_s,
                         [this] { drucke(u"vorschau"_s); }},
                        {u"tbDruck"_s, u"&Drucken"_s, u"Arbeitsübersicht drucken..."_s, u"drucken"_s,
                         [this] { drucke(u"drucken"_s); }}});
}

void Arbeit::layOutMember() {
    const auto setUp = [](QPushButton* button, const QString& icon, const QString& tip) {
        button->setIcon(Theme::icon(icon));
        button->setIconSize({20, 20});
        button->setToolTip(tip);
        button->setAccessibleName(tip);
    };
    setUp(cmdSuch, u"suchen"_s, u"Neues Mitglied suchen"_s);
    setUp(cmdMList, u"liste"_s, u"Zurück zur Mitgliederliste"_s);
    cmdMList->setEnabled(false);
    on(cmdSuch, &QPushButton::clicked, [this](bool) { cmdSuch_Click(); });
    on(cmdMList, &QPushButton::clicked, [this](bool) {
        Hide();
        rahmen()->zeigeMitgliederliste();
    });

    constexpr int middle = 2;
    constexpr int right = 5;
    QGridLayout* screen = Layout::form(Frame3);
    screen->addWidget(cmdSuch, 0, 0);
    screen->addWidget(cmdMList, 1, 0);
    Layout::addFields(screen, {{Label1, cboArbJahr}, {Label2, lblKNr}}, middle);
    Layout::addFields(screen, {{Label3, lblNName}, {Label4, lblVName}}, right);
    for (const int between : {middle - 1, right - 1}) screen->setColumnMinimumWidth(between, Layout::gap);
    screen->setColumnStretch(middle + 1, 1);
    screen->setColumnStretch(right + 1, 3);
    // A long name must not make the window wider.
    for (ValueLabel* name : {lblNName, lblVName})
        name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Frame3->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Arbeit::layOutEntry() {
    txtArbStd->setAlignment(Qt::AlignRight);
    txtArbStd->setKeyFilter(&modRun::FilterKomma);
    QGridLayout* screen = Layout::form(Frame7);
    Layout::addFields(screen, {{lblArbN, lblArbNr}, {lblDatum, pvDate}, {lblArbZeit, txtArbStd}});
    screen->addWidget(lblStd, 2, 2);
    screen->addWidget(lblArbNotiz, 3, 0, 1, 3);
    screen->addWidget(txtArbNotiz, 4, 0, 1, 3);
    screen->setColumnStretch(1, 1);
    screen->setRowStretch(4, 1);
    lblArbNotiz->setBuddy(txtArbNotiz);
    txtArbNotiz->setAccessibleName(u"Bemerkung, Arbeitsbeschreibung"_s);
    constexpr int noteHeight = 64;
    txtArbNotiz->setMinimumHeight(noteHeight);
}

void Arbeit::layOutTable() {
    tblArbStd->setColumns({{u"ArbNr"_s, 72, true},
                           {u"Mitgl.-Nr"_s, 80, true},
                           {u"Geleist. Arb.-Std"_s, 128, true},
                           {u"Datum"_s, 96}});
    tblArbStd->setAccessibleName(u"Arbeitsstunden des Mitglieds"_s);
    tblArbStd->setEmptyHint(u"Suchen Sie mit der Lupe ein Mitglied und buchen Sie links seine Stunden."_s);
    on(tblArbStd, &DataTable::OnGridCellOpen, [this](int row, int) { tblArbStd_OnGridCellOpen(row); });
    modRun::connectGridFocus(tblArbStd);

    QGridLayout* whole = Layout::form(Frame2);
    whole->addWidget(tblArbStd, 0, 0, 1, 4);
    whole->setRowStretch(0, 1);
    whole->setColumnStretch(0, 1);
    int row = 0;
    const auto addSum = [&](QLabel* caption, ValueLabel* sum, QLabel* unit) {
        Layout::addField(whole, ++row, caption, sum, 1);
        whole->addWidget(unit, row, 3);
        sum->setNumeric();
    };
    addSum(lblGStd, lblGesStd, Label10);
    addSum(Label6, lblPflStd, Label8);
    addSum(Label9, lblErgStd, Label5);
}

namespace {

void bieteMitglieder(ComboBox* combo) {
    combo->AddItem(u"Mitglieder (aktiv)"_s);
    combo->AddItem(u"Mitglieder (passiv)"_s);
}

void uebernehmeTreffer(SuchKont& suche, int row) {
    suche.Hide();
    modArbeit::UebernehmeKontakt(row);
}

/// Skips a statement that fails on a number missing from the screen, as happens while no member is shown.
template<typename Statement>
void soweitMitglied(Statement&& statement) {
    try {
        statement();
    } catch (const RuntimeError& error) {
        if (!error.is(RuntimeError::typesDiffer)) throw;
    }
}

} // namespace

void Arbeit::Form_Load() {
    SuchKont::registriere(1, {&bieteMitglieder, false, &uebernehmeTreffer});
    modArbeit::LeereArbEingabe();
    loadcboArbJahre(cboArbJahr);
    if (cboArbJahr->count() > 0) cboArbJahr->setText(QString::number(session().Startjahr));
    // Making this screen gives up records open on other screens, as a press in a toolbar does.
    Screens::giveUpRecords();
    // Connected only now: filling the list must not load a year.
    on(cboArbJahr, &ComboBox::Click, [this] { cboArbJahr_Click(); });
}

void Arbeit::Form_Activate() {
    if (std::exchange(m_uebergabe, false) || std::exchange(session().NachReport, false)) return;
    the<SuchKont>().ShowModal();
}

void Arbeit::Form_Deactivate() {
    if (!session().NachReport) modArbeit::LeereArbAnzeige();
    unload<SuchKont>();
}

bool Arbeit::Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) {
    if (key != Qt::Key_F || modifiers != Qt::ControlModifier) return false;
    cmdSuch_Click();
    return true;
}

void Arbeit::drucke(const QString& wort) {
    // The press gives up the open booking. If it stayed on the screen, the next save would add it again.
    modArbeit::LeereOffenen();
    modArbeit::DruckeArbListe(wort);
}

void Arbeit::cmdSuch_Click() {
    modKontakt::SuchAnzeigeLoeschen();
    the<SuchKont>().ShowModal();
}

void Arbeit::cboArbJahr_Click() {
    try {
        soweitMitglied(
            [this] { modArbeit::loadTblArbeit(CLng(lblKNr->text()), CLng(cboArbJahr->currentText())); });
        soweitMitglied([] { modArbeit::zeigeStunden(&modArbeit::loadTblArbeit); });
        soweitMitglied(&modArbeit::zeigePflichtStd);
        soweitMitglied(&modArbeit::zeigeSaldo);
    } catch (const RuntimeError&) {
        // The list stays incomplete. The next choice of a year loads it again.
    }
}

void Arbeit::tblArbStd_OnGridCellOpen(int row) {
    modArbeit::LeereArbEingabe();
    modArbeit::loadArbeitsVorgang(row);
    openRecord(lblArbNr->text(), row);
    pvDate->setFocus();
}
