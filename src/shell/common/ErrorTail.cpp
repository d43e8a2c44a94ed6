#include "ErrorTail.h"

#include "MsgBox.h"
#include "Session.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int boxesPerRoutine = 4;
}

void beginErrorTail() { session().FehlerZaehler = 0; }

KeptErrorCount::KeptErrorCount()
    : m_count(session().FehlerZaehler) {}

KeptErrorCount::~KeptErrorCount() { session().FehlerZaehler = m_count; }

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
