#include "modNavigation.h"

#include "Bereiche.h"
#include "ComboBox.h"
#include "Fangbuch.h"
#include "Hinter.h"
#include "Main.h"
#include "MitglList.h"
#include "Screens.h"
#include "Session.h"
#include "Vorschau.h"
#include "modMitglList.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace modNavigation {

namespace {

/// The key of the item to which a screen belongs; empty for one of none, such as a preview.
QString keyOf(const Screen* screen) {
    for (const Bereich& bereich : bereiche())
        if (bereich.screen.loaded() == screen) return bereich.key;
    return {};
}

/// Closes the preview when the user leaves it by the bar, so that its list is left like any other screen.
void schliesseVorschau() {
    if (isLoaded<Vorschau>() && Stage::current()->front() == &the<Vorschau>()) unload<Vorschau>();
}

/// Hides every screen that can be behind the bar.
void VersteckeFormen() {
    for (const Bereich& bereich : bereiche())
        if (Screen* screen = bereich.screen.loaded()) screen->Hide();
    if (isLoaded<MitglList>()) modMitglList::LeereMListAnzeige();
    if (isLoaded<Hinter>()) the<Hinter>().Hide();
}

/// Makes the item the current one, then shows its screen.
void showScreen(const QString& key) {
    Screen& target = std::ranges::find(bereiche(), key, &Bereich::key)->screen.make();
    session().AktBarItem = the<Main>().ButtnBar->item(key);
    target.Show();
}

} // namespace

void InitButtnBar() {
    NavigationBar* bar = the<Main>().ButtnBar;
    for (const Bereich& bereich : bereiche()) {
        if (bereich.hatTaste())
            bar->addItem(bereich.gruppe, bereich.key, bereich.aufschrift, bereich.key.toLower());
    }
    constexpr int organisation = 1;
    bar->setCurrentGroup(organisation);
}

void LeereButtnBar() {
    for (const BarItem* item : the<Main>().ButtnBar->items()) entferne(item->key());
    session().AktBarItem = nullptr;
}

void entferne(const QString& key) {
    NavigationBar* bar = the<Main>().ButtnBar;
    session().AktBarItem = bar->item(key);
    bar->removeItem(key);
}

void markiere(NavigationBar& bar, const Screen* front) {
    BarItem* item = front ? bar.item(keyOf(front)) : nullptr;
    if (item) bar.setCurrentItem(item);
}

void zeigeBereich(const QString& key) {
    if (key == u"Kontakte"_s) session().SuchAufrufer = 0;
    if (key == u"Arbeit"_s) session().SuchAufrufer = 1;
    schliesseVorschau();
    VersteckeFormen();
    showScreen(key);
    if (key == u"Fangbuch"_s) the<Fangbuch>().cboFArt->setFocus();
}

void zeigeErstesFenster() {
    NavigationBar* bar = the<Main>().ButtnBar;
    if (bar->item(u"Fangbuch"_s)) return showScreen(u"Fangbuch"_s);
    // A user without the right to the catch book begins on his first screen, or in an empty frame.
    if (const BarItem* first = bar->firstItem()) zeigeBereich(first->key());
}

} // namespace modNavigation
