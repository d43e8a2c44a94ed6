#include "Fangbuch.h"

#include "Basis.h"
#include "Clock.h"
#include "Conversions.h"
#include "Erfassung.h"
#include "Gitter.h"
#include "Jahre.h"
#include "Kalendernamen.h"
#include "MsgBox.h"
#include "RuntimeError.h"
#include "Screens.h"
#include "Session.h"
#include "Tastenfilter.h"
#include "modBasis.h"
#include "modFangbuch.h"

using namespace Qt::StringLiterals;

Fangbuch::Fangbuch()
    : Screen(u"Fangbuch"_s, u"Fangbuch"_s) {
    keepRecord();
    layOutEntry();
    layOutTable();
    Layout::column(this, Ueberschrift, Toolbar1, {fraNr2, Frame1}, Frame1);
    connectEvents();
}

Toolbar* Fangbuch::buildToolbar() {
    using namespace modFangbuch;
    const Erfassung faenge = {.vollstaendig = &FangEingabeVollstaendig,
                              .speichere = &SpeicherFang,
                              .aendere = &UpdateFang,
                              .loesche = &LoescheFang,
                              .frage = u"ACHTUNG: Fangeintrag wirklich löschen ?"_s,
                              .beiNein = &FangAnzeigeLoeschen};
    const auto sichere = [=, this] {
        // The month is checked when txtMonNr loses the focus. F3 and the toolbar leave the focus there.
        txtMonNr_LostFocus();
        faenge.sichern(*this);
    };
    return new Toolbar(this, {{u"tbSpeichern"_s, u"&Speichern [ F3 ]"_s,
                               u"Speichern des Eintrages ins Fangbuch"_s, u"speichern"_s, sichere},
                              {u"tbLoeschen"_s, u"&Löschen [ F8 ]"_s, u"Löschen des Eintrages"_s,
                               u"loeschen"_s, [=, this] { faenge.entfernen(*this); }},
                              {u"tbAnzLoeschen"_s, u"&Anz. löschen [ F2 ]"_s, u"Anzeige löschen"_s,
                               u"anzeige-loeschen"_s, &FangAnzeigeLoeschen}});
}

void Fangbuch::layOutEntry() {
    for (TextBox* box : {txtAnzahl, txtGewicht, txtMonNr}) {
        box->setAlignment(Qt::AlignRight);
        box->setSelectAllOnFocus(true);
        box->setKeyFilter(&modRun::FilterZiffern);
    }
    txtMonNr->setFixedWidth(48);
    txtFangMonat->setReadOnly(true);
    txtFangMonat->setFocusPolicy(Qt::ClickFocus);
    QHBoxLayout* count = Layout::line(fraNr2);
    count->addWidget(txtAnzahl, 1);
    count->addWidget(txtGewicht, 1);
    count->addWidget(lblEinheit);

    QGridLayout* screen = Layout::form(fraNr2);
    Layout::addFields(screen, {{lblFJahrBez, cboFJahr}, {lblFArt, cboFArt}, {lblGewaesser, cboGName}});
    screen->addWidget(lblAnzGew, 3, 0);
    screen->addWidget(count->parentWidget(), 3, 1);
    screen->addWidget(lblFMonat, 4, 0);
    screen->addWidget(Layout::line(fraNr2, {txtMonNr, txtFangMonat}, txtFangMonat), 4, 1);
    constexpr int noteColumn = 3;
    screen->setColumnMinimumWidth(noteColumn - 1, 2 * Layout::gap);
    screen->addWidget(Layout::line(fraNr2, {lblFNrBez, lblFNr}, lblFNr), 0, noteColumn);
    screen->addWidget(lblNotiz, 1, noteColumn);
    screen->addWidget(txtNotiz, 2, noteColumn, 3, 1);
    // The note gets the height of the rows beside it. The frame gets no more height than it needs.
    txtNotiz->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    fraNr2->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    screen->setColumnStretch(1, 3);
    screen->setColumnStretch(noteColumn, 4);

    lblAnzGew->setBuddy(txtAnzahl);
    lblFMonat->setBuddy(txtMonNr);
    lblNotiz->setBuddy(txtNotiz);
    txtAnzahl->setAccessibleName(u"Anzahl"_s);
    txtGewicht->setAccessibleName(u"Gewicht in Gramm"_s);
    txtMonNr->setAccessibleName(u"Fangmonat"_s);
    txtFangMonat->setAccessibleName(u"Name des Fangmonats"_s);
    txtNotiz->setAccessibleName(u"Notizen"_s);
    lblFNr->setAccessibleName(u"Fang - Nr"_s);
}

void Fangbuch::layOutTable() {
    for (const QString& month : modRun::Monatsnamen()) cboSelMonat->AddItem(month);
    pb->hide();
    tblFList->setColumns({{u"FangNr"_s, 72, true},
                          {u"Fischart"_s, 200},
                          {u"Gewässer"_s, 200},
                          {u"Monat"_s, 96},
                          {u"Anzahl"_s, 72, true},
                          {u"Gew. i. Gramm"_s, 112, true}});
    tblFList->setAccessibleName(u"Fangbuchtabelle"_s);
    tblFList->setEmptyHint(
        u"In diesem Monat steht noch kein Fang.\nTragen Sie ihn oben ein und drücken Sie F3."_s);

    auto* column = new QVBoxLayout(Frame1);
    auto* selectors = new QHBoxLayout;
    column->addLayout(selectors);
    column->addWidget(tblFList, 1);
    selectors->addWidget(Label2);
    selectors->addWidget(cboSelMonat);
    selectors->addWidget(pb, 1);
    selectors->addStretch();
    Layout::addCount(selectors, Label3, lblAnzahl);
    selectors->addSpacing(Layout::gap);
    Layout::addCount(selectors, Label1, lblGesAnz);
    Label2->setBuddy(cboSelMonat);
    cboSelMonat->setAccessibleName(u"Fangbucheinträge für Monat"_s);
    lblAnzahl->setAccessibleName(u"Einträge in Tabelle"_s);
    lblGesAnz->setAccessibleName(u"Anzahl gesamt"_s);
}

void Fangbuch::connectEvents() {
    on(cboFJahr, &ComboBox::Click, [this] { Auswahl_Click(true); });
    on(cboSelMonat, &ComboBox::Click, [this] { Auswahl_Click(false); });
    on(txtMonNr, &TextBox::KeyDone, [this](int) {
        if (++m_tastenZaehler >= monthLimit) txtNotiz->setFocus();
    });
    on(txtMonNr, &TextBox::LostFocus, [this] { txtMonNr_LostFocus(); });
    on(txtNotiz, &MemoBox::LostFocus, [this] { cboFArt->setFocus(); });
    on(tblFList, &DataTable::OnGridCellOpen, [this](int row, int) { tblFList_OnGridCellOpen(row); });
    modRun::connectGridFocus(tblFList);
    modRun::leereAuswahlBeiFokus(tblFList);
}

void Fangbuch::Form_Load() {
    the<Basis>().fangbuchtabelle = tblFList;
    modBasis::loadcboFArt(cboFArt);
    modBasis::loadcboGName(cboGName);
    loadcboFJahr(cboFJahr);
    cboFJahr->setText(QString::number(session().AktJahr));
    cboSelMonat->setText(session().AktMonat);
    zeigeAnzahlen();
}

void Fangbuch::Form_Activate() {
    // Filling the lists would empty them for a catch just opened from the evaluation.
    if (isEditing()) return;
    zeigeAnzahlen();
    modBasis::loadcboFArt(cboFArt);
    modBasis::loadcboGName(cboGName);
    cboFArt->setFocus();
}

void Fangbuch::Form_Deactivate() { modFangbuch::FangAnzeigeLoeschen(); }

void Fangbuch::zeigeAnzahlen() {
    zeigeAnzahl();
    lblGesAnz->setText(modFangbuch::Ermittle_DSAnzahl());
}

bool Fangbuch::Form_KeyDown(int key, Qt::KeyboardModifiers) {
    static const QHash<int, QString> keys = {
        {Qt::Key_F2, u"tbAnzLoeschen"_s}, {Qt::Key_F3, u"tbSpeichern"_s}, {Qt::Key_F8, u"tbLoeschen"_s}};
    if (!keys.contains(key)) return false;
    Toolbar1->key(keys[key])->click();
    return true;
}

namespace {

/// The catch year of the parameters; `otherwise` if it is mistyped. An error here would end the program at
/// each choice of a month.
qint16 fangjahrDerParameter(qint16 otherwise) {
    try {
        return CInt(session().FJahr);
    } catch (const RuntimeError&) {
        return otherwise;
    }
}

} // namespace

void Fangbuch::Auswahl_Click(bool jahr) {
    Session& s = session();
    if (s.TabelleLaedt) return;
    const qint16 bisher = s.AktJahr;
    // loadTblFList() takes year and month from the session. Both are set for this call only.
    s.AktMonatNr = modRun::ErmittleMonatsNr(cboSelMonat->currentText());
    s.AktJahr = CInt(cboFJahr->currentText());
    modFangbuch::loadTblFList(pb);
    s.AktMonatNr = static_cast<qint16>(today().month());
    s.AktJahr = fangjahrDerParameter(bisher);
    zeigeAnzahl();
    if (jahr) lblGesAnz->setText(modFangbuch::Ermittle_DSAnzahl());
}

void Fangbuch::txtMonNr_LostFocus() {
    const QString text = txtMonNr->text();
    // The text of a stored catch may be no number. It counts as month 0, which is refused.
    const qint32 month = IsNumeric(text) ? CLng(text) : 0;
    if (month >= 1 && month <= 12) {
        if (text.length() == 1) txtMonNr->setText(u"0"_s + text);
        txtFangMonat->setText(modRun::ErmittleMonatsname(month));
    } else if (!text.isEmpty()) {
        MsgBox(u"ACHTUNG: Unzulässige Monatsangabe, die Eingabe wird gelöscht !"_s, vbInformation);
        txtMonNr->setText(QString());
    }
    m_tastenZaehler = 0;
}

void Fangbuch::tblFList_OnGridCellOpen(int row) {
    modFangbuch::FangAnzeigeLoeschen();
    modFangbuch::loadFang(tblFList, row);
    openRecord(lblFNr->text(), row);
}
