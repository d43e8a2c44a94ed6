#include "Berichte.h"
#include "Briefkopf.h"

namespace {

Berichte::Bericht makeArbListe() {
    using Align = ReportControl::Align;
    auto report = std::make_shared<Report>(u"Arbeitsliste"_qs);
    Briefkopf face(*report);
    face.addTitle(u"lblUebSchrift"_qs, Berichte::titelArbListe());
    face.addColumns({{u"Label1"_qs, u"Arb.-Nr:"_qs, 30, Align::Right},
                     {u"Label2"_qs, u"Geleistete Arb.-Std:"_qs, 60, Align::Right, u"#.##0,00"_qs},
                     {u"Label3"_qs, u"Datum:"_qs, 80, Align::Centre, u"dd.MM.yyyy"_qs}});
    face.addSummaryHeading(u"Label4"_qs, u"Mitglied:"_qs);
    face.addSummary(u"Label5"_qs, u"Name       :"_qs, u"lblNName"_qs).bold();
    face.addSummary(u"Label6"_qs, u"Vorname:"_qs, u"lblVName"_qs).bold();
    face.addSummary(u"Label7"_qs, u"Mitgl.-Nr  :"_qs, u"lblMitglNr"_qs);
    face.addSummaryHeading(u"Label8"_qs, u"Endaufstellung:"_qs);
    face.addNumber(u"Label14"_qs, u"Ges.-Std. geleistet:"_qs, u"lblGesStd"_qs);
    face.addNumber(u"Label16"_qs, u"-                   Pfl.-Std:"_qs, u"lblPflStd"_qs);
    face.addSummaryRule(u"Line4"_qs);
    face.addNumber(u"Label17"_qs, u" Erg. SOLL / HABEN:"_qs, u"lblSollHaben"_qs).bold();
    return report;
}

} // namespace

namespace Berichte {

QString titelArbListe() { return u"Arbeitsliste [Einzelaufstellung] für Jahr"_qs; }

Bericht rpt_ArbListe() { return bericht(&makeArbListe); }

} // namespace Berichte
