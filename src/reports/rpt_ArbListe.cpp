#include "Berichte.h"
#include "Briefkopf.h"

using namespace Qt::StringLiterals;

namespace {

Berichte::Bericht makeArbListe() {
    using Align = ReportControl::Align;
    auto report = std::make_shared<Report>(u"Arbeitsliste"_s);
    Briefkopf face(*report);
    face.addTitle(u"lblUebSchrift"_s, Berichte::titelArbListe());
    face.addColumns({{u"Label1"_s, u"Arb.-Nr:"_s, 30, Align::Right},
                     {u"Label2"_s, u"Geleistete Arb.-Std:"_s, 60, Align::Right, u"#.##0,00"_s},
                     {u"Label3"_s, u"Datum:"_s, 80, Align::Centre, u"dd.MM.yyyy"_s}});
    face.addSummaryHeading(u"Label4"_s, u"Mitglied:"_s);
    face.addSummary(u"Label5"_s, u"Name       :"_s, u"lblNName"_s).bold();
    face.addSummary(u"Label6"_s, u"Vorname:"_s, u"lblVName"_s).bold();
    face.addSummary(u"Label7"_s, u"Mitgl.-Nr  :"_s, u"lblMitglNr"_s);
    face.addSummaryHeading(u"Label8"_s, u"Endaufstellung:"_s);
    face.addNumber(u"Label14"_s, u"Ges.-Std. geleistet:"_s, u"lblGesStd"_s);
    face.addNumber(u"Label16"_s, u"-                   Pfl.-Std:"_s, u"lblPflStd"_s);
    face.addSummaryRule(u"Line4"_s);
    face.addNumber(u"Label17"_s, u" Erg. SOLL / HABEN:"_s, u"lblSollHaben"_s).bold();
    return report;
}

} // namespace

namespace Berichte {

QString titelArbListe() { return u"Arbeitsliste [Einzelaufstellung] für Jahr"_s; }

Bericht rpt_ArbListe() { return bericht(&makeArbListe); }

} // namespace Berichte
