#include "Uebersicht.h"

#include "DataTable.h"
#include "KontaktUebers.h"
#include "Screens.h"

#include <array>

namespace Uebersicht {

namespace {

DataTable& grid() { return *screen<KontaktUebers>().tblKUebers; }

/// The grid at the category level, whatever table was entered before.
DataTable& kategorien() {
    DataTable& kategorien = grid();
    kategorien.enter({});
    return kategorien;
}

} // namespace

ImKind::ImKind(int row)
    : m_grid(kategorien()) {
    if (!m_grid.hasChild(row)) {
        legeKindAn(row);
        faerbeKind(row);
    }
    m_grid.enterChild(row);
}

ImKind::~ImKind() { m_grid.enter({}); }

void schreibeZellen(int kontakt, std::span<const Value> zeile) {
    constexpr int ersteSpalte = 2;
    for (int column = ersteSpalte; column < int(zeile.size()); ++column)
        grid().setCell(kontakt, column, zeile[std::size_t(column)]);
}

int findeKategorie(qint32 nummer) {
    int row = 0;
    return kategorien().find(spalteNr, row, QString::number(nummer)) < 0 ? -1 : row;
}

bool istOffen(int row) { return row >= 0 && kategorien().cellText(row, spalteZustand) == u"-"_qs; }

qint32 ErmittleKategoAnzahl(int row, qsizetype length) {
    const QString text = kategorien().cellText(row, spalteName).left(length);
    const qsizetype begin = text.indexOf(u'[');
    if (begin < 0) return 0;
    QString digits;
    for (qsizetype i = begin + 1; i < text.size() && text[i] != u']'; ++i)
        if (text[i] >= u'0' && text[i] <= u'9') digits += text[i];
    return digits.toInt();
}

qint32 anzahl(int row) { return ErmittleKategoAnzahl(row, kategorien().cellText(row, spalteName).size()); }

void schreibeMarke(int row, const QString& name, qint32 anzahl, Abstand abstand) {
    QString text = name;
    if (anzahl != 0)
        text += (abstand == Abstand::Eins ? u" ["_qs : u"  ["_qs) + QString::number(anzahl) + u']';
    kategorien().setCell(row, spalteName, text);
}

void SetzeKontaktSpalten() {
    grid().setChildColumns({{u"Kontakt.-Nr"_qs, 80, true},
                            {QString(), 16, false, 16, true},
                            {u"Firma"_qs, 153, false, 50},
                            {u"Anrede"_qs, 67, false, 50},
                            {.head = u"Nachname"_qs, .width = 100, .minimumWidth = 50, .name = true},
                            {u"Vorname"_qs, 100, false, 50},
                            {.head = u"Tel (priv.)"_qs, .width = 100, .minimumWidth = 30, .firm = true},
                            {u"Fax (geschftl.)"_qs, 100, false, 30},
                            {.head = u"Geb-Datum"_qs, .width = 100, .minimumWidth = 30, .fixed = true},
                            {u"EMail"_qs, 132, false, 30}},
                           spalteName);
}

void legeKindAn(int row) {
    kategorien().createChild(row);
    SetzeKontaktSpalten();
}

void faerbeKind(int row) {
    const QColor back(172, 199, 247);
    // The colour's number less 72, whose lowest part is the red.
    const QColor second(back.red() - 72, back.green(), back.blue());
    grid().setChildColours(row, back, second);
}

void legeKindMitPlatzhalterAn(int row) {
    legeKindAn(row);
    faerbeKind(row);
    const std::array<Value, 10> leer = {QString(), QString(), QString(), QString(), QString(),
                                        QString(), QString(), QString(), QString(), QString()};
    fuegeKontaktAn(row, leer);
}

void fuegeKontaktAn(int row, std::span<const Value> zeile) { ImKind(row)->appendRow(zeile); }

void aktualisiereKontakt(int row, qint32 knr, std::span<const Value> zeile) {
    ImKind kind(row);
    int kontakt = 0;
    if (kind->find(0, kontakt, QString::number(knr)) < 0) return;
    schreibeZellen(kontakt, zeile);
}

void markiere(qint32 kategonr, qint32 knr) {
    const int row = findeKategorie(kategonr);
    if (row < 0) return;
    int kontakt = -1;
    if (!istOffen(row) || ImKind(row)->find(0, kontakt, QString::number(knr)) < 0)
        kategorien().markRow(row);
    else
        ImKind(row)->markRow(kontakt);
}

void entferneKontakt(int row, qint32 knr) {
    ImKind kind(row);
    int kontakt = 0;
    if (kind->find(0, kontakt, QString::number(knr)) >= 0) kind->removeRow(kontakt);
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
