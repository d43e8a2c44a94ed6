#include "Berichte.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Drucklauf.h"
#include "MitglList.h"
#include "Report.h"
#include "Screens.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "modMitglList.h"

#include <vector>

// The list of members on paper: addresses or hours.

namespace modMitglList {

namespace {

/// Where a field of the staging table comes from.
struct Spalte {
    int column;
    QString field;
    bool numeric = false;
};

Druckauftrag auftrag(const QString& routine, const QString& tabelle, std::shared_ptr<Report> (*report)(),
                     const std::vector<Spalte>& spalten) {
    MitglList& form = screen<MitglList>();
    const auto schreibe = [spalten](ErrorTail& step, Recordset& zeile, const DataTable& grid, int row) {
        step([&] { zeile.Collect(u"KontaktNr"_qs, CLng(grid.cell(row, 0))); });
        for (const auto& [column, field, numeric] : spalten)
            step([&, c = column, &f = field, n = numeric] {
                const QString text = grid.cellText(row, c);
                zeile.Collect(f, n ? Value(CDbl(text)) : Value(text));
            });
    };
    const auto richteEin = [&form, spalten](ErrorTail& step, Report& bericht) {
        const auto bind = [&](int number, const QString& field) {
            step([&] { bericht.control(u"Section1"_qs, u"Text%1"_qs.arg(number)).setDataField(field); });
        };
        const auto caption = [&](const QString& name, const QString& text) {
            step([&] { bericht.control(u"Section5"_qs, name).setCaption(text); });
        };
        caption(u"lblGefDS"_qs, form.lblGefDS->text());
        int number = 0;
        bind(++number, u"KontaktNr"_qs);
        for (const Spalte& spalte : spalten) bind(++number, spalte.field);
        const QString info = form.txtInfo->text();
        caption(u"lblInfo"_qs, info.isEmpty() ? u"keine Beschreibung"_qs : info);
    };
    return {.modul = u"modMitglList"_qs,
            .routine = routine,
            .aufrufer = form,
            .grid = *form.tblMList,
            .tabelle = tabelle,
            .report = report,
            .schreibeZeile = schreibe,
            .richteEin = richteEin};
}

} // namespace

void DruckeMitglListe(const QString& wort) {
    drucke(auftrag(u"DruckeMitglListe"_qs, u"Druck_MitglList"_qs, &Berichte::rpt_MitglList,
                   {{1, u"Nachname"_qs},
                    {2, u"Vorname"_qs},
                    {3, u"Strasse"_qs},
                    {4, u"PLZ"_qs},
                    {5, u"Ort"_qs},
                    {6, u"Tel"_qs},
                    {7, u"GebDatum"_qs}}),
           wort);
}

void DruckeArbListe(const QString& wort) {
    drucke(auftrag(u"DruckeArbListe"_qs, u"Druck_ArbStd"_qs, &Berichte::rpt_ArbStd,
                   {{1, u"Nachname"_qs},
                    {2, u"Vorname"_qs},
                    {8, u"pflstd"_qs, true},
                    {9, u"GelStd"_qs, true},
                    {10, u"SollHaben"_qs, true}}),
           wort);
}

} // namespace modMitglList
