#include "Conversions.h"
#include "Datenbank.h"
#include "ErrorTail.h"
#include "KontaktUebers.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "Uebersicht.h"
#include "modKontakt.h"

#include <algorithm>

using namespace Qt::StringLiterals;

// Fills the overview's grid: with the categories once, with the contacts of a category at each opening.

namespace modKontakt {

namespace {

/// Exchanges day and month: the overview shows a birthday with the month first.
QString tagUndMonatGetauscht(QString datum) {
    constexpr qsizetype teil = 3;
    constexpr qsizetype laenge = 10;
    datum.truncate(laenge);
    if (datum.size() >= 2 * teil) std::swap_ranges(datum.begin(), datum.begin() + teil, datum.begin() + teil);
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
    const QString picture = programFolder() + u"/Graphics/bmp/Cut.bmp"_s;
    const std::array quellen = {
        kontakte.Fields(u"knr"_s),      kontakte.Fields(u"Firma"_s),   kontakte.Fields(u"Anrede"_s),
        kontakte.Fields(u"Nachname"_s), kontakte.Fields(u"Vorname"_s), kontakte.Fields(u"Tel1"_s),
        kontakte.Fields(u"Fax"_s),      kontakte.Fields(u"EMail"_s),   kontakte.Fields(u"GebDatum"_s)};
    const auto [knr, firma, anrede, nachname, vorname, tel1, fax, email, gebDatum] = quellen;
    Uebersicht::ImKind kind(row);
    kind->clearRows();
    for (; !kontakte.Eof(); kontakte.MoveNext())
        kind->appendRow({knr.Value(), picture, firma.Value(), anrede.Value(), nachname.Value(),
                         vorname.Value(), tel1.Value(), fax.Value(), geburtstag(gebDatum), email.Value()});
}

/// Writes the count behind the name and makes the category openable.
void zaehleKontakte(int row, Recordset& kontakte) {
    kontakte.MoveLast();
    const QString name = the<KontaktUebers>().tblKUebers->cellText(row, Uebersicht::spalteName);
    Uebersicht::schreibeMarke(row, name, kontakte.AbsolutePosition() + 1);
    Uebersicht::legeKindMitPlatzhalterAn(row);
}

void liesKategorie(int row, qint32 kategonr, void (*zeige)(int, Recordset&)) {
    Recordset kontakte =
        oeffneAbfrage(u"SELECT * FROM Kontakt WHERE KategoNr = "_s + QString::number(kategonr));
    if (kontakte.RecordCount() == 0) {
        // The child table may hold contacts of an earlier opening, which are gone from the category.
        the<KontaktUebers>().tblKUebers->removeChild(row);
        return;
    }
    zeige(row, kontakte);
}

} // namespace

void InitTblKUebers() {
    DataTable* grid = the<KontaktUebers>().tblKUebers;
    grid->enter({});
    grid->clearRows();
    grid->setColumns({{QString(), 40}, {QString(), 40}, {QString(), 400, false, 50}});
    Uebersicht::SetzeKontaktSpalten();
}

void tblKUebersfüllen() {
    withErrorTail(u"modKontakt"_s, u"tblKUebersfüllen"_s, [](ErrorTail& step) {
        DataTable* grid = the<KontaktUebers>().tblKUebers;
        Recordset katego;
        step([&] { katego = oeffneTabelle(u"katego"_s); });
        if (step.test([&] { return katego.RecordCount() != 0; })) {
            step([&] { katego.MoveFirst(); });
            step.forEachRow(katego, [&] {
                step([&] {
                    grid->appendRow({katego.Collect(u"kategonr"_s), u"+"_s, katego.Collect(u"kategorie"_s)});
                });
            });
        }
        step([&] { katego.Close(); });
    });
}

void FuelleKontaktUebersicht() {
    InitTblKUebers();
    tblKUebersfüllen();
    const DataTable* grid = the<KontaktUebers>().tblKUebers;
    for (int row = 0; row < grid->rowCount(); ++row)
        liesKategorie(row, CLng(grid->cell(row, Uebersicht::spalteNr)), &zaehleKontakte);
}

void KategorieAufklappen(int row, qint32 kategonr) { liesKategorie(row, kategonr, &zeigeKontakte); }

} // namespace modKontakt
