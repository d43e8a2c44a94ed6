#include "Uebersicht.h"

#include "KontaktUebers.h"
#include "Screens.h"

#include <array>

using namespace Qt::StringLiterals;

namespace Uebersicht {

namespace {

DataTable& grid() { return *the<KontaktUebers>().tblKUebers; }

/// Returns the grid at the category level, whichever table was entered before.
DataTable& kategorien() {
    DataTable& kategorien = grid();
    kategorien.enter({});
    return kategorien;
}

int findeKategorie(qint32 nummer) {
    int row = 0;
    return kategorien().find(spalteNr, row, QString::number(nummer)) < 0 ? -1 : row;
}

bool istOffen(int row) { return kategorien().cellText(row, spalteZustand) == u"-"_s; }

/// The count in the brackets behind the category's name; 0 if there is none.
qint32 anzahl(int row) {
    const QString text = kategorien().cellText(row, spalteName);
    const qsizetype begin = text.indexOf(u'[');
    if (begin < 0) return 0;
    QString digits;
    for (qsizetype i = begin + 1; i < text.size() && text[i] != u']'; ++i)
        if (text[i] >= u'0' && text[i] <= u'9') digits += text[i];
    return digits.toInt();
}

/// Gives the row a child table with columns and no rows. Replaces an existing one.
void legeKindAn(int row) {
    kategorien().createChild(row);
    SetzeKontaktSpalten();
    // These colours set contacts off from categories.
    const QColor back(172, 199, 247);
    // The second colour's number is 72 less than the first one's. The lowest byte of the number is red.
    const QColor second(back.red() - 72, back.green(), back.blue());
    grid().setChildColours(row, back, second);
}

void fuegeKontaktAn(int row, std::span<const Value> zeile) { ImKind(row)->appendRow(zeile); }

/// The row of a contact in the child table; -1 if it has none.
int findeKontakt(ImKind& kind, qint32 knr) {
    int row = 0;
    return kind->find(0, row, QString::number(knr)) < 0 ? -1 : row;
}

/// Updates the row of a contact that keeps its category. Number and picture stay.
void aktualisiere(qint32 kategonr, qint32 knr, std::span<const Value> zeile) {
    const int kategorie = findeKategorie(kategonr);
    if (kategorie < 0 || !istOffen(kategorie)) return;
    ImKind kind(kategorie);
    const int kontakt = findeKontakt(kind, knr);
    constexpr int ersteSpalte = 2;
    for (int column = ersteSpalte; kontakt >= 0 && column < int(zeile.size()); ++column)
        kind->setCell(kontakt, column, zeile[std::size_t(column)]);
}

/// Removes the contact from its old category. An emptied category loses its child table, since it has nothing
/// to open; not so if the contact was opened from the search.
void verlaesst(const Umzug& umzug) {
    const int kategorie = findeKategorie(umzug.alteNr);
    if (kategorie < 0) return;
    entferneKontakt(umzug.alteNr, umzug.alterName, umzug.knr);
    if (!umzug.ausSuche && anzahl(kategorie) == 0) kategorien().removeChild(kategorie);
}

void kommtAn(const Umzug& umzug, std::span<const Value> zeile) {
    const int kategorie = findeKategorie(umzug.neueNr);
    if (kategorie < 0) return;
    const qint32 vorher = anzahl(kategorie);
    if (!umzug.ausSuche && vorher == 0) legeKindAn(kategorie);
    schreibeMarke(kategorie, umzug.neuerName, vorher + 1);
    if (!umzug.ausSuche || istOffen(kategorie)) fuegeKontaktAn(kategorie, zeile);
}

} // namespace

ImKind::ImKind(int row)
    : m_grid(kategorien()) {
    if (!m_grid.hasChild(row)) legeKindAn(row);
    m_grid.enterChild(row);
}

ImKind::~ImKind() { m_grid.enter({}); }

void schreibeMarke(int row, const QString& name, qint32 anzahl) {
    kategorien().setCell(row, spalteName, anzahl == 0 ? name : name + u"  [%1]"_s.arg(anzahl));
}

void SetzeKontaktSpalten() {
    grid().setChildColumns({{u"Kontakt.-Nr"_s, 80, true},
                            {QString(), 16, false, 16, true},
                            {u"Firma"_s, 153, false, 50},
                            {u"Anrede"_s, 67, false, 50},
                            {.head = u"Nachname"_s, .width = 100, .minimumWidth = 50, .name = true},
                            {u"Vorname"_s, 100, false, 50},
                            {.head = u"Tel (priv.)"_s, .width = 100, .minimumWidth = 30, .firm = true},
                            {u"Fax (geschftl.)"_s, 100, false, 30},
                            {.head = u"Geb-Datum"_s, .width = 100, .minimumWidth = 30, .fixed = true},
                            {u"EMail"_s, 132, false, 30}},
                           spalteName);
}

void legeKindMitPlatzhalterAn(int row) {
    legeKindAn(row);
    const std::array<Value, 10> leer = {QString(), QString(), QString(), QString(), QString(),
                                        QString(), QString(), QString(), QString(), QString()};
    fuegeKontaktAn(row, leer);
}

void zeigeNeuen(qint32 kategonr, const QString& name, std::span<const Value> zeile) {
    const int row = findeKategorie(kategonr);
    if (row < 0) return;
    const qint32 vorher = anzahl(row);
    if (the<KontaktUebers>().LetzterKlappZustand && vorher >= 1)
        fuegeKontaktAn(row, zeile);
    else
        legeKindMitPlatzhalterAn(row);
    // One space here; schreibeMarke() writes two.
    kategorien().setCell(row, spalteName, name + u" [%1]"_s.arg(vorher + 1));
}

void zeigeGeaenderten(const Umzug& umzug, std::span<const Value> zeile) {
    if (!umzug.wechselt()) return aktualisiere(umzug.neueNr, umzug.knr, zeile);
    verlaesst(umzug);
    kommtAn(umzug, zeile);
}

void markiere(qint32 kategonr, qint32 knr) {
    const int kategorie = findeKategorie(kategonr);
    if (kategorie < 0) return;
    if (istOffen(kategorie)) {
        ImKind kind(kategorie);
        const int kontakt = findeKontakt(kind, knr);
        if (kontakt >= 0) return kind->markRow(kontakt);
    }
    kategorien().markRow(kategorie);
}

void entferneKontakt(qint32 kategonr, const QString& name, qint32 knr) {
    const int kategorie = findeKategorie(kategonr);
    if (kategorie < 0) return;
    if (istOffen(kategorie)) {
        ImKind kind(kategorie);
        const int kontakt = findeKontakt(kind, knr);
        if (kontakt >= 0) kind->removeRow(kontakt);
    }
    schreibeMarke(kategorie, name, anzahl(kategorie) - 1);
}

void nehmeKategorieAuf(const Value& nummer, const Value& name) {
    kategorien().appendRow({nummer, QString(), name});
}

void benenneKategorieUm(qint32 nummer, const QString& name) {
    const int row = findeKategorie(nummer);
    if (row >= 0) schreibeMarke(row, name, anzahl(row));
}

void entferneKategorie(qint32 nummer) {
    const int row = findeKategorie(nummer);
    if (row >= 0) kategorien().removeRow(row);
}

} // namespace Uebersicht
