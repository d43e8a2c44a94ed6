#include "Stage.h"

#include "Screen.h"
#include "Toolbar.h"

#include <QApplication>
#include <QShowEvent>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

Stage* stageInForce = nullptr;

// Skips tabs and toolbar buttons: the user wants to begin in the first field of the page.
bool takesFocus(const QWidget* control, const Screen* screen) {
    const bool isTabs = qobject_cast<const QTabBar*>(control) || qobject_cast<const QTabWidget*>(control);
    const bool isKey = qobject_cast<const Toolbar*>(control->parentWidget());
    return !isTabs && !isKey && (control->focusPolicy() & Qt::TabFocus) && control->isEnabled() &&
           control->isVisibleTo(screen) && screen->isAncestorOf(control);
}

// The control that had the focus when the screen was last in front, or its first one.
QWidget* focusOf(Screen* screen) {
    QWidget* last = screen->focusWidget();
    if (last && last != screen && last->isEnabled() && last->isVisibleTo(screen)) return last;
    for (QWidget* next = screen->nextInFocusChain(); next != screen; next = next->nextInFocusChain()) {
        if (takesFocus(next, screen)) return next;
    }
    return screen;
}

} // namespace

Stage::Stage(QWidget* parent)
    : QWidget(parent) {
    setObjectName(u"stage"_s);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    stageInForce = this;
}

// Releases the screens: only unloading destroys a screen, never the end of the frame.
Stage::~Stage() {
    if (stageInForce == this) stageInForce = nullptr;
    const auto screens = findChildren<Screen*>(QString(), Qt::FindDirectChildrenOnly);
    for (Screen* screen : screens) screen->setParent(nullptr);
}

Stage* Stage::current() { return stageInForce; }

QWidget* Stage::windowBelow(const QWidget* window) {
    for (QWidget* below : {QApplication::activeWindow(), QApplication::activeModalWidget()})
        if (below && below != window) return below;
    return stageInForce && stageInForce->isVisible() ? stageInForce->window() : nullptr;
}

void Stage::bringToFront(Screen* screen) {
    const QPointer<Screen> before = front();
    m_order.removeAll(screen);
    m_order.append(screen);
    if (screen->parentWidget() != this) screen->setParent(this, Qt::Widget);
    uncover(screen);
    if (before == screen) return;
    if (before) before->hide();
    // A control losing the focus may have pulled it back into the screen just hidden.
    focusInto(screen);
    Q_EMIT frontChanged(front());
    settle();
}

void Stage::withdraw(Screen* screen) {
    const bool wasFront = front() == screen;
    m_order.removeAll(screen);
    if (wasFront && front()) uncover(front());
    screen->hide();
    if (!wasFront) return;
    Q_EMIT frontChanged(front());
    settle();
}

// Shows and focuses a screen. Call before hiding the one in front: Qt would move the focus elsewhere.
void Stage::uncover(Screen* screen) {
    screen->setGeometry(rect());
    screen->show();
    screen->raise();
    updateGeometry();
    focusInto(screen);
}

void Stage::focusInto(Screen* screen) {
    const QWidget* focused = window()->focusWidget();
    if (!focused || !screen->isAncestorOf(focused)) focusOf(screen)->setFocus(Qt::OtherFocusReason);
}

void Stage::settle() {
    if (!m_active || m_activated == front()) return;
    const QPointer<Stage> alive(this);
    const QPointer<Screen> before = m_activated;
    m_activated.clear();
    if (before && !before->keepsRecord()) before->giveUpRecord();
    if (before) runEvent([&] { before->Form_Deactivate(); });
    // Form_Deactivate may have changed the front, which has activated a screen already.
    if (!alive || !m_active || m_activated || !front()) return;
    m_activated = front();
    runEvent([screen = m_activated.data()] { screen->Form_Activate(); });
}

Screen* Stage::front() const {
    for (auto screen = m_order.rbegin(); screen != m_order.rend(); ++screen) {
        if (*screen) return *screen;
    }
    return nullptr;
}

void Stage::showEvent(QShowEvent* event) {
    if (event->spontaneous()) return;
    m_active = true;
    settle();
}

void Stage::hideEvent(QHideEvent* event) {
    if (event->spontaneous()) return;
    m_active = false;
    m_activated.clear();
}

// Room for any screen of the program from the start, with some rows in its grid: the frame must not grow on
// the way from screen to screen. One that needs more all the same gets it, instead of squeezing its controls.
QSize Stage::minimumSizeHint() const {
    constexpr int digits = 114;
    constexpr int lines = 29;
    QSize room(digits * fontMetrics().horizontalAdvance(u'0'), lines * fontMetrics().height());
    for (const QPointer<Screen>& screen : m_order) {
        if (screen) room = room.expandedTo(screen->minimumSizeHint());
    }
    return room;
}

QSize Stage::sizeHint() const { return minimumSizeHint().expandedTo({640, 480}); }

void Stage::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (Screen* screen = front()) screen->setGeometry(rect());
}
