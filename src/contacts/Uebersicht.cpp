#include "Uebersicht.h"

#include "Conversions.h"
#include "ErrorTail.h"
#include "KontaktUebers.h"
#include "Screens.h"
#include "Session.h"
#include "modKontakt.h"

#include <QScopeGuard>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Uebersicht {

const QStringList felder = {u"knr"_s,  u"Firma"_s, u"Anrede"_s,   u"Nachname"_s, u"Vorname"_s,
                            u"Tel1"_s, u"Fax"_s,   u"GebDatum"_s, u"EMail"_s};

namespace {

constexpr int spalteGeburtstag = 8;
constexpr int spalten = 10;

DataTable& grid() { return *the<KontaktUebers>().tblKUebers; }

/// Returns the grid at the category level, whichever table was entered before.
DataTable& kategorien() {
    DataTable& kategorien = grid();
    kategorien.enter({});
    return kategorien;
}

int findeKategorie(qint32 nummer) { return kategorien().rowOf(QString::number(nummer)); }

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

/// Writes the name with the count behind it, or the name alone if the count is 0.
void schreibeMarke(int row, const QString& name, qint32 anzahl) {
    kategorien().setCell(row, spalteName, anzahl == 0 ? name : name + u"  [%1]"_s.arg(anzahl));
}

/// Sets the columns of every child table.
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

/// Gives the row a child table with columns and no rows. Replaces an existing one.
void legeKindAn(int row) {
    SetzeKontaktSpalten();
    // These colours set contacts off from categories.
    const QColor back(172, 199, 247);
    // The second colour's number is 72 less than the first one's. The lowest byte of the number is red.
    const QColor second(back.red() - 72, back.green(), back.blue());
    kategorien().createChild(row, back, second);
}

/// Enters the child table of a category, and makes it if there is none. The guard returns to the category
/// level.
[[nodiscard]] auto betreteKind(int row) {
    if (!kategorien().hasChild(row)) legeKindAn(row);
    kategorien().enter({row});
    return qScopeGuard([&grid = grid()] { grid.enter({}); });
}

void fuegeKontaktAn(int row, std::span<const Value> zeile) {
    const auto imKind = betreteKind(row);
    grid().appendRow(zeile);
}

/// Gives the row a child table with one empty row, so that it can be opened before the contacts are read.
void legeKindMitPlatzhalterAn(int row) {
    legeKindAn(row);
    std::array<Value, spalten> leer;
    leer.fill(QString());
    fuegeKontaktAn(row, leer);
}

bool istOffen(int row) { return kategorien().cellText(row, spalteZustand) == u"-"_s; }

/// Runs `tue` with the contact's row in the child table. Returns false if the category has no row or is
/// closed, or the contact has no row.
template<typename Tue>
bool anKontakt(int kategorie, qint32 knr, Tue&& tue) {
    if (kategorie < 0 || !istOffen(kategorie)) return false;
    const auto imKind = betreteKind(kategorie);
    const int kontakt = grid().rowOf(QString::number(knr));
    if (kontakt >= 0) tue(kontakt);
    return kontakt >= 0;
}

/// Removes the contact from its old category. An emptied category loses its child table, since it has nothing
/// to open; not so if the contact was opened from the search.
void verlaesst(const Umzug& umzug) {
    entferneKontakt(umzug.alteNr, umzug.alterName, umzug.knr);
    const int kategorie = findeKategorie(umzug.alteNr);
    if (kategorie >= 0 && !umzug.ausSuche && anzahl(kategorie) == 0) kategorien().removeChild(kategorie);
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
    if (umzug.wechselt()) {
        verlaesst(umzug);
        kommtAn(umzug, zeile);
        return;
    }
    anKontakt(findeKategorie(umzug.neueNr), umzug.knr, [&](int row) {
        // Number and picture stay.
        for (int column = 2; column < spalten; ++column)
            grid().setCell(row, column, zeile[std::size_t(column)]);
    });
}

void markiere(qint32 kategonr, qint32 knr) {
    const int kategorie = findeKategorie(kategonr);
    const bool gefunden = anKontakt(kategorie, knr, [](int row) { grid().markRow(row); });
    if (!gefunden && kategorie >= 0) kategorien().markRow(kategorie);
}

void entferneKontakt(qint32 kategonr, const QString& name, qint32 knr) {
    const int kategorie = findeKategorie(kategonr);
    anKontakt(kategorie, knr, [](int row) { grid().removeRow(row); });
    if (kategorie >= 0) schreibeMarke(kategorie, name, anzahl(kategorie) - 1);
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

// Reading: the categories once, the contacts of a category at each opening.

namespace modKontakt {

namespace {

using namespace Uebersicht;

/// Exchanges day and month in dd.mm.yyyy: the overview shows a birthday with the month first.
QString tagUndMonatGetauscht(QString datum) {
    datum.truncate(10);
    if (datum.size() >= 6) std::swap_ranges(datum.begin(), datum.begin() + 3, datum.begin() + 3);
    return datum;
}

/// A damaged file may hold a day outside the calendar. Its cell stays empty and the list goes on.
Value geburtstag(const Recordset::Field& feld) {
    try {
        const Value value = feld.Value();
        return value.isNull() ? QString() : tagUndMonatGetauscht(CStr(value));
    } catch (const RuntimeError&) {
        return QString();
    }
}

void zeigeKontakte(int row, Recordset& kontakte) {
    std::vector<Recordset::Field> quellen;
    for (const QString& feld : felder) quellen.push_back(kontakte.Fields(feld));
    std::array<Value, spalten> zeile;
    zeile[1] = programFolder() + u"/Graphics/bmp/Cut.bmp"_s;
    const auto imKind = betreteKind(row);
    DataTable& kind = grid();
    kind.clearRows();
    for (; !kontakte.Eof(); kontakte.MoveNext()) {
        zeile[0] = quellen[0].Value();
        for (std::size_t i = 1; i < quellen.size(); ++i)
            zeile[i + 1] = i + 1 == spalteGeburtstag ? geburtstag(quellen[i]) : quellen[i].Value();
        kind.appendRow(zeile);
    }
}

/// Writes the count behind the name and makes the category openable.
void zaehleKontakte(int row, Recordset& kontakte) {
    kontakte.MoveLast();
    schreibeMarke(row, kategorien().cellText(row, spalteName), kontakte.AbsolutePosition() + 1);
    legeKindMitPlatzhalterAn(row);
}

void liesKategorie(int row, qint32 kategonr, void (*zeige)(int, Recordset&)) {
    Recordset kontakte =
        oeffneAbfrage(u"SELECT * FROM Kontakt WHERE KategoNr = "_s + QString::number(kategonr));
    // The child table may hold contacts of an earlier opening, which are gone from the category.
    if (kontakte.RecordCount() == 0) return grid().removeChild(row);
    zeige(row, kontakte);
}

void tblKUebersfüllen() {
    withErrorTail(u"modKontakt"_s, u"tblKUebersfüllen"_s, [](ErrorTail& step) {
        Recordset katego;
        step([&] { katego = oeffneTabelle(u"katego"_s); });
        if (step.test([&] { return katego.RecordCount() != 0; })) {
            step([&] { katego.MoveFirst(); });
            step.forEachRow(katego, [&] {
                step([&] {
                    grid().appendRow({katego.Collect(u"kategonr"_s), u"+"_s, katego.Collect(u"kategorie"_s)});
                });
            });
        }
        step([&] { katego.Close(); });
    });
}

} // namespace

void FuelleKontaktUebersicht() {
    grid().setColumns({{QString(), 40}, {QString(), 40}, {QString(), 400, false, 50}});
    SetzeKontaktSpalten();
    tblKUebersfüllen();
    for (int row = 0; row < grid().rowCount(); ++row)
        liesKategorie(row, CLng(grid().cell(row, spalteNr)), &zaehleKontakte);
}

void KategorieAufklappen(int row, qint32 kategonr) { liesKategorie(row, kategonr, &zeigeKontakte); }

} // namespace modKontakt
