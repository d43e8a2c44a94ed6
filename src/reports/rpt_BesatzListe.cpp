#include "Berichte.h"
#include "Briefkopf.h"

using namespace Qt::StringLiterals;

namespace {

Berichte::Bericht makeBesatzListe() {
    using Align = ReportControl::Align;
    auto report = std::make_shared<Report>(u"Besatz - Plan"_s);
    Briefkopf face(*report);
    face.addTitle(u"lblUeb"_s, u"Besatz - Plan"_s);
    face.addColumns({{u"Label1"_s, u"B-Nr:"_s, 15, Align::Right},
                     {u"Label2"_s, u"Fischart:"_s, 47},
                     {u"Label3"_s, u"Gewässer:"_s, 50},
                     {u"Label4"_s, u"Zeitpunkt:"_s, 51},
                     {u"Label5"_s, u"Menge i. Kg:"_s, 27, Align::Right, u"0,00"_s}});
    return report;
}

} // namespace

namespace Berichte {

Bericht rpt_BesatzListe() { return bericht(&makeBesatzListe); }

} // namespace Berichte
