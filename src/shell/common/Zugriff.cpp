#include "Zugriff.h"

#include "Datenbank.h"
#include "Session.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

bool zugriffErlaubt(const QString& module, const QString& routine, const QString& right) {
    bool allowed = false;
    const auto gruppe = [] {
        return u"SELECT * FROM Gruppen WHERE GNr = (SELECT GNr FROM Benutzer WHERE Name = "_s +
               quoted(session().Benutzer) + u")"_s;
    };
    schlageNach(module, routine, gruppe,
                [&](const Recordset& satz) { allowed = satz.Collect(right) == Value(true); });
    return allowed;
}
