#include "Hand.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCursor>
#include <QMetaEnum>
#include <QPointer>
#include <QWidget>
#include <QWindow>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>

using namespace Qt::StringLiterals;

namespace {

/// The mouse as the window system sees it.
struct Mouse {
    QPointer<QWindow> pressedIn;
    QPoint place;
    Qt::MouseButton button = Qt::NoButton;
    int time = 1;
};

Mouse& mouse() {
    static Mouse one;
    return one;
}

/// Milliseconds between two clicks, more than Qt takes for a double click.
constexpr int breather = 1000;

QPoint inWindow(const QWidget* widget, QPoint place) { return widget->mapTo(widget->window(), place); }

void send(QWindow* window, QPoint place, Qt::MouseButton button, QEvent::Type type) {
    const Qt::MouseButtons down = mouse().button;
    qt_handleMouseEvent(window, place, window->mapToGlobal(place), down, button, type, Qt::NoModifier,
                        ++mouse().time);
}

void press(QWindow* window, QPoint place, Qt::MouseButton button) {
    mouse().pressedIn = window;
    mouse().place = place;
    mouse().button = button;
    send(window, place, button, QEvent::MouseButtonPress);
}

bool isUsable(const QWidget* window) {
    return window->isVisible() && window->windowType() != Qt::Popup && window->windowType() != Qt::ToolTip;
}

QString textOf(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return u"\r"_s;
    case Qt::Key_Tab:
        return u"\t"_s;
    case Qt::Key_Backspace:
        return u"\b"_s;
    case Qt::Key_Escape:
        return QChar(0x1b);
    case Qt::Key_Delete:
        return QChar(0x7f);
    default:
        break;
    }
    if (key > 0xff || modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return {};
    const QChar letter(static_cast<char16_t>(key));
    return modifiers & Qt::ShiftModifier ? letter : letter.toLower();
}

void sendKey(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers) {
    QWidget* front = QApplication::activePopupWidget();
    if (!front) front = Hand::windowInFront();
    QWindow* window = front ? front->windowHandle() : nullptr;
    if (window) QTest::sendKeyEvent(QTest::Click, window, key, text, modifiers);
}

void typeCharacter(const QString& character) {
    const char32_t code = character.toUcs4().value(0);
    if (code == U'\n' || code == U'\r') return Hand::key(Qt::Key_Return);
    if (code == U'\t') return Hand::key(Qt::Key_Tab);
    const bool capital = character.toLower() != character;
    const auto key = static_cast<Qt::Key>(QChar::toUpper(code));
    sendKey(key, character, capital ? Qt::ShiftModifier : Qt::NoModifier);
}

Qt::KeyboardModifiers takeModifiers(QStringList& words) {
    static const QHash<QString, Qt::KeyboardModifier> modifiers = {{u"Ctrl"_s, Qt::ControlModifier},
                                                                   {u"Shift"_s, Qt::ShiftModifier},
                                                                   {u"Alt"_s, Qt::AltModifier},
                                                                   {u"Meta"_s, Qt::MetaModifier}};
    Qt::KeyboardModifiers taken;
    while (words.size() > 1 && modifiers.contains(words.first())) taken |= modifiers[words.takeFirst()];
    return taken;
}

} // namespace

namespace Hand {

// Stops after some turns: a timer without an interval would keep the loop busy for ever.
void settle() {
    constexpr int turns = 50;
    for (int turn = 0; turn < turns; ++turn) {
        if (!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) return;
    }
}

bool isLocked(const QWidget* window) {
    const QWidget* modal = QApplication::activeModalWidget();
    if (!modal || modal == window) return false;
    const QWindow* above = window->windowHandle();
    return !above || !modal->windowHandle()->isAncestorOf(above, QWindow::IncludeTransients);
}

QWidget* windowInFront() {
    QWidget* active = QApplication::activeWindow();
    if (active && isUsable(active) && !isLocked(active)) return active;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    QWidget* front = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (isUsable(window)) front = window;
    }
    return front;
}

void activateWindow() {
    if (QWidget* front = windowInFront()) activateWindowOf(front);
}

void activateWindowOf(QWidget* widget) {
    QWidget* window = widget->window();
    if (QApplication::activePopupWidget()) return;
    if (QApplication::activeWindow() == window && QGuiApplication::focusWindow() == window->windowHandle())
        return;
    window->activateWindow();
    settle();
}

void move(QWidget* widget, QPoint place) {
    // Context menus open where the pointer is.
    QCursor::setPos(widget->mapToGlobal(place));
    settle();
    if (QWindow* window = widget->window()->windowHandle())
        send(window, inWindow(widget, place), Qt::NoButton, QEvent::MouseMove);
}

void releaseButton() {
    Mouse& m = mouse();
    if (m.button == Qt::NoButton) return;
    const Qt::MouseButton button = std::exchange(m.button, Qt::NoButton);
    if (m.pressedIn) send(m.pressedIn, m.place, button, QEvent::MouseButtonRelease);
}

void click(QWidget* widget, QPoint place, Qt::MouseButton button) {
    QWindow* window = widget->window()->windowHandle();
    if (!window) return;
    activateWindowOf(widget);
    move(widget, place);
    mouse().time += breather;
    press(window, inWindow(widget, place), button);
    releaseButton();
    settle();
}

void doubleClick(QWidget* widget, QPoint place) {
    const QPointer<QWindow> window = widget->window()->windowHandle();
    if (!window) return;
    const QPoint there = inWindow(widget, place);
    activateWindowOf(widget);
    move(widget, place);
    mouse().time += breather;
    press(window, there, Qt::LeftButton);
    releaseButton();
    if (window) press(window, there, Qt::LeftButton);
    releaseButton();
    settle();
}

void key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    sendKey(key, textOf(key, modifiers), modifiers);
    settle();
}

void type(const QString& text) {
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == u'\r' && text.mid(at + 1, 1) == u"\n"_s) continue;
        const bool pair = text[at].isHighSurrogate() && at + 1 < text.size();
        typeCharacter(text.mid(at, pair ? 2 : 1));
        if (pair) ++at;
    }
    settle();
}

bool namedKey(const QString& name) {
    QStringList words = name.split(u'+');
    const Qt::KeyboardModifiers modifiers = takeModifiers(words);
    bool known = false;
    const QByteArray wanted = "Key_" + words.join(u'+').toUtf8();
    const int value = QMetaEnum::fromType<Qt::Key>().keyToValue(wanted.constData(), &known);
    if (known) key(static_cast<Qt::Key>(value), modifiers);
    return known;
}

} // namespace Hand
