#include "Screens.h"

#include "Stage.h"
#include "Toolbar.h"

#include <algorithm>

namespace {

struct Entry {
    Screen* screen;
    bool leaving; ///< its unload has begun
};

QVector<Entry>& entries() {
    static QVector<Entry> alive;
    return alive;
}

QVector<Entry>::iterator find(const Screen* screen) {
    return std::find_if(entries().begin(), entries().end(),
                        [screen](const Entry& entry) { return entry.screen == screen; });
}

// A handler of the screen may be on the stack, even below the loop of a modal screen, so wait until all
// handlers have returned. Then delete by the event loop, since slots may run without runEvent().
void destroyWhenSafe(Screen* screen) {
    whenNoEventRuns([screen = QPointer<Screen>(screen)] {
        if (screen) screen->deleteLater();
    });
}

Screen* latestToGo() {
    const auto found =
        std::find_if(entries().rbegin(), entries().rend(), [](const Entry& entry) { return !entry.leaving; });
    return found == entries().rend() ? nullptr : found->screen;
}

} // namespace

namespace Screens {

void add(Screen* screen) {
    if (find(screen) != entries().end()) return;
    entries().append({screen, false});
    for (const Toolbar* toolbar : screen->findChildren<Toolbar*>())
        QObject::connect(toolbar, &Toolbar::Pressed, screen, [screen] {
            if (!screen->isForReading()) giveUpRecords();
        });
}

void remove(Screen* screen) {
    const auto entry = find(screen);
    if (entry == entries().end() || entry->leaving) return;
    entry->leaving = true;
    const QPointer<Screen> alive(screen);
    runEvent([screen] { screen->Form_Unload(); });
    if (alive) screen->Hide();
    forget(screen);
    if (!alive) return;
    // Off the frame, so that the frame does not destroy this screen and no search finds its controls.
    if (!screen->isModalNow()) screen->setParent(nullptr);
    destroyWhenSafe(screen);
}

void forget(const Screen* screen) {
    const auto entry = find(screen);
    if (entry != entries().end()) entries().erase(entry);
}

bool isAlive(const Screen* screen) { return screen && find(screen) != entries().end(); }

QVector<Screen*> all() {
    QVector<Screen*> screens;
    for (const Entry& entry : entries()) screens.append(entry.screen);
    return screens;
}

Screen* byName(const QString& name) {
    for (const Entry& entry : entries()) {
        if (entry.screen->objectName() == name) return entry.screen;
    }
    return nullptr;
}

Screen* editing() {
    for (const Entry& entry : entries()) {
        const bool inSight =
            entry.screen->isModalNow() || (Stage::current() && Stage::current()->front() == entry.screen);
        if (inSight && entry.screen->isEditing()) return entry.screen;
    }
    return nullptr;
}

void giveUpRecords() {
    for (Screen* screen : all()) screen->giveUpRecord();
}

void removeAll() {
    while (Screen* screen = latestToGo()) remove(screen);
}

} // namespace Screens
