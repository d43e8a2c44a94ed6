#include "Screen.h"

#include "Screens.h"
#include "Stage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>

namespace {

/// Clicks a button at once when its shortcut is pressed. Qt would show the button pressed and click a tenth
/// of a second later: on a slow machine, or with a quick user, another record is on the screen by then.
bool pressAtOnce(QAbstractButton* button, const QShortcutEvent* shortcut) {
    if (!button || shortcut->isAmbiguous()) return false;
    button->click();
    return true;
}

bool swallows(Screen* screen, const QObject* control, QKeyEvent* event) {
    // Keys of an open menu or list belong to it alone. A key that a control ignores goes on to its parents:
    // it is the same key, seen already.
    const QWidget* window = screen->window();
    const QWidget* focused = window->focusWidget() ? window->focusWidget() : window;
    if (control != focused || event->isAutoRepeat()) return false;
    bool swallowed = false;
    runEvent([&] { swallowed = screen->Form_KeyDown(event->key(), event->modifiers()); });
    if (swallowed) event->accept();
    return swallowed;
}

/// Sees the keys of all screens, on the application, before any control.
class KeyPreview : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Shortcut)
            return pressAtOnce(qobject_cast<QAbstractButton*>(watched), static_cast<QShortcutEvent*>(event));
        if (event->type() != QEvent::KeyPress) return false;
        QObject* around = watched;
        while (around && !qobject_cast<Screen*>(around)) around = around->parent();
        return around && swallows(static_cast<Screen*>(around), watched, static_cast<QKeyEvent*>(event));
    }
};

} // namespace

Screen::Screen(const QString& name, const QString& caption) {
    setObjectName(name);
    // On the stage no title bar shows the caption, but a screen reader still reads it.
    connect(this, &Screen::windowTitleChanged, this, &Screen::setAccessibleName);
    setWindowTitle(caption);
    static QPointer<KeyPreview> preview;
    if (!preview) qApp->installEventFilter(preview = new KeyPreview(qApp));
}

Screen::~Screen() {
    Screens::forget(this);
    if (m_modalLoop) m_modalLoop->quit();
}

void Screen::Form_QueryUnload() {
    if (m_ownWindow && !isModalNow())
        Screens::remove(this);
    else
        Hide();
}

void Screen::Show() {
    if (m_ownWindow || isModalNow())
        showAsWindow();
    else if (Stage* stage = Stage::current())
        stage->bringToFront(this);
}

void Screen::ShowAbove(QWidget* window) {
    if (parentWidget() != window) setParent(window, Qt::Dialog);
    showAsWindow();
}

void Screen::showAsWindow() {
    if (!testAttribute(Qt::WA_Resized)) adjustSize();
    if (!std::exchange(m_placed, true)) {
        const QRect room = QWidget::screen()->availableGeometry();
        QRect face(QPoint(0, 0), size());
        face.moveCenter(parentWidget() ? parentWidget()->frameGeometry().center() : room.center());
        move(std::max(room.left(), face.left()), std::max(room.top(), face.top()));
    }
    show();
    raise();
    activateWindow();
}

void Screen::ShowModal() {
    if (isModalNow()) {
        showAsWindow();
        return;
    }
    Hide();
    const QPointer<QWidget> below = Stage::windowBelow(this);
    const QPointer<Screen> alive(this);
    setParent(below, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                         Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint);
    setWindowModality(Qt::ApplicationModal);
    m_placed = false;
    QEventLoop loop;
    m_modalLoop = &loop;
    showAsWindow();
    // Showing sends events, and their handlers may have hidden or unloaded the screen already.
    if (alive && m_modalLoop) loop.exec(QEventLoop::DialogExec);
    if (below) below->activateWindow();
    if (!alive) return;
    m_modalLoop = nullptr;
    setWindowModality(Qt::NonModal);
    // The window below must not destroy this screen with itself.
    setParent(nullptr);
}

void Screen::Hide() {
    if (Stage* stage = Stage::current())
        stage->withdraw(this);
    else
        hide();
}

void Screen::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (event->spontaneous() || !m_modalLoop) return;
    m_modalLoop->quit();
    m_modalLoop = nullptr;
}

void Screen::openRecord(const QString& number, int row) {
    // A user who comes back finds one record open, the last one, not one on each screen.
    if (number.isEmpty() || m_keepsRecord) Screens::giveUpRecords();
    m_openNumber = number;
    m_gridRow = row;
}

void Screen::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    // Controls that fill their ground are cut out of the region, so compare its bounds.
    if (m_paintPending || !event->region().boundingRect().contains(rect())) return;
    m_paintPending = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_paintPending = false;
            if (isVisible()) runEvent([this] { Form_Paint(); });
        },
        Qt::QueuedConnection);
}

void Screen::closeEvent(QCloseEvent* event) {
    event->ignore();
    runEvent([this] { Form_QueryUnload(); });
}

// Enter presses the focused button. Outside dialogs Qt's buttons accept the space bar only.
void Screen::keyPressEvent(QKeyEvent* event) {
    auto* button = qobject_cast<QAbstractButton*>(focusWidget());
    const bool takesEnter = qobject_cast<QPushButton*>(button) || qobject_cast<QToolButton*>(button);
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // Ignores an Enter held down: the focus may have come to the button in the meantime.
    if (!enter || !takesEnter)
        QWidget::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        button->click();
}
