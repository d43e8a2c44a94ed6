#include "Berichte.h"

#include "Briefkopf.h"

#include <map>

using namespace Qt::StringLiterals;

namespace Berichte {

namespace {

using Align = ReportLook::Align;

/// The report of this caption: the one in use, or a new one laid out by `layOut`.
Bericht bericht(const QString& caption, void (*layOut)(Briefkopf& face)) {
    static std::map<QString, std::weak_ptr<Report>> inUse;
    Bericht report = inUse[caption].lock();
    if (report) return report;
    inUse[caption] = report = std::make_shared<Report>(caption);
    Briefkopf face(*report);
    layOut(face);
    return report;
}

/// The end of both lists of members: their number and the user's description of the list.
void addListDescription(Briefkopf& face) {
    face.addSummary(u"Label16"_s, u"Anzahl der Mitglieder     :"_s, u"lblGefDS"_s);
    face.addSummary(u"Label17"_s, u"Listenbeschreibung:"_s, u"lblInfo"_s);
}

} // namespace

Bericht rpt_Fangliste() {
    return bericht(u"Fangliste"_s, [](Briefkopf& face) {
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
    });
}

Bericht rpt_ArbListe() {
    return bericht(u"Arbeitsliste"_s, [](Briefkopf& face) {
        face.addTitle(u"lblUebSchrift"_s, titelArbListe());
        face.addColumns({{u"Label1"_s, u"Arb.-Nr:"_s, 30, Align::Right},
                         {u"Label2"_s, u"Geleistete Arb.-Std:"_s, 60, Align::Right, u"#.##0,00"_s},
                         {u"Label3"_s, u"Datum:"_s, 80, Align::Centre, u"dd.MM.yyyy"_s}});
        face.addSummaryHeading(u"Label4"_s, u"Mitglied:"_s);
        face.addSummary(u"Label5"_s, u"Name       :"_s, u"lblNName"_s).bold = true;
        face.addSummary(u"Label6"_s, u"Vorname:"_s, u"lblVName"_s).bold = true;
        face.addSummary(u"Label7"_s, u"Mitgl.-Nr  :"_s, u"lblMitglNr"_s);
        face.addSummaryHeading(u"Label8"_s, u"Endaufstellung:"_s);
        face.addNumber(u"Label14"_s, u"Ges.-Std. geleistet:"_s, u"lblGesStd"_s);
        face.addNumber(u"Label16"_s, u"-                   Pfl.-Std:"_s, u"lblPflStd"_s);
        face.addSummaryRule(u"Line4"_s);
        face.addNumber(u"Label17"_s, u" Erg. SOLL / HABEN:"_s, u"lblSollHaben"_s).bold = true;
    });
}

QString titelArbListe() { return u"Arbeitsliste [Einzelaufstellung] für Jahr"_s; }

Bericht rpt_BesatzListe() {
    return bericht(u"Besatz - Plan"_s, [](Briefkopf& face) {
        face.addTitle(u"lblUeb"_s, u"Besatz - Plan"_s);
        face.addColumns({{u"Label1"_s, u"B-Nr:"_s, 15, Align::Right},
                         {u"Label2"_s, u"Fischart:"_s, 47},
                         {u"Label3"_s, u"Gewässer:"_s, 50},
                         {u"Label4"_s, u"Zeitpunkt:"_s, 51},
                         {u"Label5"_s, u"Menge i. Kg:"_s, 27, Align::Right, u"0,00"_s}});
    });
}

Bericht rpt_MitglList() {
    return bericht(u"Mitglieder - Liste"_s, [](Briefkopf& face) {
        face.addTitle(u"Label8"_s, u"Mitglieder - Liste"_s);
        // In tenths of a millimetre. Days, codes, numbers and heads get the width they need, names the rest.
        face.addColumns({{u"Label1"_s, u"M-Nr:"_s, 118, Align::Right},
                         {u"Label2"_s, u"Nachname:"_s, 280},
                         {u"Label3"_s, u"Vorname:"_s, 226},
                         {u"Label4"_s, u"Strasse:"_s, 308},
                         {u"Label5"_s, u"PLZ:"_s, 102},
                         {u"Label6"_s, u"Ort:"_s, 266},
                         {u"Label7"_s, u"Telefon [privat]:"_s, 276},
                         {u"Label14"_s, u"Geb.-Dat:"_s, 164}},
                        {.points = 8, .padding = 11, .rowHeight = 47});
        addListDescription(face);
    });
}

Bericht rpt_ArbStd() {
    return bericht(u"Arbeitsliste [ Übersicht ]"_s, [](Briefkopf& face) {
        face.addTitle(u"Label8"_s, u"Arbeitsliste [ Übersicht ]"_s).points = 15;
        face.addColumns({{u"Label1"_s, u"M-Nr:"_s, 130, Align::Right},
                         {u"Label2"_s, u"Nachname"_s, 535},
                         {u"Label3"_s, u"Vorname:"_s, 440},
                         {u"Label4"_s, u"Pfl.-Std:"_s, 195, Align::Right, u"#.##0,00"_s},
                         {u"Label5"_s, u"Gel.-Std:"_s, 200, Align::Right, u"#.##0,00"_s},
                         {u"Label6"_s, u"Soll/Haben:"_s, 240, Align::Right, u"0,00"_s}});
        addListDescription(face);
    });
}

} // namespace Berichte
