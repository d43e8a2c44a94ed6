#include "Bereiche.h"

#include "Arbeit.h"
#include "Basis.h"
#include "Benutzer.h"
#include "Besatzung.h"
#include "Eroef.h"
#include "Fangauswertung.h"
#include "Fangbuch.h"
#include "Katego.h"
#include "KontaktUebers.h"
#include "MitglList.h"
#include "System.h"
#include "modBasis.h"
#include "modBenutzer.h"
#include "modBesatzList.h"
#include "modFangbuch.h"
#include "modKatego.h"
#include "modKontakt.h"
#include "modSystem.h"

#include <algorithm>

namespace {

void ladeBenutzer() {
    modBenutzer::loadTblBenutzer();
    modBenutzer::loadTblZugriff();
}

void ladeBasis() {
    modBasis::loadTblFBasis();
    modBasis::loadTblGBasis();
}

void ladeFangbuch() { modFangbuch::loadTblFList(screen<Eroef>().pb); }

} // namespace

const std::vector<Bereich>& bereiche() {
    static const QString system = u"System"_qs;
    static const QString organisation = u"Organisation"_qs;
    static const std::vector<Bereich> all = {
        {Maske::von<Benutzer>(), u"Zugriff"_qs, system, u"Benutzer &&\r\nZugriffsverw."_qs,
         u"Benutzerverwaltung"_qs, 2, &ladeBenutzer},
        {Maske::von<System>(), u"Parameter"_qs, system, u"Systempar."_qs, u"System"_qs, 4,
         &modSystem::loadTblSystem},
        {Maske::von<Basis>(), u"Basisdaten"_qs, system, u"Basisdaten"_qs, u"Basis"_qs, 1, &ladeBasis},
        {Maske::von<Fangbuch>(), u"Fangbuch"_qs, organisation, u"Fangbuch"_qs, u"Fangbuch"_qs, 7,
         &ladeFangbuch},
        {Maske::von<Fangauswertung>(), u"Fangauswertung"_qs, organisation, u"Fangauswertung"_qs,
         u"Fangauswertung"_qs},
        {Maske::von<KontaktUebers>(), u"Kontakte"_qs, organisation, u"Kontakte u.\r\nMitgl."_qs,
         u"KontUebers"_qs, 3, &modKontakt::FuelleKontaktUebersicht},
        {Maske::von<Arbeit>(), u"Arbeit"_qs, organisation, u"Arb.-Std.-\r\nControlling"_qs, u"Arbeit"_qs},
        {Maske::von<Besatzung>(), u"Besatzung"_qs, organisation, u"Besatz.-Liste"_qs, u"Besatz"_qs, 5,
         &modBesatzList::loadTblBList},
        {Maske::von<MitglList>(), u"Kontakte"_qs},
        {Maske::von<Katego>(), u"Kontakte"_qs, {}, {}, {}, 6, &modKatego::loadTblKatego},
    };
    return all;
}

std::vector<Bereich> ladefolge() {
    std::vector<Bereich> loading = bereiche();
    std::erase_if(loading, [](const Bereich& bereich) { return !bereich.lade; });
    std::ranges::stable_sort(loading, {}, &Bereich::folge);
    return loading;
}
