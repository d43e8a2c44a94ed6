#include "ComboBox.h"
#include "DataTable.h"
#include "Face.h"
#include "Gitter.h"
#include "Heading.h"
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

MitglList::MitglList()
    : Screen(u"MitglList"_qs, u"Mitglieder - Listen"_qs) {
    standForReading();
    Ueberschrift = new Heading(u"MITGLIEDER-LISTE"_qs, this);
    buildToolbar();
    Frame6 = Face::frame(u"Frame6"_qs, u"Liste generieren..."_qs, this);
    buildDateFilters();
    buildChoices();
    buildHours();
    buildGrid();
    buildFoot();
    layOutFilters();
    QVBoxLayout* rest = Face::column(this, Ueberschrift, Toolbar1);
    rest->addWidget(Frame6);
    rest->addWidget(tblMList, 1);
    rest->addWidget(layOutFoot());
    connectEvents();
}

void MitglList::buildToolbar() {
    Toolbar1 = new Toolbar(this);
    Toolbar1->addKeys({{u"tbSuch"_qs, u"&Suchen"_qs, u"Tabelle durchsuchen..."_qs, u"suchen"_qs,
                        [this] { tbSuch_Click(); }},
                       {u"tbAnzLoeschen"_qs, u"&Anz. löschen"_qs, u"Anzeige löschen"_qs,
                        u"anzeige-loeschen"_qs, &modMitglList::LeereMListAnzeige},
                       {u"tbVorschau"_qs, u"&Vorschau"_qs, u"Druckvorschau der Mitgliederliste"_qs,
                        u"vorschau"_qs, [this] { drucke(u"vorschau"_qs); }},
                       {u"tbDruck"_qs, u"Drucken"_qs, u"Aktuelle Auswahl drucken..."_qs, u"drucken"_qs,
                        [this] { drucke(u"drucken"_qs); }},
                       {u"tbEsc"_qs, u"&Schließen"_qs, u"Zurück zur Kontakt - Übersicht"_qs, u"schliessen"_qs,
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
    chkGebDat = Face::checkBox(u"chkGebDat"_qs, u"Geburtsdatum:"_qs, Frame6);
    add(u"cboOptGeb01"_qs, cboOptGeb01, u"txtGeb01"_qs, txtGeb01, u"Geburtsdatum, erster Vergleich"_qs);
    add(u"cboOptGeb02"_qs, cboOptGeb02, u"txtGeb02"_qs, txtGeb02, u"Geburtsdatum, zweiter Vergleich"_qs);
    chkEintritt = Face::checkBox(u"chkEintritt"_qs, u"Eintrittsdatum:"_qs, Frame6);
    add(u"cboOptTritt01"_qs, cboOptTritt01, u"txtTritt01"_qs, txtTritt01,
        u"Eintrittsdatum, erster Vergleich"_qs);
    add(u"cboOptTritt02"_qs, cboOptTritt02, u"txtTritt02"_qs, txtTritt02,
        u"Eintrittsdatum, zweiter Vergleich"_qs);
}

void MitglList::addOptions(const QCheckBox* spoken, QRadioButton*& first, const QString& firstName,
                           const QString& firstCaption, QRadioButton*& second, const QString& secondName,
                           const QString& secondCaption) {
    auto* pair = new QButtonGroup(this);
    const auto add = [&](const QString& name, const QString& caption) {
        auto* option = Face::option(name, caption, Frame6);
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
    chkGeschl = Face::checkBox(u"chkGeschl"_qs, u"Geschlecht:"_qs, Frame6);
    addOptions(chkGeschl, optMann, u"optMann"_qs, u"Mann"_qs, optFrau, u"optFrau"_qs, u"Frau"_qs);
    chkJBeitrag = Face::checkBox(u"chkJBeitrag"_qs, u"Jahresbeitrag:"_qs, Frame6);
    addOptions(chkJBeitrag, optBezahlt, u"optBezahlt"_qs, u"bezahlt"_qs, optNBezahlt, u"optNBezahlt"_qs,
               u"n. bezahlt"_qs);
    chkStatus = Face::checkBox(u"chkStatus"_qs, u"Status:"_qs, Frame6);
    addOptions(chkStatus, optAktiv, u"optAktiv"_qs, u"aktiv"_qs, optPassiv, u"optPassiv"_qs, u"passiv"_qs);
    chkBefreit = Face::checkBox(u"chkBefreit"_qs, u"Befreit [Arb-Std.]:"_qs, Frame6);
    addOptions(chkBefreit, optBefrJa, u"optBefrJa"_qs, u"ja"_qs, optBefrNein, u"optBefrNein"_qs, u"nein"_qs);
    chkAusgMitgl = Face::checkBox(u"chkAusgMitgl"_qs, u"ausgetr. Mitgl.:"_qs, Frame6);
    addOptions(chkAusgMitgl, optAusgJa, u"optAusgJa"_qs, u"ja"_qs, optAusgNein, u"optAusgNein"_qs,
               u"nein"_qs);
    chkJG = Face::checkBox(u"chkJG"_qs, u"Jugendgruppe:"_qs, Frame6);
    addOptions(chkJG, optJGJa, u"optJGJa"_qs, u"ja"_qs, optJGNein, u"optJGNein"_qs, u"nein"_qs);
    chkArbStd = Face::checkBox(u"chkArbStd"_qs, u"Arb.-Std geleistet:"_qs, Frame6);
    addOptions(chkArbStd, optStdJa, u"optStdJa"_qs, u"ja"_qs, optStdNein, u"optStdNein"_qs, u"nein"_qs);
    optStdNein->setChecked(true);
}

void MitglList::buildHours() {
    chkArbAnz = Face::checkBox(u"chkArbAnz"_qs, u"Arb.-Std. - Liste generieren für Arb.- Jahr:"_qs, Frame6);
    cboArbJahr =
        new ComboBox(u"cboArbJahr"_qs, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, Frame6);
    cboArbJahr->setAccessibleName(u"Arbeitsjahr"_qs);
    cboArbJahr->setEnabled(false);
}

void MitglList::layOutFilters() {
    // A date filter takes four columns; the two options of another one stand below its halves. In the right
    // half of the frame there are only options.
    auto* form = new QGridLayout(Frame6);
    form->setHorizontalSpacing(Face::gap);
    form->setVerticalSpacing(4);
    constexpr int right = 6;
    const auto addDates = [form](int row, QCheckBox* box, const Vergleich& first, const Vergleich& second) {
        form->addWidget(box, row, 0);
        int column = 0;
        for (QWidget* part : {static_cast<QWidget*>(first.zeichen), static_cast<QWidget*>(first.wert),
                              static_cast<QWidget*>(second.zeichen), static_cast<QWidget*>(second.wert)})
            form->addWidget(part, row, ++column);
    };
    const auto addLeft = [form](int row, QCheckBox* box, QRadioButton* first, QRadioButton* second) {
        form->addWidget(box, row, 0);
        form->addWidget(first, row, 1, 1, 2);
        form->addWidget(second, row, 3, 1, 2);
    };
    const auto addRight = [form](int row, QCheckBox* box, QRadioButton* first, QRadioButton* second) {
        form->addWidget(box, row, right);
        form->addWidget(first, row, right + 1);
        form->addWidget(second, row, right + 2);
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
    form->addWidget(hourLine(), 4, right, 1, 3);
    form->setColumnMinimumWidth(right - 1, 2 * Face::gap);
    for (const int column : {2, 4}) form->setColumnStretch(column, 1);
    // Options are lower than lists and would make uneven lines.
    for (int row = 0; row < form->rowCount(); ++row)
        form->setRowMinimumHeight(row, cboArbJahr->sizeHint().height());
    form->setColumnStretch(right + 2, 1);
    Frame6->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

QWidget* MitglList::hourLine() {
    QHBoxLayout* row = Face::line(Frame6);
    row->addWidget(chkArbAnz);
    row->addWidget(cboArbJahr);
    row->addStretch();
    return row->parentWidget();
}

void MitglList::buildGrid() {
    tblMList = new DataTable(u"tblMList"_qs, this);
    tblMList->setColumns({{u"Mitgl.-Nr"_qs, 72, true},
                          {u"Nachname"_qs, 104},
                          {u"Vorname"_qs, 96},
                          {u"Straße"_qs, 140},
                          {.head = u"PLZ"_qs, .width = 52, .fixed = true},
                          {u"Ort"_qs, 104},
                          {u"Tel. [privat]"_qs, 116},
                          {.head = u"Geb.-Datum"_qs, .width = 92, .fixed = true},
                          {u"Pfl.-Std."_qs, 96, true},
                          {u"Gel. Arb-Std."_qs, 104, true},
                          {u"Soll/Haben"_qs, 96, true}});
    tblMList->setSortable();
    tblMList->setEmptyHint(u"Setzen Sie oben Häkchen vor das, wonach Sie aussuchen wollen.\n"_qs
                           u"Dann drücken Sie „Suchen“."_qs);
    tblMList->setAccessibleName(u"Gefundene Mitglieder"_qs);
    setHourView(false);
}

void MitglList::buildFoot() {
    lblAnzDS = Face::label(u"lblAnzDS"_qs, u"Gefunden:"_qs, this);
    lblGefDS = new ValueLabel(u"lblGefDS"_qs, this);
    lblGefDS->setAccessibleName(lblAnzDS->text());
    lblGefDS->setNumeric();
    constexpr int description = 255;
    Label1 = Face::label(u"Label1"_qs, u"Listenbeschreibung: [wird auf Liste gedruckt]"_qs, this);
    txtInfo = new TextBox(u"txtInfo"_qs, this);
    txtInfo->setMaxLength(description);
    txtInfo->setAccessibleName(Label1->text());
    Label1->setBuddy(txtInfo);
    pb = new ProgressBar(u"pb"_qs, this);
    pb->hide();
}

QWidget* MitglList::layOutFoot() {
    QHBoxLayout* row = Face::line(this);
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
    // What stands there are the hours of another year.
    on(cboArbJahr, &ComboBox::Click, [this] {
        if (std::exchange(m_arbJahr, cboArbJahr->currentText()) != m_arbJahr) tblMList->clearRows();
    });
    on(tblMList, &DataTable::OnGridCellDown, [this](int row, int) { tblMList_OnGridCellDown(row); });
    on(tblMList, &DataTable::OnGridCellOpen, [this](int row, int) { tblMList_OnGridCellOpen(row); });
    on(tblMList, &DataTable::OnGridCellMenu, [this] { tblMList_OnGridCellMenu(); });
    modRun::connectGridFocus(tblMList);
}
