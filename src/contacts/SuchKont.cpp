#include "SuchKont.h"

#include "ComboBox.h"
#include "DataTable.h"
#include "Eingaben.h"
#include "Gitter.h"
#include "Layout.h"
#include "Namen.h"
#include "Screens.h"
#include "Session.h"
#include "Tastenfilter.h"
#include "TextBox.h"
#include "Theme.h"
#include "ValueLabel.h"
#include "modKontakt.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <map>

using namespace Qt::StringLiterals;

namespace {

std::map<qint16, Suchweg>& wege() {
    static std::map<qint16, Suchweg> byCaller;
    return byCaller;
}

const Suchweg* weg() {
    const auto found = wege().find(session().SuchAufrufer);
    return found == wege().end() ? nullptr : &found->second;
}

} // namespace

SuchKont::SuchKont()
    : Screen(u"SuchKont"_s, u"Suche Kontakt oder Mitglied..."_s) {
    build();
    auto* screen = new QGridLayout;
    screen->setHorizontalSpacing(Layout::gap);
    Layout::addField(screen, 0, Label1, txtSuch);
    Layout::addField(screen, 1, Label2, cboKatego);
    screen->addWidget(cmdSuch, 0, 2, 2, 1);
    screen->setColumnStretch(1, 1);
    auto* found = new QHBoxLayout;
    found->setSpacing(Layout::gap);
    found->addWidget(Label3);
    found->addWidget(lblGefDS);
    found->addStretch();
    QVBoxLayout* whole = Layout::column(this);
    whole->addLayout(screen);
    whole->addWidget(tblSuch, 1);
    whole->addLayout(found);
    resize(720, 440);

    on(cmdSuch, &QPushButton::clicked, [this](bool) { cmdSuch_Click(); });
    on(tblSuch, &DataTable::OnGridCellOpen,
       [this](int row, int column) { tblSuch_OnGridCellOpen(row, column); });
    modRun::connectGridFocus(tblSuch);
}

void SuchKont::build() {
    Label1 = Layout::label(u"Label1"_s, u"Suchbegriff:"_s, this);
    txtSuch = new TextBox(u"txtSuch"_s, this);
    txtSuch->setKeyFilter(&modRun::FilterSuche);
    txtSuch->setPlaceholderText(u"Anfang eines Namens; für ä, ö, ü und ß ein * wie in M*ller"_s);
    Label2 = Layout::label(u"Label2"_s, u"Kategorie:"_s, this);
    cboKatego = new ComboBox(u"cboKatego"_s, this);
    cmdSuch = Layout::button(u"cmdSuch"_s, QString(), this);
    cmdSuch->setIcon(Theme::icon(u"suchen"_s));
    cmdSuch->setIconSize(QSize(32, 32));
    cmdSuch->setToolTip(u"Suchen"_s);
    cmdSuch->setAccessibleName(u"Suchen"_s);
    cmdSuch->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    tblSuch = new DataTable(u"tblSuch"_s, this);
    tblSuch->setColumns({{u"KontaktNr"_s, 80, true},
                         {u"Kategorie"_s, 160},
                         {u"Firma"_s, 160},
                         {.head = u"Nachname"_s, .width = 140, .name = true},
                         {u"Vorname"_s, 120}});
    tblSuch->setAccessibleName(u"Gefundene Kontakte"_s);
    tblSuch->setEmptyHint(u"Schreiben Sie oben den Anfang eines Namens und drücken Sie die Eingabetaste."_s);
    Label3 = Layout::label(u"Label3"_s, u"Gefunden:"_s, this);
    lblGefDS = new ValueLabel(u"lblGefDS"_s, this);
    lblGefDS->setAccessibleName(u"Gefunden"_s);
    lblGefDS->setNumeric();
}

void SuchKont::registriere(qint16 aufrufer, const Suchweg& weg) { wege()[aufrufer] = weg; }

void SuchKont::Form_Load() {
    if (!weg()) return;
    weg()->fuelleKategorien(cboKatego);
    cboKatego->setListIndex(0);
}

void SuchKont::Form_Paint() {
    if (!Screens::editing()) txtSuch->setFocus();
}

bool SuchKont::Form_KeyDown(int key, Qt::KeyboardModifiers) {
    if (key == Qt::Key_Escape) {
        Hide();
        return true;
    }
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!enter || !(txtSuch->hasFocus() || cboKatego->hasFocus())) return false;
    cmdSuch_Click();
    return true;
}

void SuchKont::cmdSuch_Click() {
    if (!modRun::fehlerfrei(modRun::erstesLeere({txtSuch, cboKatego}))) return;
    // Compare the index: the club may have a category of its own named "Alle".
    const bool alle = weg() && weg()->ersterIstAlle && cboKatego->currentIndex() == 0;
    const qint32 kategonr = alle ? 0 : ErmittleKategoNr(cboKatego->currentText());
    modKontakt::SucheKontakt(txtSuch->text(), kategonr);
    if (tblSuch->rowCount() > 0) {
        lblGefDS->setText(QString::number(tblSuch->rowCount()));
        // The grid must have its rows before it gets the focus, so that Enter opens the first one.
        tblSuch->refresh();
        tblSuch->setFocus();
    } else {
        lblGefDS->setText(QString());
        txtSuch->setFocus();
    }
}

void SuchKont::tblSuch_OnGridCellOpen(int row, int column) {
    if (row >= 0 && weg()) weg()->treffer(*this, row, column);
}
