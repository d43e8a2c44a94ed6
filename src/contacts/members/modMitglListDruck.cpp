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

using namespace Qt::StringLiterals;

// Prints the list of members, with addresses or with hours.

namespace modMitglList {

namespace {

/// A field of the staging table and the grid column that it is filled from.
struct Spalte {
    int column;
    QString field;
    bool numeric = false;
};

Druckauftrag auftrag(const QString& routine, const QString& tabelle, std::shared_ptr<Report> (*report)(),
                     const std::vector<Spalte>& spalten) {
    MitglList& screen = the<MitglList>();
    const auto schreibe = [spalten](ErrorTail& step, Recordset& zeile, const DataTable& grid, int row) {
        step([&] { zeile.Collect(u"KontaktNr"_s, CLng(grid.cell(row, 0))); });
        for (const auto& [column, field, numeric] : spalten)
            step([&, c = column, &f = field, n = numeric] {
                const QString text = grid.cellText(row, c);
                zeile.Collect(f, n ? Value(CDbl(text)) : Value(text));
            });
    };
    const auto richteEin = [&screen, spalten](ErrorTail& step, Report& bericht) {
        const auto bind = [&](int number, const QString& field) {
            step([&] { bericht.control(u"Section1"_s, u"Text%1"_s.arg(number)).setDataField(field); });
        };
        const auto caption = [&](const QString& name, const QString& text) {
            step([&] { bericht.control(u"Section5"_s, name).setCaption(text); });
        };
        caption(u"lblGefDS"_s, screen.lblGefDS->text());
        int number = 0;
        bind(++number, u"KontaktNr"_s);
        for (const Spalte& spalte : spalten) bind(++number, spalte.field);
        const QString info = screen.txtInfo->text();
        caption(u"lblInfo"_s, info.isEmpty() ? u"keine Beschreibung"_s : info);
    };
    return {.modul = u"modMitglList"_s,
            .routine = routine,
            .aufrufer = screen,
            .grid = *screen.tblMList,
            .tabelle = tabelle,
            .report = report,
            .schreibeZeile = schreibe,
            .richteEin = richteEin};
}

} // namespace

void DruckeMitglListe(const QString& wort) {
    drucke(auftrag(u"DruckeMitglListe"_s, u"Druck_MitglList"_s, &Berichte::rpt_MitglList,
                   {{1, u"Nachname"_s},
                    {2, u"Vorname"_s},
                    {3, u"Strasse"_s},
                    {4, u"PLZ"_s},
                    {5, u"Ort"_s},
                    {6, u"Tel"_s},
                    {7, u"GebDatum"_s}}),
           wort);
}

void DruckeArbListe(const QString& wort) {
    drucke(auftrag(u"DruckeArbListe"_s, u"Druck_ArbStd"_s, &Berichte::rpt_ArbStd,
                   {{1, u"Nachname"_s},
                    {2, u"Vorname"_s},
                    {8, u"pflstd"_s, true},
                    {9, u"GelStd"_s, true},
                    {10, u"SollHaben"_s, true}}),
           wort);
}

} // namespace modMitglList
