#include "Berichte.h"
#include "Briefkopf.h"

using namespace Qt::StringLiterals;

namespace {

Berichte::Bericht makeArbStd() {
    using Align = ReportControl::Align;
    auto report = std::make_shared<Report>(u"Arbeitsliste [ Übersicht ]"_s);
    Briefkopf face(*report);
    face.addTitle(u"Label8"_s, u"Arbeitsliste [ Übersicht ]"_s).points(15);
    face.addColumns({{u"Label1"_s, u"M-Nr:"_s, 130, Align::Right},
                     {u"Label2"_s, u"Nachname"_s, 535},
                     {u"Label3"_s, u"Vorname:"_s, 440},
                     {u"Label4"_s, u"Pfl.-Std:"_s, 195, Align::Right, u"#.##0,00"_s},
                     {u"Label5"_s, u"Gel.-Std:"_s, 200, Align::Right, u"#.##0,00"_s},
                     {u"Label6"_s, u"Soll/Haben:"_s, 240, Align::Right, u"0,00"_s}});
    face.addListDescription();
    return report;
}

} // namespace

namespace Berichte {

Bericht rpt_ArbStd() { return bericht(&makeArbStd); }

} // namespace Berichte
