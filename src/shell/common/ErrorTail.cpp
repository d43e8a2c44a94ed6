#include "ErrorTail.h"

#include "MsgBox.h"
#include "Session.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int boxesPerRoutine = 4;

/// Thrown by the fifth error, caught by withErrorTail.
struct LeaveRoutine {};

} // namespace

KeptErrorCount::KeptErrorCount()
    : QScopedValueRollback(session().FehlerZaehler) {}

void ErrorTail::report(const RuntimeError& error) {
    if (session().Beendet) throw LeaveRoutine{};
    if (error.is(RuntimeError::damagedFile)) session().Beschaedigt = true;
    const QString title = u"Runtime - Error: %1"_s.arg(error.number);
    qint16& count = session().FehlerZaehler;
    if (count < 0 || count >= boxesPerRoutine) {
        MsgBox(u"Unvorhergesehener Fehler kann nicht behoben werden, Unterroutine wird verlassen !"_s,
               vbExclamation, title);
        throw LeaveRoutine{};
    }
    MsgBox(u"Unvorhergesehener Fehler in Modul: "_s + m_module + u" / Routine: "_s + m_routine + u" !\n\r"_s +
               u"Beschreibung: "_s + error.description,
           vbExclamation, title);
    ++count;
}

void withErrorTail(const QString& module, const QString& routine,
                   const std::function<void(ErrorTail&)>& body) {
    session().FehlerZaehler = 0;
    ErrorTail step(module, routine);
    try {
        body(step);
    } catch (const LeaveRoutine&) {
        // The message box has been shown. The rest of the routine is skipped.
    }
}
