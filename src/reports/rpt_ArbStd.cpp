#include "Berichte.h"
#include "Briefkopf.h"

namespace {

Berichte::Bericht makeArbStd() {
    using Align = ReportControl::Align;
    auto report = std::make_shared<Report>(u"Arbeitsliste [ Übersicht ]"_qs);
    Briefkopf face(*report);
    face.addTitle(u"Label8"_qs, u"Arbeitsliste [ Übersicht ]"_qs).points(15);
    face.addColumns({{u"Label1"_qs, u"M-Nr:"_qs, u"Text1"_qs, 130, Align::Right},
                     {u"Label2"_qs, u"Nachname"_qs, u"Text2"_qs, 535},
                     {u"Label3"_qs, u"Vorname:"_qs, u"Text3"_qs, 440},
                     {u"Label4"_qs, u"Pfl.-Std:"_qs, u"Text4"_qs, 195, Align::Right, u"#.##0,00"_qs},
                     {u"Label5"_qs, u"Gel.-Std:"_qs, u"Text5"_qs, 200, Align::Right, u"#.##0,00"_qs},
                     {u"Label6"_qs, u"Soll/Haben:"_qs, u"Text6"_qs, 240, Align::Right, u"0,00"_qs}});
    face.addSummary(u"Label16"_qs, u"Anzahl der Mitglieder     :"_qs, u"lblGefDS"_qs);
    face.addSummary(u"Label17"_qs, u"Listenbeschreibung:"_qs, u"lblInfo"_qs);
    return report;
}

} // namespace

namespace Berichte {

Bericht rpt_ArbStd() { return bericht(&makeArbStd); }

} // namespace Berichte
