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

using namespace Qt::StringLiterals;

namespace {

void ladeBenutzer() {
    modBenutzer::loadTblBenutzer();
    modBenutzer::loadTblZugriff();
}

void ladeBasis() {
    modBasis::loadTblFBasis();
    modBasis::loadTblGBasis();
}

void ladeFangbuch() { modFangbuch::loadTblFList(the<Eroef>().pb); }

} // namespace

const std::vector<Bereich>& bereiche() {
    static const QString system = u"System"_s;
    static const QString organisation = u"Organisation"_s;
    static const std::vector<Bereich> all = {
        {ScreenType::of<Benutzer>(), u"Zugriff"_s, system, u"Benutzer &&\r\nZugriffsverw."_s,
         u"Benutzerverwaltung"_s, 2, &ladeBenutzer},
        {ScreenType::of<System>(), u"Parameter"_s, system, u"Systempar."_s, u"System"_s, 4,
         &modSystem::loadTblSystem},
        {ScreenType::of<Basis>(), u"Basisdaten"_s, system, u"Basisdaten"_s, u"Basis"_s, 1, &ladeBasis},
        {ScreenType::of<Fangbuch>(), u"Fangbuch"_s, organisation, u"Fangbuch"_s, u"Fangbuch"_s, 7,
         &ladeFangbuch},
        {ScreenType::of<Fangauswertung>(), u"Fangauswertung"_s, organisation, u"Fangauswertung"_s,
         u"Fangauswertung"_s},
        {ScreenType::of<KontaktUebers>(), u"Kontakte"_s, organisation, u"Kontakte u.\r\nMitgl."_s,
         u"KontUebers"_s, 3, &modKontakt::FuelleKontaktUebersicht},
        {ScreenType::of<Arbeit>(), u"Arbeit"_s, organisation, u"Arb.-Std.-\r\nControlling"_s, u"Arbeit"_s},
        {ScreenType::of<Besatzung>(), u"Besatzung"_s, organisation, u"Besatz.-Liste"_s, u"Besatz"_s, 5,
         &modBesatzList::loadTblBList},
        {ScreenType::of<MitglList>(), u"Kontakte"_s},
        {ScreenType::of<Katego>(), u"Kontakte"_s, {}, {}, {}, 6, &modKatego::loadTblKatego},
    };
    return all;
}

std::vector<Bereich> ladefolge() {
    std::vector<Bereich> loading = bereiche();
    std::erase_if(loading, [](const Bereich& bereich) { return !bereich.lade; });
    std::ranges::stable_sort(loading, {}, &Bereich::folge);
    return loading;
}
