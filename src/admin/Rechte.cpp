#include "Rechte.h"

const std::vector<Recht>& rechte() {
    static const std::vector<Recht> all = {
        {u"Fangbuch"_qs, u"chkFBuch"_qs, u"Fangbuch"_qs, u"Fangbuch"_qs, u"Fang-\nbuch"_qs, 46},
        {u"Fangauswertung"_qs, u"chkFAusw"_qs, u"Fangauswertg."_qs, u"Fangauswertg."_qs,
         u"Fang-\nauswertg."_qs, 60},
        {u"KontUebers"_qs, u"chkKontUebers"_qs, u"Kont.-Übers."_qs, u"Kontakt-Übers."_qs,
         u"Kontakt-\nÜbers."_qs, 54},
        {u"KontListe"_qs, u"chkKontList"_qs, u"Kontaktliste"_qs, u"Kontakt-Liste"_qs, u"Kontakt-\nListe"_qs,
         54},
        {u"Kontakt"_qs, u"chkKontakt"_qs, u"Kontakt"_qs, u"Kontakt"_qs, u"Kontakt"_qs, 52},
        {u"Arbeit"_qs, u"chkArbeit"_qs, u"ArbStd-Contr."_qs, u"Arbeitscontrolling"_qs,
         u"Arbeits-\ncontrolling"_qs, 64},
        {u"Besatz"_qs, u"chkBesatz"_qs, u"Besatz.-Liste"_qs, u"Besatz.-Liste"_qs, u"Besatz.-\nListe"_qs, 54},
        {u"Basis"_qs, u"chkBasis"_qs, u"Basisdaten"_qs, u"Basisdaten"_qs, u"Basis-\ndaten"_qs, 46},
        {u"Benutzerverwaltung"_qs, u"chkBenutzer"_qs, u"Benutzer- && Zugriff"_qs, u"Benutzerverwltg."_qs,
         u"Benutzer-\nverwltg."_qs, 62},
        {u"System"_qs, u"chkSystem"_qs, u"Systempar."_qs, u"Systempar."_qs, u"System-\npar."_qs, 54},
    };
    return all;
}
