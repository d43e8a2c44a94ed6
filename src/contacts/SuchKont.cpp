#include "SuchKont.h"

#include "ComboBox.h"
#include "DataTable.h"
#include "Eingaben.h"
#include "Face.h"
#include "Gitter.h"
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
    : Screen(u"SuchKont"_qs, u"Suche Kontakt oder Mitglied..."_qs) {
    build();
    auto* form = new QGridLayout;
    form->setHorizontalSpacing(Face::gap);
    Face::addField(form, 0, Label1, txtSuch);
    Face::addField(form, 1, Label2, cboKatego);
    form->addWidget(cmdSuch, 0, 2, 2, 1);
    form->setColumnStretch(1, 1);
    auto* found = new QHBoxLayout;
    found->setSpacing(Face::gap);
    found->addWidget(Label3);
    found->addWidget(lblGefDS);
    found->addStretch();
    QVBoxLayout* whole = Face::column(this);
    whole->addLayout(form);
    whole->addWidget(tblSuch, 1);
    whole->addLayout(found);
    resize(720, 440);

    on(cmdSuch, &QPushButton::clicked, [this](bool) { cmdSuch_Click(); });
    on(tblSuch, &DataTable::OnGridCellOpen,
       [this](int row, int column) { tblSuch_OnGridCellOpen(row, column); });
    modRun::connectGridFocus(tblSuch);
}

void SuchKont::build() {
    Label1 = Face::label(u"Label1"_qs, u"Suchbegriff:"_qs, this);
    txtSuch = new TextBox(u"txtSuch"_qs, this);
    txtSuch->setKeyFilter(&modRun::FilterSuche);
    txtSuch->setPlaceholderText(u"Anfang eines Namens; für ä, ö, ü und ß ein * wie in M*ller"_qs);
    Label2 = Face::label(u"Label2"_qs, u"Kategorie:"_qs, this);
    cboKatego = new ComboBox(u"cboKatego"_qs, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, this);
    cmdSuch = Face::button(u"cmdSuch"_qs, QString(), this);
    cmdSuch->setIcon(Theme::icon(u"suchen"_qs));
    cmdSuch->setIconSize(QSize(32, 32));
    cmdSuch->setToolTip(u"Suchen"_qs);
    cmdSuch->setAccessibleName(u"Suchen"_qs);
    cmdSuch->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    tblSuch = new DataTable(u"tblSuch"_qs, this);
    tblSuch->setColumns({{u"KontaktNr"_qs, 80, true},
                         {u"Kategorie"_qs, 160},
                         {u"Firma"_qs, 160},
                         {.head = u"Nachname"_qs, .width = 140, .name = true},
                         {u"Vorname"_qs, 120}});
    tblSuch->setAccessibleName(u"Gefundene Kontakte"_qs);
    tblSuch->setEmptyHint(u"Schreiben Sie oben den Anfang eines Namens und drücken Sie die Eingabetaste."_qs);
    Label3 = Face::label(u"Label3"_qs, u"Gefunden:"_qs, this);
    lblGefDS = new ValueLabel(u"lblGefDS"_qs, this);
    lblGefDS->setAccessibleName(u"Gefunden"_qs);
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
    // The club may have a category of its own by this name.
    const bool alle = weg() && weg()->ersterIstAlle && cboKatego->currentIndex() == 0;
    const qint32 kategonr = alle ? 0 : ErmittleKategoNr(cboKatego->currentText());
    modKontakt::SucheKontakt(txtSuch->text(), kategonr);
    if (tblSuch->rowCount() > 0) {
        lblGefDS->setText(QString::number(tblSuch->rowCount()));
        // The rows must be there when the focus comes, so that Enter opens the first one.
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
