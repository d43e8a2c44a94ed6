#include "modNavigation.h"

#include "Arbeit.h"
#include "Basis.h"
#include "Benutzer.h"
#include "Besatzung.h"
#include "ComboBox.h"
#include "Fangauswertung.h"
#include "Fangbuch.h"
#include "Hinter.h"
#include "Katego.h"
#include "KontaktUebers.h"
#include "Main.h"
#include "MitglList.h"
#include "NavigationBar.h"
#include "Screens.h"
#include "Session.h"
#include "Stage.h"
#include "System.h"
#include "Vorschau.h"
#include "modMitglList.h"

namespace modNavigation {

namespace {

struct Item {
    const char16_t* key;
    const char16_t* caption;
    const char16_t* icon;
    const char16_t* name; ///< of the screen
    Screen& (*screen)();
};

template<typename T>
Screen& make() {
    return screen<T>();
}

const Item systemItems[] = {
    {u"Zugriff", u"Benutzer &&\r\nZugriffsverw.", u"zugriff", u"Benutzer", &make<Benutzer>},
    {u"Parameter", u"Systempar.", u"parameter", u"System", &make<System>},
    {u"Basisdaten", u"Basisdaten", u"basisdaten", u"Basis", &make<Basis>},
};

const Item organisationItems[] = {
    {u"Fangbuch", u"Fangbuch", u"fangbuch", u"Fangbuch", &make<Fangbuch>},
    {u"Fangauswertung", u"Fangauswertung", u"fangauswertung", u"Fangauswertung", &make<Fangauswertung>},
    {u"Kontakte", u"Kontakte u.\r\nMitgl.", u"kontakte", u"KontaktUebers", &make<KontaktUebers>},
    {u"Arbeit", u"Arb.-Std.-\r\nControlling", u"arbeit", u"Arbeit", &make<Arbeit>},
    {u"Besatzung", u"Besatz.-Liste", u"besatzung", u"Besatzung", &make<Besatzung>},
};

template<typename Test>
const Item* findItem(const Test& test) {
    for (const Item& item : systemItems)
        if (test(item)) return &item;
    for (const Item& item : organisationItems)
        if (test(item)) return &item;
    return nullptr;
}

const Item* find(const QString& key) {
    return findItem([&](const Item& item) { return key == item.key; });
}

/// The item of the bar to which a screen belongs; empty for one of none, such as a preview.
QString keyOf(const QString& screen) {
    if (screen == u"Katego"_qs || screen == u"MitglList"_qs) return u"Kontakte"_qs;
    const Item* own = findItem([&](const Item& item) { return screen == item.name; });
    return own ? QString::fromUtf16(own->key) : QString();
}

template<std::size_t count>
BarGroup* addGroup(const QString& caption, const Item (&items)[count]) {
    BarGroup* group = screen<Main>().ButtnBar->addGroup(caption);
    for (const Item& item : items)
        group->addItem(QString::fromUtf16(item.key), QString::fromUtf16(item.caption),
                       QString::fromUtf16(item.icon));
    return group;
}

template<typename T>
void hideIfLoaded() {
    if (isLoaded<T>()) screen<T>().Hide();
}

/// Closes the preview when the user leaves it by the bar, so that its list is left like any other screen.
void schliesseVorschau() {
    if (isLoaded<Vorschau>() && Stage::current()->front() == &screen<Vorschau>()) unload<Vorschau>();
}

/// Makes the item the current one, then binds and shows its screen.
void showScreen(const QString& key) {
    Screen& target = find(key)->screen();
    session().AktBarItem = screen<Main>().ButtnBar->item(key);
    binde(session().AktBarItem, target);
    target.Show();
}

} // namespace

void InitButtnBar() {
    screen<Main>().GruppeSystem = addGroup(u"System"_qs, systemItems);
    screen<Main>().GruppeOrganisation = addGroup(u"Organisation"_qs, organisationItems);
    constexpr int organisation = 1;
    constexpr int itemSpacing = 80;
    screen<Main>().ButtnBar->setCurrentGroup(organisation);
    screen<Main>().ButtnBar->setItemSpacing(itemSpacing);
}

void LeereButtnBar() {
    for (BarGroup* group : screen<Main>().ButtnBar->groups())
        for (const BarItem* item : group->items()) group->removeItem(item->key());
    session().AktBarItem = nullptr;
}

void binde(BarItem* item, Screen& target) {
    // A start-up that ended in a repair leaves the bar without items.
    if (item) item->takeWindow(&target);
}

void markiere(NavigationBar& bar, const Screen* front) {
    BarItem* item = front ? bar.item(keyOf(front->objectName())) : nullptr;
    if (item) bar.setCurrentItem(item);
}

void VersteckeFormen() {
    hideIfLoaded<Benutzer>();
    hideIfLoaded<System>();
    hideIfLoaded<Fangbuch>();
    hideIfLoaded<Fangauswertung>();
    hideIfLoaded<KontaktUebers>();
    hideIfLoaded<Basis>();
    hideIfLoaded<Arbeit>();
    hideIfLoaded<Besatzung>();
    hideIfLoaded<Hinter>();
    hideIfLoaded<MitglList>();
    if (isLoaded<MitglList>()) modMitglList::LeereMListAnzeige();
    hideIfLoaded<Katego>();
}

void zeigeBereich(const QString& key) {
    if (key == u"Kontakte"_qs) session().SuchAufrufer = 0;
    if (key == u"Arbeit"_qs) session().SuchAufrufer = 1;
    schliesseVorschau();
    VersteckeFormen();
    showScreen(key);
    if (key == u"Fangbuch"_qs) screen<Fangbuch>().cboFArt->setFocus();
}

void zeigeErstesFenster() {
    NavigationBar* bar = screen<Main>().ButtnBar;
    if (bar->item(u"Fangbuch"_qs)) return showScreen(u"Fangbuch"_qs);
    // A user without the right to the catch book begins on his first screen, or in an empty frame.
    for (BarGroup* group : {screen<Main>().GruppeOrganisation, screen<Main>().GruppeSystem})
        if (!group->items().isEmpty()) return zeigeBereich(group->items().first()->key());
}

} // namespace modNavigation
