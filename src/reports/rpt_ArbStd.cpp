#include "Berichte.h"
#include "Briefkopf.h"

namespace {

Berichte::Bericht makeArbStd() {
    using Align = ReportControl::Align;
    auto report = std::make_shared<Report>(u"Arbeitsliste [ Übersicht ]"_qs);
    Briefkopf face(*report);
    face.addTitle(u"Label8"_qs, u"Arbeitsliste [ Übersicht ]"_qs).points(15);
    face.addColumns({{u"Label1"_qs, u"M-Nr:"_qs, 130, Align::Right},
                     {u"Label2"_qs, u"Nachname"_qs, 535},
                     {u"Label3"_qs, u"Vorname:"_qs, 440},
                     {u"Label4"_qs, u"Pfl.-Std:"_qs, 195, Align::Right, u"#.##0,00"_qs},
                     {u"Label5"_qs, u"Gel.-Std:"_qs, 200, Align::Right, u"#.##0,00"_qs},
                     {u"Label6"_qs, u"Soll/Haben:"_qs, 240, Align::Right, u"0,00"_qs}});
    face.addListDescription();
    return report;
}

} // namespace

namespace Berichte {

Bericht rpt_ArbStd() { return bericht(&makeArbStd); }

} // namespace Berichte
