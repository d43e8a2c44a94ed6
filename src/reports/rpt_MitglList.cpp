#include "Berichte.h"
#include "Briefkopf.h"

namespace {

Berichte::Bericht makeMitglList() {
    using Align = ReportControl::Align;
    auto report = std::make_shared<Report>(u"Mitglieder - Liste"_qs);
    Briefkopf face(*report);
    face.addTitle(u"Label8"_qs, u"Mitglieder - Liste"_qs);
    face.setDense();
    // In tenths of a millimetre. Days, codes, numbers and heads get the width they need, names the rest.
    face.addColumns({{u"Label1"_qs, u"M-Nr:"_qs, 118, Align::Right},
                     {u"Label2"_qs, u"Nachname:"_qs, 280},
                     {u"Label3"_qs, u"Vorname:"_qs, 226},
                     {u"Label4"_qs, u"Strasse:"_qs, 308},
                     {u"Label5"_qs, u"PLZ:"_qs, 102},
                     {u"Label6"_qs, u"Ort:"_qs, 266},
                     {u"Label7"_qs, u"Telefon [privat]:"_qs, 276},
                     {u"Label14"_qs, u"Geb.-Dat:"_qs, 164}});
    face.addListDescription();
    return report;
}

} // namespace

namespace Berichte {

Bericht rpt_MitglList() { return bericht(&makeMitglList); }

} // namespace Berichte
