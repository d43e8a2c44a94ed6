#include "Basis.h"

#include "DataTable.h"
#include "Gitter.h"
#include "Heading.h"
#include "Layout.h"
#include "MemoBox.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modBasis.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int nameLimit = 80;
constexpr int fishPage = 0;

/// The controls of a page. Both pages have the same layout.
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
    auto* screen = new QGridLayout;
    Layout::addField(screen, 0, page.numberLabel, page.number);
    Layout::addField(screen, 1, page.nameLabel, page.name);
    Layout::addField(screen, 2, page.noteLabel, page.note);
    screen->setAlignment(page.noteLabel, Qt::AlignTop);
    screen->setColumnStretch(1, 1);
    page.note->setMaximumHeight(88);

    auto* head = new QHBoxLayout;
    head->addWidget(page.gridLabel);
    head->addStretch();
    head->addWidget(page.countLabel);
    head->addWidget(page.count);
    page.grid->setAccessibleName(page.gridLabel->text());
    page.grid->setEmptyHint(u"Hier steht noch nichts.\n"_s
                            u"Schreiben Sie oben einen Namen und drücken Sie „Speichern“."_s);
    page.count->setAccessibleName(page.countLabel->text());
    page.count->setNumeric();

    auto* column = new QVBoxLayout(page.frame);
    column->setSpacing(Layout::gap);
    column->addLayout(screen);
    column->addLayout(head);
    column->addWidget(page.grid, 1);
}

QWidget* asTab(QGroupBox* frame) {
    auto* tab = new QWidget;
    auto* column = new QVBoxLayout(tab);
    column->setContentsMargins(Layout::gap, Layout::gap, Layout::gap, Layout::gap);
    column->addWidget(frame);
    return tab;
}

} // namespace

Basis::Basis()
    : Screen(u"Basis"_s, u"Basisdaten"_s) {
    keepRecord();
    Ueberschrift = new Heading(u"BASISDATEN"_s, this);
    buildToolbar();
    buildFishPage();
    buildWaterPage();
    TabBasis = new QTabWidget(this);
    TabBasis->setObjectName(u"TabBasis"_s);
    TabBasis->addTab(asTab(Frame1), u"Fischarten"_s);
    TabBasis->addTab(asTab(Frame2), u"Gewässer"_s);
    Layout::column(this, Ueberschrift, Toolbar1)->addWidget(TabBasis, 1);

    on(tblFBasis, &DataTable::OnGridCellOpen,
       [this](int row, int column) { tblFBasis_OnGridCellOpen(row, column); });
    on(tblGBasis, &DataTable::OnGridCellOpen,
       [this](int row, int column) { tblGBasis_OnGridCellOpen(row, column); });
    modRun::connectGridFocus(tblFBasis);
    modRun::connectGridFocus(tblGBasis);
}

void Basis::buildToolbar() {
    // Evaluated at each press, since the page in front changes.
    const auto erfassung = [this] {
        return TabBasis->currentIndex() == fishPage ? modBasis::fischErfassung()
                                                    : modBasis::gewaesserErfassung();
    };
    Toolbar1 = new Toolbar(this);
    Toolbar1->addKeys({{u"tbSpeichern"_s, u"&Speichern "_s, u"Speichern"_s, u"speichern"_s,
                        [=, this] { erfassung().sichern(*this); }},
                       {u"tbLoeschen"_s, u"&Löschen "_s, u"Löschen"_s, u"loeschen"_s,
                        [=, this] { erfassung().entfernen(*this); }},
                       {u"tbAnzLoeschen"_s, u"&Anz. löschen"_s, u"Anzeige löschen"_s, u"anzeige-loeschen"_s,
                        &modBasis::BasisAnzeigeLoeschen}});
}

void Basis::buildFishPage() {
    Frame1 = Layout::frame(u"Frame1"_s, u"Fische"_s, nullptr);
    lblFischNr = Layout::label(u"lblFischNr"_s, u"Fisch-Nr:"_s, Frame1);
    lblFNr = new ValueLabel(u"lblFNr"_s, Frame1);
    lblFischArt = Layout::label(u"lblFischArt"_s, u"Fischart:"_s, Frame1);
    txtFArt = new TextBox(u"txtFArt"_s, Frame1);
    txtFArt->setMaxLength(nameLimit);
    lblFNotiz = Layout::label(u"lblFNotiz"_s, u"Notizen..."_s, Frame1);
    txtFNotiz = new MemoBox(u"txtFNotiz"_s, Frame1);
    lblÜberschr = Layout::label(u"lblÜberschr"_s, u"Alle aufgenommen Fischarten..."_s, Frame1);
    tblFBasis = new DataTable(u"tblFBasis"_s, Frame1);
    tblFBasis->setColumns({{u"Fisch-Nr."_s, 88, true}, {u"Fischart"_s, 320}});
    lblFAnz = Layout::label(u"lblFAnz"_s, u"Anzahl:"_s, Frame1);
    lblFAnzahl = new ValueLabel(u"lblFAnzahl"_s, Frame1);
    layOut({Frame1, lblFischNr, lblFNr, lblFischArt, txtFArt, lblFNotiz, txtFNotiz, lblÜberschr, tblFBasis,
            lblFAnz, lblFAnzahl});
}

void Basis::buildWaterPage() {
    Frame2 = Layout::frame(u"Frame2"_s, u"Gewässer"_s, nullptr);
    lblGewNr = Layout::label(u"lblGewNr"_s, u"Gew.- Nr:"_s, Frame2);
    lblGNr = new ValueLabel(u"lblGNr"_s, Frame2);
    lblGewBez = Layout::label(u"lblGewBez"_s, u"Gewässer:"_s, Frame2);
    txtGName = new TextBox(u"txtGName"_s, Frame2);
    txtGName->setMaxLength(nameLimit);
    lblGNotiz = Layout::label(u"lblGNotiz"_s, u"Notizen..."_s, Frame2);
    txtGNotiz = new MemoBox(u"txtGNotiz"_s, Frame2);
    lblÜbersch2 = Layout::label(u"lblÜbersch2"_s, u"Alle aufgenommenen Gewässer..."_s, Frame2);
    tblGBasis = new DataTable(u"tblGBasis"_s, Frame2);
    tblGBasis->setColumns({{u"Gew.-Nr"_s, 88, true}, {u"Gewässer"_s, 320}});
    lblGAnz = Layout::label(u"lblGAnz"_s, u"Anzahl:"_s, Frame2);
    lblGAnzahl = new ValueLabel(u"lblGAnzahl"_s, Frame2);
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
