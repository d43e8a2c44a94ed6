#include "Berichte.h"
#include "Conversions.h"
#include "Drucklauf.h"
#include "MitglList.h"
#include "Screens.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "modMitglList.h"

using namespace Qt::StringLiterals;

// Prints the list of members, with addresses or with hours.

namespace modMitglList {

namespace {

Value stunden(const DataTable& grid, int row, int column) { return CDbl(grid.cellText(row, column)); }

void richteEin(Report& report) {
    const MitglList& screen = the<MitglList>();
    const QString info = screen.txtInfo->text();
    report.control(u"Section5"_s, u"lblGefDS"_s).caption = screen.lblGefDS->text();
    report.control(u"Section5"_s, u"lblInfo"_s).caption = info.isEmpty() ? u"keine Beschreibung"_s : info;
}

} // namespace

void DruckeMitglListe(const QString& wort) {
    drucke({.modul = u"modMitglList"_s,
            .routine = u"DruckeMitglListe"_s,
            .aufrufer = the<MitglList>(),
            .grid = *the<MitglList>().tblMList,
            .tabelle = u"Druck_MitglList"_s,
            .spalten = {{0, u"KontaktNr"_s, &ganzzahl},
                        {1, u"Nachname"_s},
                        {2, u"Vorname"_s},
                        {3, u"Strasse"_s},
                        {4, u"PLZ"_s},
                        {5, u"Ort"_s},
                        {6, u"Tel"_s},
                        {7, u"GebDatum"_s}},
            .report = &Berichte::rpt_MitglList,
            .richteEin = &richteEin},
           wort);
}

void DruckeArbListe(const QString& wort) {
    drucke({.modul = u"modMitglList"_s,
            .routine = u"DruckeArbListe"_s,
            .aufrufer = the<MitglList>(),
            .grid = *the<MitglList>().tblMList,
            .tabelle = u"Druck_ArbStd"_s,
            .spalten = {{0, u"KontaktNr"_s, &ganzzahl},
                        {1, u"Nachname"_s},
                        {2, u"Vorname"_s},
                        {8, u"pflstd"_s, &stunden},
                        {9, u"GelStd"_s, &stunden},
                        {10, u"SollHaben"_s, &stunden}},
            .report = &Berichte::rpt_ArbStd,
            .richteEin = &richteEin},
           wort);
}

} // namespace modMitglList
