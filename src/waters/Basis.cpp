#include "Basis.h"

#include "DataTable.h"
#include "Face.h"
#include "Gitter.h"
#include "Heading.h"
#include "MemoBox.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modBasis.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QTabWidget>

namespace {

constexpr int nameLimit = 80;
constexpr int fishPage = 0;

/// The parts of a page, which are laid out alike for fish and waters.
struct Page {
    QGroupBox* frame;
    QLabel* numberLabel;
    ValueLabel* number;
    QLabel* nameLabel;
    TextBox* name;
    QLabel* noteLabel;
    MemoBox* note;
    QLabel* gridLabel;
    DataTable* grid;
    QLabel* countLabel;
    ValueLabel* count;
};

void layOut(const Page& page) {
    auto* form = new QGridLayout;
    Face::addField(form, 0, page.numberLabel, page.number);
    Face::addField(form, 1, page.nameLabel, page.name);
    Face::addField(form, 2, page.noteLabel, page.note);
    form->setAlignment(page.noteLabel, Qt::AlignTop);
    form->setColumnStretch(1, 1);
    page.note->setMaximumHeight(88);

    auto* head = new QHBoxLayout;
    head->addWidget(page.gridLabel);
    head->addStretch();
    head->addWidget(page.countLabel);
    head->addWidget(page.count);
    page.grid->setAccessibleName(page.gridLabel->text());
    page.grid->setEmptyHint(u"Hier steht noch nichts.\n"_qs
                            u"Schreiben Sie oben einen Namen und drücken Sie „Speichern“."_qs);
    page.count->setAccessibleName(page.countLabel->text());
    page.count->setNumeric();

    auto* column = new QVBoxLayout(page.frame);
    column->setSpacing(Face::gap);
    column->addLayout(form);
    column->addLayout(head);
    column->addWidget(page.grid, 1);
}

QWidget* asTab(QGroupBox* frame) {
    auto* tab = new QWidget;
    auto* column = new QVBoxLayout(tab);
    column->setContentsMargins(Face::gap, Face::gap, Face::gap, Face::gap);
    column->addWidget(frame);
    return tab;
}

} // namespace

Basis::Basis()
    : Screen(u"Basis"_qs, u"Basisdaten"_qs) {
    keepRecord();
    Ueberschrift = new Heading(u"BASISDATEN"_qs, this);
    buildToolbar();
    buildFishPage();
    buildWaterPage();
    TabBasis = new QTabWidget(this);
    TabBasis->setObjectName(u"TabBasis"_qs);
    TabBasis->addTab(asTab(Frame1), u"Fischarten"_qs);
    TabBasis->addTab(asTab(Frame2), u"Gewässer"_qs);
    Face::column(this, Ueberschrift, Toolbar1)->addWidget(TabBasis, 1);

    on(tblFBasis, &DataTable::OnGridCellOpen,
       [this](int row, int column) { tblFBasis_OnGridCellOpen(row, column); });
    on(tblGBasis, &DataTable::OnGridCellOpen,
       [this](int row, int column) { tblGBasis_OnGridCellOpen(row, column); });
    modRun::connectGridFocus(tblFBasis);
    modRun::connectGridFocus(tblGBasis);
}

void Basis::buildToolbar() {
    // The page in front decides at the moment of the press.
    const auto erfassung = [this] {
        return TabBasis->currentIndex() == fishPage ? modBasis::fischErfassung()
                                                    : modBasis::gewaesserErfassung();
    };
    Toolbar1 = new Toolbar(this);
    Toolbar1->addKeys({{u"tbSpeichern"_qs, u"&Speichern "_qs, u"Speichern"_qs, u"speichern"_qs,
                        [=, this] { erfassung().sichern(*this); }},
                       {u"tbLoeschen"_qs, u"&Löschen "_qs, u"Löschen"_qs, u"loeschen"_qs,
                        [=, this] { erfassung().entfernen(*this); }},
                       {u"tbAnzLoeschen"_qs, u"&Anz. löschen"_qs, u"Anzeige löschen"_qs,
                        u"anzeige-loeschen"_qs, &modBasis::BasisAnzeigeLoeschen}});
}

void Basis::buildFishPage() {
    Frame1 = Face::frame(u"Frame1"_qs, u"Fische"_qs, nullptr);
    lblFischNr = Face::label(u"lblFischNr"_qs, u"Fisch-Nr:"_qs, Frame1);
    lblFNr = new ValueLabel(u"lblFNr"_qs, Frame1);
    lblFischArt = Face::label(u"lblFischArt"_qs, u"Fischart:"_qs, Frame1);
    txtFArt = new TextBox(u"txtFArt"_qs, Frame1);
    txtFArt->setMaxLength(nameLimit);
    lblFNotiz = Face::label(u"lblFNotiz"_qs, u"Notizen..."_qs, Frame1);
    txtFNotiz = new MemoBox(u"txtFNotiz"_qs, Frame1);
    lblÜberschr = Face::label(u"lblÜberschr"_qs, u"Alle aufgenommen Fischarten..."_qs, Frame1);
    tblFBasis = new DataTable(u"tblFBasis"_qs, Frame1);
    tblFBasis->setColumns({{u"Fisch-Nr."_qs, 88, true}, {u"Fischart"_qs, 320}});
    lblFAnz = Face::label(u"lblFAnz"_qs, u"Anzahl:"_qs, Frame1);
    lblFAnzahl = new ValueLabel(u"lblFAnzahl"_qs, Frame1);
    layOut({Frame1, lblFischNr, lblFNr, lblFischArt, txtFArt, lblFNotiz, txtFNotiz, lblÜberschr, tblFBasis,
            lblFAnz, lblFAnzahl});
}

void Basis::buildWaterPage() {
    Frame2 = Face::frame(u"Frame2"_qs, u"Gewässer"_qs, nullptr);
    lblGewNr = Face::label(u"lblGewNr"_qs, u"Gew.- Nr:"_qs, Frame2);
    lblGNr = new ValueLabel(u"lblGNr"_qs, Frame2);
    lblGewBez = Face::label(u"lblGewBez"_qs, u"Gewässer:"_qs, Frame2);
    txtGName = new TextBox(u"txtGName"_qs, Frame2);
    txtGName->setMaxLength(nameLimit);
    lblGNotiz = Face::label(u"lblGNotiz"_qs, u"Notizen..."_qs, Frame2);
    txtGNotiz = new MemoBox(u"txtGNotiz"_qs, Frame2);
    lblÜbersch2 = Face::label(u"lblÜbersch2"_qs, u"Alle aufgenommenen Gewässer..."_qs, Frame2);
    tblGBasis = new DataTable(u"tblGBasis"_qs, Frame2);
    tblGBasis->setColumns({{u"Gew.-Nr"_qs, 88, true}, {u"Gewässer"_qs, 320}});
    lblGAnz = Face::label(u"lblGAnz"_qs, u"Anzahl:"_qs, Frame2);
    lblGAnzahl = new ValueLabel(u"lblGAnzahl"_qs, Frame2);
    layOut({Frame2, lblGewNr, lblGNr, lblGewBez, txtGName, lblGNotiz, txtGNotiz, lblÜbersch2, tblGBasis,
            lblGAnz, lblGAnzahl});
}

void Basis::Form_Load() {
    TabBasis->setCurrentIndex(fishPage);
    modBasis::InitBasis();
}

void Basis::Form_Paint() {
    lblFAnzahl->setText(QString::number(tblFBasis->rowCount()));
    lblGAnzahl->setText(QString::number(tblGBasis->rowCount()));
}

void Basis::Form_Deactivate() { modBasis::BasisAlleAnzeigenLoeschen(); }

void Basis::tblFBasis_OnGridCellOpen(int row, int column) {
    if (row < 0) return;
    modBasis::BasisAnzeigeLoeschen();
    modBasis::loadFAuswahl(row, column);
    openRecord(lblFNr->text(), row);
}

void Basis::tblGBasis_OnGridCellOpen(int row, int column) {
    if (row < 0) return;
    modBasis::BasisAnzeigeLoeschen();
    modBasis::loadGAuswahl(row, column);
    openRecord(lblGNr->text(), row);
}
