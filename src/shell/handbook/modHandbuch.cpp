#include "modHandbuch.h"

#include "Handbuch.h"
#include "Screens.h"
#include "Session.h"
#include "Stage.h"

#include <map>

namespace modHandbuch {

namespace {

/// The pages that are named otherwise than their screen.
const std::map<QString, QString>& pages() {
    static const std::map<QString, QString> byScreen = {
        {u"Arbeit"_qs, u"arbeitsstunden"_qs},
        {u"Basis"_qs, u"basisdaten"_qs},
        // The questions of a start in a new year come above the start-up picture.
        {u"Eroef"_qs, u"jahreswechsel"_qs},
        {u"Handbuch"_qs, u"index"_qs},
        {u"Hinter"_qs, u"index"_qs},
        {u"Katego"_qs, u"kategorien"_qs},
        {u"KontaktUebers"_qs, u"kontakte"_qs},
        {u"Login"_qs, u"anmeldung"_qs},
        {u"Main"_qs, u"index"_qs},
        {u"MitglList"_qs, u"mitgliederliste"_qs},
        {u"SuchKont"_qs, u"kontaktsuche"_qs},
        {u"System"_qs, u"parameter"_qs},
    };
    return byScreen;
}

const Screen* screenAround(const QWidget* widget) {
    while (widget && !qobject_cast<const Screen*>(widget)) widget = widget->parentWidget();
    return qobject_cast<const Screen*>(widget);
}

const Screen* lastShown() {
    const Screen* shown = nullptr;
    for (const Screen* screen : Screens::all())
        if (screen->isVisible()) shown = screen;
    return shown;
}

/// The screen that contains `focused`. The frame's bar and menus count as the screen on its stage.
const Screen* screenInFront(const QWidget* focused) {
    const Screen* screen = screenAround(focused);
    if (!screen) screen = lastShown();
    const Stage* stage = Stage::current();
    const bool isFrame = screen && stage && screen->isAncestorOf(stage);
    return isFrame && stage->front() ? stage->front() : screen;
}

/// The page of a screen. Without any screen the start has failed and its message box is alone.
QString pageFor(const Screen* screen) { return screen ? SeiteFuer(screen->objectName()) : u"hilfe"_qs; }

} // namespace

QString SeiteFuer(const QString& screen) {
    const auto found = pages().find(screen);
    return found == pages().end() ? screen.toLower() : found->second;
}

void ZeigeHandbuch(const QWidget* focused) {
    const QString page = pageFor(screenInFront(focused));
    screen<Handbuch>().zeige(programFolder() + u"/Handbuch/%1.html"_qs.arg(page));
}

} // namespace modHandbuch
