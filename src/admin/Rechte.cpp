#include "Rechte.h"

using namespace Qt::StringLiterals;

const std::vector<Recht>& rechte() {
    static const std::vector<Recht> all = {
        {u"Fangbuch"_s, u"chkFBuch"_s, u"Fangbuch"_s, u"Fangbuch"_s, u"Fang-\nbuch"_s, 46},
        {u"Fangauswertung"_s, u"chkFAusw"_s, u"Fangauswertg."_s, u"Fangauswertg."_s, u"Fang-\nauswertg."_s,
         60},
        {u"KontUebers"_s, u"chkKontUebers"_s, u"Kont.-Übers."_s, u"Kontakt-Übers."_s, u"Kontakt-\nÜbers."_s,
         54},
        {u"KontListe"_s, u"chkKontList"_s, u"Kontaktliste"_s, u"Kontakt-Liste"_s, u"Kontakt-\nListe"_s, 54},
        {u"Kontakt"_s, u"chkKontakt"_s, u"Kontakt"_s, u"Kontakt"_s, u"Kontakt"_s, 52},
        {u"Arbeit"_s, u"chkArbeit"_s, u"ArbStd-Contr."_s, u"Arbeitscontrolling"_s, u"Arbeits-\ncontrolling"_s,
         64},
        {u"Besatz"_s, u"chkBesatz"_s, u"Besatz.-Liste"_s, u"Besatz.-Liste"_s, u"Besatz.-\nListe"_s, 54},
        {u"Basis"_s, u"chkBasis"_s, u"Basisdaten"_s, u"Basisdaten"_s, u"Basis-\ndaten"_s, 46},
        {u"Benutzerverwaltung"_s, u"chkBenutzer"_s, u"Benutzer- && Zugriff"_s, u"Benutzerverwltg."_s,
         u"Benutzer-\nverwltg."_s, 62},
        {u"System"_s, u"chkSystem"_s, u"Systempar."_s, u"Systempar."_s, u"System-\npar."_s, 54},
    };
    return all;
}
