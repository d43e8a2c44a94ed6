#include "modHandbuch.h"

#include "Handbuch.h"
#include "Screens.h"
#include "Session.h"
#include "Stage.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace modHandbuch {

namespace {

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

} // namespace

QString SeiteFuer(const QString& screen) {
    // The pages that are named otherwise than their screen.
    static const QHash<QString, QString> pages = {
        {u"Arbeit"_s, u"arbeitsstunden"_s},
        {u"Basis"_s, u"basisdaten"_s},
        // The questions of a start in a new year come above the start-up picture.
        {u"Eroef"_s, u"jahreswechsel"_s},
        {u"Handbuch"_s, u"index"_s},
        {u"Hinter"_s, u"index"_s},
        {u"Katego"_s, u"kategorien"_s},
        {u"KontaktUebers"_s, u"kontakte"_s},
        {u"Login"_s, u"anmeldung"_s},
        {u"Main"_s, u"index"_s},
        {u"MitglList"_s, u"mitgliederliste"_s},
        {u"SuchKont"_s, u"kontaktsuche"_s},
        {u"System"_s, u"parameter"_s},
    };
    return pages.value(screen, screen.toLower());
}

void ZeigeHandbuch(const QWidget* focused) {
    const Screen* screen = screenInFront(focused);
    // Without any screen the start has failed and its message box is alone.
    const QString page = screen ? SeiteFuer(screen->objectName()) : u"hilfe"_s;
    the<Handbuch>().zeige(programFolder() + u"/Handbuch/%1.html"_s.arg(page));
}

} // namespace modHandbuch
