#include "Berichte.h"
#include "Briefkopf.h"

namespace {

Berichte::Bericht makeFangliste() {
    using Align = ReportControl::Align;
    auto report = std::make_shared<Report>(u"Fangliste"_qs);
    Briefkopf face(*report);
    face.addTitle(u"Label8"_qs, u"Fangliste"_qs);
    face.addSetting(u"Label23"_qs, u"Fangjahr    :"_qs, u"lblFJahr"_qs);
    face.addSetting(u"Label24"_qs, u"Fangmonat:"_qs, u"lblFMonat"_qs);
    face.addColumns({{u"Label1"_qs, u"FangNr:"_qs, 19, Align::Right},
                     {u"Label2"_qs, u"Fischart:"_qs, 42},
                     {u"Label3"_qs, u"Gewässer:"_qs, 45},
                     {u"Label4"_qs, u"Monat:"_qs, 24},
                     {u"Label5"_qs, u"Fangjahr:"_qs, 21, Align::Right},
                     {u"Label6"_qs, u"Anzahl:"_qs, 18, Align::Right},
                     {u"Label7"_qs, u"Gewicht:"_qs, 21, Align::Right}});
    face.addSummaryHeading(u"Label14"_qs, u"Endaufstellung:"_qs);
    face.addSum(u"Label16"_qs, u"Fischanzahl [gesamt]    :"_qs, u"SumAnzahl"_qs);
    face.addSum(u"Label17"_qs, u"Fischgewicht [gesamt] :"_qs, u"SumGewicht"_qs);
    face.addUnit(u"Label18"_qs, u"i.Gramm"_qs);
    face.addSummaryHeading(u"Label19"_qs, u"Settings der Fangliste:"_qs);
    face.addSummary(u"Label20"_qs, u"gewählte Fischart        :"_qs, u"lblFischart"_qs);
    face.addSummary(u"Label21"_qs, u"gewähltes Gewässer :"_qs, u"lblGewässer"_qs);
    face.addSummary(u"Label22"_qs, u"Anzahl d. gef. Einträge:"_qs, u"lblGefDS"_qs);
    return report;
}

} // namespace

namespace Berichte {

Bericht rpt_Fangliste() { return bericht(&makeFangliste); }

} // namespace Berichte
