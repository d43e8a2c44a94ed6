#include "Zugriff.h"

#include "Datenbank.h"
#include "ErrorTail.h"
#include "Session.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

bool zugriffErlaubt(const QString& module, const QString& routine, const QString& right) {
    bool allowed = false;
    withErrorTail(module, routine, [&](ErrorTail& step) {
        Recordset gruppe;
        step([&] {
            gruppe =
                oeffneAbfrage(u"SELECT * FROM Gruppen WHERE GNr = (SELECT GNr FROM Benutzer WHERE Name = "_s +
                              quoted(session().Benutzer) + u")"_s);
        });
        if (step.test([&] { return gruppe.RecordCount() >= 1; }))
            step([&] { allowed = gruppe.Fields(right).Value() == Value(true); });
        step([&] { gruppe.Close(); });
    });
    return allowed;
}
