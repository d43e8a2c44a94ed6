#include "Basis.h"

#include "Gitter.h"
#include "modBasis.h"

using namespace Qt::StringLiterals;

Basis::Basis()
    : Screen(u"Basis"_s, u"Basisdaten"_s)
    , seiten{{{u"Fisch"_s, u"FNr"_s, u"FName"_s, u"Fisch"_s,
               u"FEHLER: Datensatz nicht vorhanden o. nicht gefunden !"_s, lblFNr, txtFArt, txtFNotiz,
               tblFBasis, lblFAnzahl},
              {u"Gewaesser"_s, u"GNr"_s, u"GName"_s, u"Gewässer"_s,
               u"Fehler: Datensatz nicht vorhanden o. nicht gefunden !"_s, lblGNr, txtGName, txtGNotiz,
               tblGBasis, lblGAnzahl}}} {
    keepRecord();
    TabBasis->setObjectName(u"TabBasis"_s);
    tblFBasis->setColumns({{u"Fisch-Nr."_s, 88, true}, {u"Fischart"_s, 320}});
    tblGBasis->setColumns({{u"Gew.-Nr"_s, 88, true}, {u"Gewässer"_s, 320}});
    addPage(u"Fischarten"_s, seiten[0], {lblFischNr, lblFischArt, lblFNotiz, lblÜberschr, lblFAnz});
    addPage(u"Gewässer"_s, seiten[1], {lblGewNr, lblGewBez, lblGNotiz, lblÜbersch2, lblGAnz});
    Layout::column(this, Ueberschrift, Toolbar1, {TabBasis}, TabBasis);
}

Toolbar* Basis::buildToolbar() {
    // Evaluated at each press, since the page in front changes.
    return new Toolbar(this, {{u"tbSpeichern"_s, u"&Speichern "_s, u"Speichern"_s, u"speichern"_s,
                               [this] { modBasis::erfassung().sichern(*this); }},
                              {u"tbLoeschen"_s, u"&Löschen "_s, u"Löschen"_s, u"loeschen"_s,
                               [this] { modBasis::erfassung().entfernen(*this); }},
                              {u"tbAnzLoeschen"_s, u"&Anz. löschen"_s, u"Anzeige löschen"_s,
                               u"anzeige-loeschen"_s, &modBasis::BasisAnzeigeLoeschen}});
}

void Basis::addPage(const QString& title, const Seite& seite, const std::array<QLabel*, 5>& captions) {
    const auto& [number, name, note, list, count] = captions;
    auto* screen = new QGridLayout;
    Layout::addFields(screen, {{number, seite.nummer}, {name, seite.name}, {note, seite.notiz}});
    screen->setAlignment(note, Qt::AlignTop);
    screen->setColumnStretch(1, 1);
    seite.notiz->setMaximumHeight(88);

    auto* head = new QHBoxLayout;
    head->addWidget(list);
    head->addStretch();
    Layout::addCount(head, count, seite.anzahl);
    seite.grid->setAccessibleName(list->text());
    seite.grid->setEmptyHint(u"Hier steht noch nichts.\n"_s
                             u"Schreiben Sie oben einen Namen und drücken Sie „Speichern“."_s);
    on(seite.grid, &DataTable::OnGridCellOpen, [this, &seite](int row, int) {
        modBasis::BasisAnzeigeLoeschen();
        modBasis::loadAuswahl(row);
        openRecord(seite.nummer->text(), row);
    });
    modRun::connectGridFocus(seite.grid);

    QWidget* frame = seite.grid->parentWidget();
    auto* column = new QVBoxLayout(frame);
    column->setSpacing(Layout::gap);
    column->addLayout(screen);
    column->addLayout(head);
    column->addWidget(seite.grid, 1);
    Layout::page(TabBasis, title)->addWidget(frame);
}

void Basis::Seite::leere() const {
    nummer->setText(QString());
    name->setText(QString());
    notiz->setText(QString());
}

void Basis::Form_Load() {
    TabBasis->setCurrentIndex(0);
    modBasis::InitBasis();
}

void Basis::Form_Paint() {
    for (const Seite& seite : seiten) seite.zeigeAnzahl();
}

void Basis::Form_Deactivate() { modBasis::BasisAlleAnzeigenLoeschen(); }
