#include "Screens.h"

#include "Stage.h"
#include "Toolbar.h"

#include <algorithm>

namespace {

QVector<Screen*> alive;
QVector<Screen*> leaving; ///< the alive ones whose unload has begun

} // namespace

namespace Screens {

void add(Screen* screen) {
    alive.append(screen);
    for (const Toolbar* toolbar : screen->findChildren<Toolbar*>())
        QObject::connect(toolbar, &Toolbar::Pressed, screen, [screen] {
            if (!screen->isForReading()) giveUpRecords();
        });
}

void remove(Screen* screen) {
    if (!isAlive(screen) || leaving.contains(screen)) return;
    leaving.append(screen);
    const QPointer<Screen> kept(screen);
    runEvent([screen] { screen->Form_Unload(); });
    if (kept) screen->Hide();
    forget(screen);
    if (!kept) return;
    // Off the frame, so that the frame does not destroy this screen and no search finds its controls.
    if (!screen->isModalNow()) screen->setParent(nullptr);
    // A handler of the screen may be on the stack, even below the loop of a modal screen, so wait until all
    // handlers have returned. Then delete by the event loop, since slots may run without runEvent().
    whenNoEventRuns([kept] {
        if (kept) kept->deleteLater();
    });
}

void forget(Screen* screen) {
    alive.removeOne(screen);
    leaving.removeOne(screen);
}

bool isAlive(const Screen* screen) { return alive.contains(screen); }

QVector<Screen*> all() { return alive; }

Screen* byName(const QString& name) {
    const auto found = std::ranges::find(alive, name, &Screen::objectName);
    return found == alive.end() ? nullptr : *found;
}

Screen* editing() {
    const Screen* front = Stage::current() ? Stage::current()->front() : nullptr;
    const auto found = std::ranges::find_if(alive, [front](const Screen* screen) {
        return screen->isEditing() && (screen->isModalNow() || screen == front);
    });
    return found == alive.end() ? nullptr : *found;
}

void giveUpRecords() {
    for (Screen* screen : alive) screen->giveUpRecord();
}

void removeAll() {
    // Removing a screen may remove or make others.
    while (alive.size() > leaving.size())
        remove(*std::find_if_not(alive.rbegin(), alive.rend(),
                                 [](const Screen* screen) { return leaving.contains(screen); }));
}

} // namespace Screens
