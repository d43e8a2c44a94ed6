#include "Berichte.h"
#include "Briefkopf.h"

using namespace Qt::StringLiterals;

namespace {

Berichte::Bericht makeFangliste() {
    using Align = ReportControl::Align;
    auto report = std::make_shared<Report>(u"Fangliste"_s);
    Briefkopf face(*report);
    face.addTitle(u"Label8"_s, u"Fangliste"_s);
    face.addSetting(u"Label23"_s, u"Fangjahr    :"_s, u"lblFJahr"_s);
    face.addSetting(u"Label24"_s, u"Fangmonat:"_s, u"lblFMonat"_s);
    face.addColumns({{u"Label1"_s, u"FangNr:"_s, 19, Align::Right},
                     {u"Label2"_s, u"Fischart:"_s, 42},
                     {u"Label3"_s, u"Gewässer:"_s, 45},
                     {u"Label4"_s, u"Monat:"_s, 24},
                     {u"Label5"_s, u"Fangjahr:"_s, 21, Align::Right},
                     {u"Label6"_s, u"Anzahl:"_s, 18, Align::Right},
                     {u"Label7"_s, u"Gewicht:"_s, 21, Align::Right}});
    face.addSummaryHeading(u"Label14"_s, u"Endaufstellung:"_s);
    face.addSum(u"Label16"_s, u"Fischanzahl [gesamt]    :"_s, u"SumAnzahl"_s);
    face.addSum(u"Label17"_s, u"Fischgewicht [gesamt] :"_s, u"SumGewicht"_s);
    face.addUnit(u"Label18"_s, u"i.Gramm"_s);
    face.addSummaryHeading(u"Label19"_s, u"Settings der Fangliste:"_s);
    face.addSummary(u"Label20"_s, u"gewählte Fischart        :"_s, u"lblFischart"_s);
    face.addSummary(u"Label21"_s, u"gewähltes Gewässer :"_s, u"lblGewässer"_s);
    face.addSummary(u"Label22"_s, u"Anzahl d. gef. Einträge:"_s, u"lblGefDS"_s);
    return report;
}

} // namespace

namespace Berichte {

Bericht rpt_Fangliste() { return bericht(&makeFangliste); }

} // namespace Berichte
