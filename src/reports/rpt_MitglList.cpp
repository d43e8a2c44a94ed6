#include "Berichte.h"
#include "Briefkopf.h"

using namespace Qt::StringLiterals;

namespace {

Berichte::Bericht makeMitglList() {
    using Align = ReportControl::Align;
    auto report = std::make_shared<Report>(u"Mitglieder - Liste"_s);
    Briefkopf face(*report);
    face.addTitle(u"Label8"_s, u"Mitglieder - Liste"_s);
    face.setDense();
    // In tenths of a millimetre. Days, codes, numbers and heads get the width they need, names the rest.
    face.addColumns({{u"Label1"_s, u"M-Nr:"_s, 118, Align::Right},
                     {u"Label2"_s, u"Nachname:"_s, 280},
                     {u"Label3"_s, u"Vorname:"_s, 226},
                     {u"Label4"_s, u"Strasse:"_s, 308},
                     {u"Label5"_s, u"PLZ:"_s, 102},
                     {u"Label6"_s, u"Ort:"_s, 266},
                     {u"Label7"_s, u"Telefon [privat]:"_s, 276},
                     {u"Label14"_s, u"Geb.-Dat:"_s, 164}});
    face.addListDescription();
    return report;
}

} // namespace

namespace Berichte {

Bericht rpt_MitglList() { return bericht(&makeMitglList); }

} // namespace Berichte
