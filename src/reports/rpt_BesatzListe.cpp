#include "Berichte.h"
#include "Briefkopf.h"

namespace {

Berichte::Bericht makeBesatzListe() {
    using Align = ReportControl::Align;
    auto report = std::make_shared<Report>(u"Besatz - Plan"_qs);
    Briefkopf face(*report);
    face.addTitle(u"lblUeb"_qs, u"Besatz - Plan"_qs);
    face.addColumns({{u"Label1"_qs, u"B-Nr:"_qs, 15, Align::Right},
                     {u"Label2"_qs, u"Fischart:"_qs, 47},
                     {u"Label3"_qs, u"Gewässer:"_qs, 50},
                     {u"Label4"_qs, u"Zeitpunkt:"_qs, 51},
                     {u"Label5"_qs, u"Menge i. Kg:"_qs, 27, Align::Right, u"0,00"_qs}});
    return report;
}

} // namespace

namespace Berichte {

Bericht rpt_BesatzListe() { return bericht(&makeBesatzListe); }

} // namespace Berichte
