#include "ComboBox.h"
#include "DataTable.h"
#include "Gitter.h"
#include "Heading.h"
#include "Layout.h"
#include "MitglList.h"
#include "ProgressBar.h"
#include "Tastenfilter.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modMitglList.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <utility>

using namespace Qt::StringLiterals;

MitglList::MitglList()
    : Screen(u"MitglList"_s, u"Mitglieder - Listen"_s) {
    standForReading();
    Ueberschrift = new Heading(u"MITGLIEDER-LISTE"_s, this);
    buildToolbar();
    Frame6 = Layout::frame(u"Frame6"_s, u"Liste generieren..."_s, this);
    buildDateFilters();
    buildChoices();
    buildHours();
    buildGrid();
    buildFoot();
    layOutFilters();
    QVBoxLayout* rest = Layout::column(this, Ueberschrift, Toolbar1);
    rest->addWidget(Frame6);
    rest->addWidget(tblMList, 1);
    rest->addWidget(layOutFoot());
    connectEvents();
}

void MitglList::buildToolbar() {
    Toolbar1 = new Toolbar(this);
    Toolbar1->addKeys(
        {{u"tbSuch"_s, u"&Suchen"_s, u"Tabelle durchsuchen..."_s, u"suchen"_s, [this] { tbSuch_Click(); }},
         {u"tbAnzLoeschen"_s, u"&Anz. löschen"_s, u"Anzeige löschen"_s, u"anzeige-loeschen"_s,
          &modMitglList::LeereMListAnzeige},
         {u"tbVorschau"_s, u"&Vorschau"_s, u"Druckvorschau der Mitgliederliste"_s, u"vorschau"_s,
          [this] { drucke(u"vorschau"_s); }},
         {u"tbDruck"_s, u"Drucken"_s, u"Aktuelle Auswahl drucken..."_s, u"drucken"_s,
          [this] { drucke(u"drucken"_s); }},
         {u"tbEsc"_s, u"&Schließen"_s, u"Zurück zur Kontakt - Übersicht"_s, u"schliessen"_s,
          [this] { tbEsc_Click(); }}});
}

Vergleich MitglList::addBound(const QString& list, const QString& box, const QString& spoken) {
    constexpr int wholeDate = 10;
    const Vergleich bound = Vergleich::neu(list, box, spoken, Frame6);
    bound.wert->setMaxLength(wholeDate);
    bound.wert->setKeyFilter(&modRun::FilterDatum, Refused::WithTheWhole);
    bound.wert->setHoldsDate();
    return bound;
}

void MitglList::buildDateFilters() {
    const auto add = [this](const QString& list, ComboBox*& comparison, const QString& box, TextBox*& day,
                            const QString& spoken) {
        const Vergleich bound = addBound(list, box, spoken);
        comparison = bound.zeichen;
        day = bound.wert;
    };
    chkGebDat = Layout::checkBox(u"chkGebDat"_s, u"Geburtsdatum:"_s, Frame6);
    add(u"cboOptGeb01"_s, cboOptGeb01, u"txtGeb01"_s, txtGeb01, u"Geburtsdatum, erster Vergleich"_s);
    add(u"cboOptGeb02"_s, cboOptGeb02, u"txtGeb02"_s, txtGeb02, u"Geburtsdatum, zweiter Vergleich"_s);
    chkEintritt = Layout::checkBox(u"chkEintritt"_s, u"Eintrittsdatum:"_s, Frame6);
    add(u"cboOptTritt01"_s, cboOptTritt01, u"txtTritt01"_s, txtTritt01,
        u"Eintrittsdatum, erster Vergleich"_s);
    add(u"cboOptTritt02"_s, cboOptTritt02, u"txtTritt02"_s, txtTritt02,
        u"Eintrittsdatum, zweiter Vergleich"_s);
}

void MitglList::addOptions(const QCheckBox* spoken, QRadioButton*& first, const QString& firstName,
                           const QString& firstCaption, QRadioButton*& second, const QString& secondName,
                           const QString& secondCaption) {
    auto* pair = new QButtonGroup(this);
    const auto add = [&](const QString& name, const QString& caption) {
        auto* option = Layout::option(name, caption, Frame6);
        option->setAccessibleName(spoken->text() + u' ' + caption);
        option->setEnabled(false);
        pair->addButton(option);
        return option;
    };
    first = add(firstName, firstCaption);
    second = add(secondName, secondCaption);
    first->setChecked(true);
}

void MitglList::buildChoices() {
    chkGeschl = Layout::checkBox(u"chkGeschl"_s, u"Geschlecht:"_s, Frame6);
    addOptions(chkGeschl, optMann, u"optMann"_s, u"Mann"_s, optFrau, u"optFrau"_s, u"Frau"_s);
    chkJBeitrag = Layout::checkBox(u"chkJBeitrag"_s, u"Jahresbeitrag:"_s, Frame6);
    addOptions(chkJBeitrag, optBezahlt, u"optBezahlt"_s, u"bezahlt"_s, optNBezahlt, u"optNBezahlt"_s,
               u"n. bezahlt"_s);
    chkStatus = Layout::checkBox(u"chkStatus"_s, u"Status:"_s, Frame6);
    addOptions(chkStatus, optAktiv, u"optAktiv"_s, u"aktiv"_s, optPassiv, u"optPassiv"_s, u"passiv"_s);
    chkBefreit = Layout::checkBox(u"chkBefreit"_s, u"Befreit [Arb-Std.]:"_s, Frame6);
    addOptions(chkBefreit, optBefrJa, u"optBefrJa"_s, u"ja"_s, optBefrNein, u"optBefrNein"_s, u"nein"_s);
    chkAusgMitgl = Layout::checkBox(u"chkAusgMitgl"_s, u"ausgetr. Mitgl.:"_s, Frame6);
    addOptions(chkAusgMitgl, optAusgJa, u"optAusgJa"_s, u"ja"_s, optAusgNein, u"optAusgNein"_s, u"nein"_s);
    chkJG = Layout::checkBox(u"chkJG"_s, u"Jugendgruppe:"_s, Frame6);
    addOptions(chkJG, optJGJa, u"optJGJa"_s, u"ja"_s, optJGNein, u"optJGNein"_s, u"nein"_s);
    chkArbStd = Layout::checkBox(u"chkArbStd"_s, u"Arb.-Std geleistet:"_s, Frame6);
    addOptions(chkArbStd, optStdJa, u"optStdJa"_s, u"ja"_s, optStdNein, u"optStdNein"_s, u"nein"_s);
    optStdNein->setChecked(true);
}

void MitglList::buildHours() {
    chkArbAnz = Layout::checkBox(u"chkArbAnz"_s, u"Arb.-Std. - Liste generieren für Arb.- Jahr:"_s, Frame6);
    cboArbJahr =
        new ComboBox(u"cboArbJahr"_s, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, Frame6);
    cboArbJahr->setAccessibleName(u"Arbeitsjahr"_s);
    cboArbJahr->setEnabled(false);
}

void MitglList::layOutFilters() {
    // On the left a date filter takes four columns, each option of the filters below it two. On the right
    // each option takes one column.
    auto* screen = new QGridLayout(Frame6);
    screen->setHorizontalSpacing(Layout::gap);
    screen->setVerticalSpacing(4);
    constexpr int right = 6;
    const auto addDates = [screen](int row, QCheckBox* box, const Vergleich& first, const Vergleich& second) {
        screen->addWidget(box, row, 0);
        int column = 0;
        for (QWidget* part : {static_cast<QWidget*>(first.zeichen), static_cast<QWidget*>(first.wert),
                              static_cast<QWidget*>(second.zeichen), static_cast<QWidget*>(second.wert)})
            screen->addWidget(part, row, ++column);
    };
    const auto addLeft = [screen](int row, QCheckBox* box, QRadioButton* first, QRadioButton* second) {
        screen->addWidget(box, row, 0);
        screen->addWidget(first, row, 1, 1, 2);
        screen->addWidget(second, row, 3, 1, 2);
    };
    const auto addRight = [screen](int row, QCheckBox* box, QRadioButton* first, QRadioButton* second) {
        screen->addWidget(box, row, right);
        screen->addWidget(first, row, right + 1);
        screen->addWidget(second, row, right + 2);
    };
    addDates(0, chkGebDat, {cboOptGeb01, txtGeb01}, {cboOptGeb02, txtGeb02});
    addDates(1, chkEintritt, {cboOptTritt01, txtTritt01}, {cboOptTritt02, txtTritt02});
    addLeft(2, chkGeschl, optMann, optFrau);
    addLeft(3, chkJBeitrag, optBezahlt, optNBezahlt);
    addLeft(4, chkStatus, optAktiv, optPassiv);
    addRight(0, chkBefreit, optBefrJa, optBefrNein);
    addRight(1, chkAusgMitgl, optAusgJa, optAusgNein);
    addRight(2, chkJG, optJGJa, optJGNein);
    addRight(3, chkArbStd, optStdJa, optStdNein);
    screen->addWidget(hourLine(), 4, right, 1, 3);
    screen->setColumnMinimumWidth(right - 1, 2 * Layout::gap);
    for (const int column : {2, 4}) screen->setColumnStretch(column, 1);
    // Options are lower than lists: without a minimum height the rows would be uneven.
    for (int row = 0; row < screen->rowCount(); ++row)
        screen->setRowMinimumHeight(row, cboArbJahr->sizeHint().height());
    screen->setColumnStretch(right + 2, 1);
    Frame6->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

QWidget* MitglList::hourLine() {
    QHBoxLayout* row = Layout::line(Frame6);
    row->addWidget(chkArbAnz);
    row->addWidget(cboArbJahr);
    row->addStretch();
    return row->parentWidget();
}

void MitglList::buildGrid() {
    tblMList = new DataTable(u"tblMList"_s, this);
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
}

void MitglList::buildFoot() {
    lblAnzDS = Layout::label(u"lblAnzDS"_s, u"Gefunden:"_s, this);
    lblGefDS = new ValueLabel(u"lblGefDS"_s, this);
    lblGefDS->setAccessibleName(lblAnzDS->text());
    lblGefDS->setNumeric();
    constexpr int description = 255;
    Label1 = Layout::label(u"Label1"_s, u"Listenbeschreibung: [wird auf Liste gedruckt]"_s, this);
    txtInfo = new TextBox(u"txtInfo"_s, this);
    txtInfo->setMaxLength(description);
    txtInfo->setAccessibleName(Label1->text());
    Label1->setBuddy(txtInfo);
    pb = new ProgressBar(u"pb"_s, this);
    pb->hide();
}

QWidget* MitglList::layOutFoot() {
    QHBoxLayout* row = Layout::line(this);
    row->addWidget(Label1);
    row->addWidget(txtInfo, 1);
    constexpr int progressWidth = 160;
    pb->setMaximumWidth(progressWidth);
    row->addWidget(pb);
    row->addWidget(lblAnzDS);
    row->addWidget(lblGefDS);
    return row->parentWidget();
}

void MitglList::connectFilter(QCheckBox* box, const QVector<QWidget*>& controls) {
    on(box, &QCheckBox::toggled, [this, controls](bool ticked) {
        for (QWidget* control : controls) control->setEnabled(ticked);
        tblMList->clearRows();
    });
}

void MitglList::connectEvents() {
    connectFilter(chkGebDat, {cboOptGeb01, txtGeb01, cboOptGeb02, txtGeb02});
    connectFilter(chkEintritt, {cboOptTritt01, txtTritt01, cboOptTritt02, txtTritt02});
    connectFilter(chkGeschl, {optMann, optFrau});
    connectFilter(chkJBeitrag, {optBezahlt, optNBezahlt});
    connectFilter(chkStatus, {optAktiv, optPassiv});
    connectFilter(chkBefreit, {optBefrJa, optBefrNein});
    connectFilter(chkAusgMitgl, {optAusgJa, optAusgNein});
    connectFilter(chkJG, {optJGJa, optJGNein});
    connectFilter(chkArbStd, {optStdJa, optStdNein});
    on(chkArbAnz, &QCheckBox::toggled, [this](bool ticked) {
        tblMList->clearRows();
        cboArbJahr->setEnabled(ticked);
    });
    // The grid holds the hours of the year chosen before.
    on(cboArbJahr, &ComboBox::Click, [this] {
        if (std::exchange(m_arbJahr, cboArbJahr->currentText()) != m_arbJahr) tblMList->clearRows();
    });
    on(tblMList, &DataTable::OnGridCellDown, [this](int row, int) { tblMList_OnGridCellDown(row); });
    on(tblMList, &DataTable::OnGridCellOpen, [this](int row, int) { tblMList_OnGridCellOpen(row); });
    on(tblMList, &DataTable::OnGridCellMenu, [this] { tblMList_OnGridCellMenu(); });
    modRun::connectGridFocus(tblMList);
}
