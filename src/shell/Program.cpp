#include "Program.h"

#include "ErrorTail.h"
#include "EventGuard.h"
#include "Main.h"
#include "MsgBox.h"
#include "Screens.h"
#include "Session.h"
#include "modHandbuch.h"
#include "modSicherung.h"
#include "modStart.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

Program* running = nullptr;

// True for F1, except in an open list or menu, which keeps its keys.
bool asksForHandbook(const QObject* watched, const QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    return key->key() == Qt::Key_F1 && key->modifiers() == Qt::NoModifier &&
           !QApplication::activePopupWidget();
}

/// Shows the last message box of the program. It comes after the end, so MsgBox() throws ProgramEnded.
void tellMissingCopy() {
    try {
        MsgBox(modSicherung::Fehlschlag(), vbExclamation);
    } catch (const ProgramEnded&) {
        // Caught here, so that the rest of the end follows.
    }
}

} // namespace

Program::Program(const QString& folder) {
    running = this;
    beginSession(folder);
    setEventFailure([this](const RuntimeError& error) { fail(error); });
    QCoreApplication::instance()->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Program::finishUnseen);
}

bool Program::eventFilter(QObject* watched, QEvent* event) {
    if (watched == QCoreApplication::instance() && event->type() == QEvent::Quit) finishUnseen();
    if (asksForHandbook(watched, event)) {
        if (!static_cast<QKeyEvent*>(event)->isAutoRepeat())
            runEvent([&] { modHandbuch::ZeigeHandbuch(static_cast<QWidget*>(watched)); });
        return true;
    }
    return QObject::eventFilter(watched, event);
}

Program::~Program() {
    letGo();
    if (running != this) return;
    setEventFailure({});
    running = nullptr;
}

Program& Program::current() { return *running; }

void Program::start() {
    m_running = true;
    setEventsEnded(false);
    the<Main>();
}

void Program::finish() {
    if (!letGo()) return;
    // Without a login the start has failed: it has shown its reason already, and nothing was written.
    if (!modSicherung::SichereDatenbank() && session().Angemeldet) tellMissingCopy();
    Q_EMIT ended();
}

void Program::finishUnseen() {
    if (!letGo()) return;
    modSicherung::SichereDatenbank();
    Q_EMIT ended();
}

bool Program::letGo() {
    if (!m_running) return false;
    m_running = false;
    session().Beendet = true;
    setEventsEnded(true);
    unload<Main>();
    Screens::removeAll();
    session().AktDatenbank = Database();
    return true;
}

/// Ends the program over an error that no handler caught. Makes no copy of the file after an error: the next
/// normal end makes one.
void Program::fail(const RuntimeError& error) {
    if (!m_running) return;
    MsgBox(u"Laufzeitfehler '%1':\r\n\r\n%2"_s.arg(error.number).arg(error.description), vbCritical);
    // Damage found at the start calls for the repair after any error: each start would fail and never reach
    // the menu with the repair. Damage found later does not: it may be repaired already, and need not be the
    // cause of this error.
    const bool atStart = session().Beschaedigt && !session().Angemeldet;
    const bool damaged = atStart || error.is(RuntimeError::damagedFile);
    if (damaged && session().AktDatenbank.isOpen()) runEvent([] { modStart::RepariereAufWunsch(); });
    if (letGo()) Q_EMIT ended();
}
